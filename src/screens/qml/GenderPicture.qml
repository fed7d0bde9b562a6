import QtQuick

// The picture of a gender on its disc.
Rectangle {
    id: root
    required property string picture
    required property string gender
    property int side: Theme.avatar

    implicitWidth: side
    implicitHeight: side
    radius: side / 2
    color: Theme.tint
    Accessible.role: Accessible.Graphic
    Accessible.name: gender

    Symbol {
        anchors.centerIn: parent
        name: root.picture
        color: Theme.accent
        side: Math.round(root.side * 0.6)
    }
}
