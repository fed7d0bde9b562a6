// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick

// Where number cards will stand while they are fetched.
Column {
    id: root
    spacing: Theme.space2
    Accessible.ignored: true

    Repeater {
        model: 6
        Card {
            id: ghost
            required property int index
            width: root.width
            height: Theme.target + Theme.space4
            opacity: 1 - index * 0.15

            Rectangle {
                anchors.left: parent.left
                anchors.leftMargin: Theme.space4
                anchors.verticalCenter: parent.verticalCenter
                width: parent.width * 0.55
                height: Theme.space4
                radius: height / 2
                color: Theme.separator
            }
        }
    }
}
