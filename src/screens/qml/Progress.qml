// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick

// Three dots that pulse one after the other; they rest where motion is reduced.
Row {
    id: root
    property int dot: Theme.space3
    property color color: Theme.accent

    spacing: dot / 2
    Accessible.ignored: true

    Repeater {
        model: 3
        Rectangle {
            id: pulse
            required property int index
            width: root.dot
            height: root.dot
            radius: width / 2
            color: root.color
            opacity: 1 - index * 0.25

            SequentialAnimation on opacity {
                loops: Animation.Infinite
                running: root.visible && !Theme.reducedMotion
                PauseAnimation { duration: pulse.index * Theme.motion }
                NumberAnimation { from: 1; to: 0.25; duration: Theme.wait / 2; easing.type: Easing.InOutSine }
                NumberAnimation { from: 0.25; to: 1; duration: Theme.wait / 2; easing.type: Easing.InOutSine }
                PauseAnimation { duration: (2 - pulse.index) * Theme.motion }
            }
        }
    }
}
