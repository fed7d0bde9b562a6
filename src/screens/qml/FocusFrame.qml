import QtQuick

// Says where the keyboard is. Lies over a control and takes no room.
Rectangle {
    id: root
    required property Item control
    property int cornerRadius: Theme.controlRadius
    property bool inside: false // for what reaches the edge of something that cuts off the rest
    readonly property int outset: root.inside ? 0 : Theme.focusRing

    anchors.fill: parent
    anchors.margins: -root.outset
    radius: root.cornerRadius + root.outset
    color: Theme.clear
    border.color: Theme.accent
    border.width: Theme.focusRing
    visible: root.control.activeFocus && Theme.keyboardInUse
}
