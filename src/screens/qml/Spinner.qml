// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick

// A circle of dots that turns; it rests where motion is reduced.
Item {
    id: root
    property color color: Theme.accent
    property int side: Theme.symbol
    readonly property int dots: 8

    implicitWidth: side
    implicitHeight: side
    Accessible.role: Accessible.Animation
    Accessible.name: "Please wait"

    Item {
        id: ring
        anchors.fill: parent
        RotationAnimation on rotation {
            running: root.visible && !Theme.reducedMotion
            loops: Animation.Infinite
            from: 0
            to: 360
            duration: Theme.wait
        }
        Repeater {
            model: root.dots
            Rectangle {
                required property int index
                readonly property real angle: 2 * Math.PI * index / root.dots
                width: Math.round(root.side / 5)
                height: width
                radius: width / 2
                x: (root.side - width) / 2 * (1 + Math.sin(angle))
                y: (root.side - height) / 2 * (1 - Math.cos(angle))
                color: root.color
                opacity: (index + 1) / root.dots
            }
        }
    }
}
