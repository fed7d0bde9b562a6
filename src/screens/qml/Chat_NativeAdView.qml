import QtQuick
import QtQuick.Layouts

// A native card among senders: a row like theirs, without its picture.
NativeAdGround {
    id: root

    AdHeader {
        face: root.view.face
        Layout.fillWidth: true
    }
    Words {
        text: root.view.face.body
        color: Theme.secondary
        maximumLineCount: 2
        elide: Text.ElideRight
        visible: text !== ""
        Layout.fillWidth: true
    }
    AdFacts {
        face: root.view.face
        Layout.fillWidth: true
    }
    AdAction {
        face: root.view.face
        Layout.maximumWidth: root.availableWidth
    }
}
