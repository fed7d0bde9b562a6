import QtQuick
import Orl.Screens

// A sender's picture, or letters on a gradient while there is none.
Item {
    id: root
    required property avatarFace face

    implicitWidth: Theme.avatar
    implicitHeight: Theme.avatar
    Accessible.ignored: true

    Rectangle {
        anchors.fill: parent
        radius: width / 2
        visible: picture.status !== Image.Ready
        gradient: Gradient {
            GradientStop { position: 0; color: root.face.light }
            GradientStop { position: 1; color: root.face.dark }
        }
        Rectangle {
            anchors.fill: parent
            radius: width / 2
            color: root.face.veil
        }
        Text {
            anchors.centerIn: parent
            text: root.face.letters
            color: root.face.ink
            font.pixelSize: root.height * 0.38
            font.weight: Font.DemiBold
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
    }
    Image {
        id: picture
        anchors.fill: parent
        sourceSize { width: root.width; height: root.height }
        source: root.face.picture === "" ? "" : "image://sender/" + encodeURIComponent(root.face.picture)
    }
}
