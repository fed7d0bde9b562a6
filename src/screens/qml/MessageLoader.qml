// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick

// A bubble in which somebody seems to be typing, while messages are on their way.
Item {
    id: root
    implicitWidth: Theme.drawing
    implicitHeight: bubble.height + Theme.space4
    Accessible.ignored: true

    Rectangle {
        id: bubble
        anchors.horizontalCenter: parent.horizontalCenter
        width: dots.width + 2 * Theme.space6
        height: dots.height + 2 * Theme.space5
        radius: height / 2
        color: Theme.tint
        Progress {
            id: dots
            anchors.centerIn: parent
            dot: Theme.space4
        }
    }
    Repeater {
        model: [Theme.space3, Theme.space2]
        Rectangle {
            id: tail
            required property int index
            required property int modelData
            width: modelData
            height: modelData
            radius: width / 2
            color: Theme.tint
            x: bubble.x + Theme.space2 - index * Theme.space3
            y: bubble.height - Theme.space1 + index * Theme.space3
        }
    }
}
