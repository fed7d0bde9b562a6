import QtQuick
import QtQuick.Layouts
import Orl.Screens

// The switch of private reading, and the pictures that it withholds.
ColumnLayout {
    id: root
    required property MailDetailsView view

    spacing: 0

    Pressable {
        id: row
        text: "Private mode"
        checked: root.view.isPrivate
        scale: 1
        Layout.fillWidth: true
        Accessible.role: Accessible.CheckBox
        Accessible.checkable: true
        Accessible.checked: checked
        Accessible.description: "Nobody learns that you read this mail"
        onClicked: root.view.togglePrivate()
        background: Rectangle {
            radius: Theme.controlRadius
            color: row.down ? Theme.tint : Theme.clear
        }
        contentItem: RowLayout {
            spacing: Theme.space3
            Symbol {
                name: "lock.shield"
                color: root.view.isPrivate ? Theme.accent : Theme.secondary
            }
            Words {
                text: "Private mode"
                Layout.fillWidth: true
                Accessible.ignored: true
            }
            Toggle { on: root.view.isPrivate }
        }
    }
    QuietButton {
        visible: root.view.withheldPictures > 0
        text: root.view.withheldPictures === 1 ? "Show 1 picture from the web" : "Show " + root.view.withheldPictures + " pictures from the web"
        filled: true
        Layout.fillWidth: true
        onClicked: root.view.showPictures()
    }
}
