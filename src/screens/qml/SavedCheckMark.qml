import QtQuick

// Says for a moment that something was kept; touches go to what lies below.
Item {
    id: root
    required property bool playing

    anchors.fill: parent
    visible: opacity > 0
    opacity: playing ? 1 : 0
    Behavior on opacity { NumberAnimation { duration: Theme.motion } }

    Rectangle {
        anchors.centerIn: parent
        width: 2 * Theme.appIcon
        height: width
        radius: Theme.cardRadius
        color: Theme.raised
        border.color: Theme.separator
        border.width: Theme.hairline
        Accessible.role: Accessible.AlertMessage
        Accessible.name: "Saved"

        CheckMark {
            anchors.centerIn: parent
            playing: root.playing
        }
    }
}
