import QtQuick
import QtQuick.Layouts

// What is chosen of a longer list; a tap opens the list.
Pressable {
    id: root
    required property string name
    required property string value

    text: name
    leftPadding: Theme.space3
    rightPadding: Theme.space3
    topPadding: Theme.space2
    bottomPadding: Theme.space2
    Accessible.role: Accessible.ComboBox
    Accessible.description: value
    background: Rectangle {
        radius: Theme.controlRadius
        color: root.down ? Theme.tint : Theme.background
        border.color: Theme.separator
        border.width: Theme.hairline
    }
    contentItem: RowLayout {
        spacing: Theme.space2
        ColumnLayout {
            spacing: 0
            Words {
                text: root.name
                color: Theme.secondary
                font.pixelSize: Theme.secondarySize
                Layout.fillWidth: true
                Accessible.ignored: true
            }
            Words {
                text: root.value
                font.pixelSize: Theme.rowSize
                Layout.fillWidth: true
                Accessible.ignored: true
            }
        }
        Symbol {
            name: "chevron-expand"
            color: Theme.secondary
        }
    }
}
