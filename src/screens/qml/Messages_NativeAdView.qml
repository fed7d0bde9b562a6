import QtQuick
import QtQuick.Layouts

// A native card among messages: as one of them, with its picture below the words.
NativeAdGround {
    id: root

    AdHeader {
        face: root.view.face
        Layout.fillWidth: true
    }
    Words {
        text: root.view.face.body
        visible: text !== ""
        Layout.fillWidth: true
    }
    AdMedia {
        face: root.view.face
        Layout.fillWidth: true
        onFilmEnded: root.view.videoDidEnd()
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
