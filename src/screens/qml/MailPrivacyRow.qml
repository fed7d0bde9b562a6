import QtQuick
import QtQuick.Layouts

// The switch of private reading, and the pictures that it withholds.
ColumnLayout {
    id: root
    required property bool on
    required property int withheldPictures
    signal toggled
    signal picturesWanted

    spacing: 0

    Pressable {
        id: row
        text: "Private mode"
        checked: root.on
        scale: 1
        Layout.fillWidth: true
        Accessible.role: Accessible.CheckBox
        Accessible.checkable: true
        Accessible.checked: checked
        Accessible.description: "Nobody learns that you read this mail"
        onClicked: root.toggled()
        background: Rectangle {
            radius: Theme.controlRadius
            color: row.down ? Theme.tint : Theme.clear
        }
        contentItem: RowLayout {
            spacing: Theme.space3
            Symbol {
                name: "lock.shield"
                color: root.on ? Theme.accent : Theme.secondary
            }
            Words {
                text: "Private mode"
                Layout.fillWidth: true
                Accessible.ignored: true
            }
            Toggle { on: root.on }
        }
    }
    QuietButton {
        visible: root.withheldPictures > 0
        text: root.withheldPictures === 1 ? "Show 1 picture from the web" : "Show " + root.withheldPictures + " pictures from the web"
        filled: true
        Layout.fillWidth: true
        onClicked: root.picturesWanted()
    }
}
