// Components reach the gallery by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Screens

// The layouts of native cards, each with an ad that has everything and one that has hardly anything.
ColumnLayout {
    id: root
    required property Gallery gallery

    spacing: 0
    Layout.fillWidth: true

    GallerySection {
        title: "Ads"
        Layout.fillWidth: true
        Repeater {
            model: root.gallery.ads
            Item {
                id: place
                required property NativeAdView modelData
                implicitHeight: card.height
                Layout.fillWidth: true
                NativeAdLayout {
                    id: card
                    // Never as narrow as before the page is laid out: lines that break then keep their height.
                    width: Math.max(parent.width, Theme.leastWidth - 2 * Theme.margin)
                    view: place.modelData
                }
            }
        }
    }
    GallerySection {
        title: "Beside ads"
        Layout.fillWidth: true
        RowLayout {
            spacing: Theme.space5
            AdChip {}
            CountDownView { seconds: 4.9 }
            CountDownView { seconds: 12; size: Theme.appIcon; lineWidth: Theme.space2 }
        }
    }
}
