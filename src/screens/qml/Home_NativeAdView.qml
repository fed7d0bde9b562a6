import QtQuick
import QtQuick.Layouts

// The native card over the whole screen: everything that the ad has.
NativeAdGround {
    id: root

    padding: Theme.space5
    AdMedia {
        face: root.view.face
        Layout.fillWidth: true
        onFilmEnded: root.view.videoDidEnd()
    }
    AdHeader {
        face: root.view.face
        Layout.fillWidth: true
    }
    Words {
        text: root.view.face.body
        visible: text !== ""
        Layout.fillWidth: true
    }
    AdFacts {
        face: root.view.face
        Layout.fillWidth: true
    }
    AdAction {
        face: root.view.face
        implicitHeight: Theme.target
        Layout.fillWidth: true
    }
}
