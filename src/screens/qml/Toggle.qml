import QtQuick

// How a switch looks; the row that it stands on is the control. On, it also carries a tick.
Rectangle {
    id: root
    required property bool on
    readonly property real inset: Theme.space1 / 2

    implicitHeight: Theme.toggle
    implicitWidth: implicitHeight * 1.7
    radius: height / 2
    color: on ? Theme.accent : Theme.off
    Accessible.ignored: true
    Behavior on color { ColorAnimation { duration: Theme.motion } }

    Rectangle {
        id: knob
        readonly property bool atEnd: root.on !== root.LayoutMirroring.enabled
        x: atEnd ? root.width - width - root.inset : root.inset
        y: root.inset
        height: root.height - 2 * root.inset
        width: height
        radius: height / 2
        color: root.on ? Theme.accentText : Theme.raised
        Behavior on x { NumberAnimation { duration: Theme.travel; easing.type: Easing.OutCubic } }

        Symbol {
            anchors.centerIn: parent
            visible: root.on
            name: "check-lg"
            color: Theme.accent
            side: Theme.smallSymbol
        }
    }
}
