import QtQuick

// Chooses how the messages are laid out.
Rectangle {
    id: root
    required property bool bySender
    signal recentTapped
    signal sendersTapped

    implicitHeight: row.implicitHeight
    implicitWidth: row.implicitWidth
    radius: Theme.controlRadius
    color: Theme.separator
    Accessible.role: Accessible.PageTabList
    Accessible.name: "Layout of the messages"

    Row {
        id: row
        StackTab {
            text: "Recent"
            checked: !root.bySender
            onClicked: root.recentTapped()
        }
        StackTab {
            text: "Senders"
            checked: root.bySender
            onClicked: root.sendersTapped()
        }
    }
}
