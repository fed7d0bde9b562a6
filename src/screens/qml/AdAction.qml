import QtQuick
import Orl.Screens

// What an ad invites to; it looks like a button, the card below it takes the tap.
Rectangle {
    id: root
    required property adFace face

    implicitWidth: label.implicitWidth + 2 * Theme.space4
    implicitHeight: label.implicitHeight + 2 * Theme.space2
    radius: Theme.controlRadius
    color: Theme.accent
    visible: face.callToAction !== ""

    Words {
        id: label
        anchors.centerIn: parent
        width: Math.min(implicitWidth, root.width - 2 * Theme.space2)
        text: root.face.callToAction
        color: Theme.accentText
        font.weight: Font.DemiBold
        horizontalAlignment: Text.AlignHCenter
    }
}
