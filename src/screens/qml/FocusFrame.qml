import QtQuick

// Says where the keyboard is. Lies over a control and takes no room.
Rectangle {
    id: root
    required property Item control
    property int cornerRadius: Theme.controlRadius

    anchors.fill: parent
    anchors.margins: -Theme.focusRing
    radius: root.cornerRadius + Theme.focusRing
    color: Theme.clear
    border.color: Theme.accent
    border.width: Theme.focusRing
    visible: root.control.activeFocus && Theme.keyboardInUse
}
