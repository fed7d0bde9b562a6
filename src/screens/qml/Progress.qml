// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick

// Three dots that pulse one after the other. Where motion is reduced they only fade, together.
Row {
    id: root
    property int dot: Theme.space3

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
            color: Theme.accent

            SequentialAnimation on opacity {
                loops: Animation.Infinite
                running: root.visible
                PauseAnimation { duration: Theme.reducedMotion ? 0 : pulse.index * Theme.motion }
                NumberAnimation { from: 1; to: 0.25; duration: Theme.wait / 2; easing.type: Easing.InOutSine }
                NumberAnimation { from: 0.25; to: 1; duration: Theme.wait / 2; easing.type: Easing.InOutSine }
                PauseAnimation { duration: Theme.reducedMotion ? 0 : (2 - pulse.index) * Theme.motion }
            }
        }
    }
}
