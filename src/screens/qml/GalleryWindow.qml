// Components reach the window by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Orl.Screens

// Every component in each of its states, one below the other.
T.ApplicationWindow {
    id: root
    required property Gallery gallery

    title: "orl gallery"
    width: Theme.phoneWidth
    height: Theme.phoneHeight
    minimumWidth: Theme.leastWidth
    visible: true
    color: Theme.background
    LayoutMirroring.enabled: root.gallery.appearance.rightToLeft
    LayoutMirroring.childrenInherit: true

    Binding { target: Theme; property: "dark"; value: root.gallery.appearance.dark }
    Binding { target: Theme; property: "textScale"; value: root.gallery.appearance.textScale }
    Binding { target: Theme; property: "reducedMotion"; value: root.gallery.appearance.reducedMotion }
    Binding { target: Theme; property: "keyboardInUse"; value: root.gallery.appearance.keyboardInUse }

    Flickable {
        objectName: "gallery"
        anchors.fill: parent
        contentWidth: width
        contentHeight: page.implicitHeight
        boundsBehavior: Flickable.StopAtBounds

        ColumnLayout {
            id: page
            anchors.horizontalCenter: parent.horizontalCenter
            // Never as narrow as before the window is laid out: lines that break then keep their height.
            width: Math.min(Math.max(parent.width, Theme.leastWidth), Theme.columnWidth) - 2 * Theme.margin
            spacing: 0

            GalleryButtons { gallery: root.gallery }
            GalleryIdentity { gallery: root.gallery }
            GalleryPictures { gallery: root.gallery }
            GalleryCards { gallery: root.gallery }
            GalleryMail { gallery: root.gallery }
            GalleryAds { gallery: root.gallery }
            GallerySheets { gallery: root.gallery }
        }
    }
    SSNIsValidAlert { alert: root.gallery.ssnAlert }
}
