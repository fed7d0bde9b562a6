import QtQuick
import QtQuick.Shapes

// The whole seconds that are left, in a ring whose colours go round.
Item {
    id: root
    property real seconds: 0
    // Seven, the last like the first, so that the ring closes.
    property list<color> colors: Theme.ring
    property real lineWidth: 4
    property real size: Theme.target

    implicitWidth: size
    implicitHeight: size
    Accessible.role: Accessible.StaticText
    Accessible.name: number.text + " s"

    Shape {
        anchors.centerIn: parent
        width: root.size
        height: root.size
        layer.enabled: true
        layer.samples: 4

        ShapePath {
            strokeColor: Theme.clear
            fillRule: ShapePath.OddEvenFill
            fillGradient: ConicalGradient {
                centerX: root.size / 2
                centerY: root.size / 2
                angle: 90
                GradientStop { position: 0; color: root.colors[0] }
                GradientStop { position: 1 / 6; color: root.colors[1] }
                GradientStop { position: 2 / 6; color: root.colors[2] }
                GradientStop { position: 3 / 6; color: root.colors[3] }
                GradientStop { position: 4 / 6; color: root.colors[4] }
                GradientStop { position: 5 / 6; color: root.colors[5] }
                GradientStop { position: 1; color: root.colors[6] }
            }
            PathAngleArc {
                centerX: root.size / 2
                centerY: root.size / 2
                radiusX: root.size / 2
                radiusY: radiusX
                sweepAngle: 360
            }
            PathAngleArc {
                centerX: root.size / 2
                centerY: root.size / 2
                radiusX: root.size / 2 - root.lineWidth
                radiusY: radiusX
                sweepAngle: 360
            }
        }
    }
    Words {
        id: number
        anchors.centerIn: parent
        text: Math.floor(root.seconds).toString()
        font.pixelSize: Math.min(Theme.rowSize, root.size / 2)
        font.weight: Font.Bold
        wrapMode: Text.NoWrap
        Accessible.ignored: true
    }
}
