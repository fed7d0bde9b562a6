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
                    width: parent.width
                    view: place.modelData
                }
            }
        }
    }
    GallerySection {
        title: "Beside ads"
        Layout.fillWidth: true
        AdStrip { face: root.gallery.ads[0].face; Layout.fillWidth: true }
        AdStrip { face: root.gallery.ads[1].face; Layout.fillWidth: true }
        AdStrip { face: root.gallery.ads[0].face; inlined: true; Layout.fillWidth: true; Layout.preferredHeight: 240 }
        RowLayout {
            spacing: Theme.space5
            AdChip {}
            CountDownView { seconds: 4.9 }
            CountDownView { seconds: 12; size: Theme.appIcon; lineWidth: Theme.space2 }
        }
    }
}
