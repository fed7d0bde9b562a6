import QtQuick
import QtQuick.Layouts

// One text of a picker's list, with a tick on the one that is chosen.
Pressable {
    id: root
    leftPadding: Theme.space3
    rightPadding: Theme.space3
    Accessible.role: Accessible.RadioButton
    Accessible.checkable: true
    Accessible.checked: checked
    background: Rectangle {
        radius: Theme.controlRadius
        color: root.down || root.checked ? Theme.tint : Theme.clear
    }
    contentItem: RowLayout {
        spacing: Theme.space2
        Words {
            text: root.text
            font.pixelSize: Theme.rowSize
            font.weight: root.checked ? Font.DemiBold : Font.Normal
            Layout.fillWidth: true
            Accessible.ignored: true
        }
        Symbol {
            visible: root.checked
            name: "check-lg"
            color: Theme.accent
        }
    }
}
