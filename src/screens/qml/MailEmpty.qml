import QtQuick

// An inbox without mails: it is looked at for a moment, then it is empty.
Item {
    id: root
    required property bool progress

    implicitHeight: Math.max(looking.implicitHeight, empty.implicitHeight)

    StateMessage {
        id: looking
        width: parent.width
        visible: opacity > 0
        opacity: root.progress ? 1 : 0
        busy: true
        sentence: "Checking for mail..."
        Behavior on opacity { NumberAnimation { duration: Theme.motion } }
    }
    StateMessage {
        id: empty
        width: parent.width
        visible: opacity > 0
        opacity: root.progress ? 0 : 1
        drawing: "no_mails"
        title: "Ooops!"
        sentence: "No mails found!"
        Behavior on opacity { NumberAnimation { duration: Theme.motion } }
    }
}
