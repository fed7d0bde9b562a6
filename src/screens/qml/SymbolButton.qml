import QtQuick

// A symbol to tap; `text` is its accessible name.
Pressable {
    id: root
    property string symbol
    property color ink: Theme.text
    property bool mirrorsWithLayout: false

    cornerRadius: Theme.target / 2
    background: Rectangle {
        radius: Theme.target / 2
        color: root.down ? Theme.tint : Theme.clear
    }
    contentItem: Item {
        implicitWidth: Theme.symbol
        implicitHeight: Theme.symbol
        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            color: root.ink
            mirror: root.mirrorsWithLayout && root.mirrored
        }
    }
}
