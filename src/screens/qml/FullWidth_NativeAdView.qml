import QtQuick
import QtQuick.Layouts

// A native card in the width of the screen: its picture first.
NativeAdGround {
    id: root

    AdMedia {
        face: root.view.face
        Layout.fillWidth: true
        onFilmEnded: root.view.videoDidEnd()
    }
    AdHeader {
        face: root.view.face
        Layout.fillWidth: true
    }
    AdFacts {
        face: root.view.face
        Layout.fillWidth: true
    }
    AdAction {
        face: root.view.face
        Layout.fillWidth: true
    }
}
