import QtQuick

// A symbol and a word on a pill, over anything.
Pressable {
    id: root
    property string symbol

    leftPadding: Theme.space4
    rightPadding: Theme.space4
    cornerRadius: Theme.target / 2
    background: Rectangle {
        radius: Theme.target / 2
        color: root.down ? Theme.tint : Theme.raised
        border.color: Theme.separator
        border.width: Theme.hairline
    }
    contentItem: Row {
        spacing: Theme.space2
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: root.symbol
        }
        Words {
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            wrapMode: Text.NoWrap
            Accessible.ignored: true
        }
    }
}
