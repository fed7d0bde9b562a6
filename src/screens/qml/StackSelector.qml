import QtQuick
import Orl.Screens

// Chooses how the messages are laid out.
Rectangle {
    id: root
    required property HomeView view

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
            checked: !root.view.bySender
            onClicked: root.view.showRecent()
        }
        StackTab {
            text: "Senders"
            checked: root.view.bySender
            onClicked: root.view.showSenders()
        }
    }
}
