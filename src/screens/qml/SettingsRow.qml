import QtQuick
import QtQuick.Layouts
import Orl.Screens

// One row of a group of settings: what it is, and a sign of where it leads. The row that leads nowhere is a switch.
Pressable {
    id: root
    required property string title
    required property string image
    required property int leads
    required property bool first
    required property bool last
    property bool on: false
    readonly property bool isSwitch: leads === SettingsView.Nowhere

    text: title
    padding: Theme.space2
    leftPadding: Theme.space3
    rightPadding: Theme.space4
    implicitHeight: Math.max(Theme.target + Theme.space2, implicitContentHeight + topPadding + bottomPadding)
    cornerRadius: first || last ? Theme.cardRadius : 0
    scale: 1
    checked: isSwitch && on
    Accessible.role: isSwitch ? Accessible.CheckBox : Accessible.Button
    Accessible.checkable: isSwitch
    Accessible.checked: checked
    Accessible.description: leads === SettingsView.Outside ? "Opens outside of the program" : ""

    // Rounded where the group ends; the rest of the shape lies outside of what is shown.
    background: Item {
        clip: true
        Card {
            anchors.fill: parent
            anchors.topMargin: root.first ? 0 : -Theme.cardRadius
            anchors.bottomMargin: root.last ? 0 : -Theme.cardRadius
            down: root.down
        }
        Rectangle {
            anchors.bottom: parent.bottom
            anchors.right: parent.right
            anchors.left: parent.left
            anchors.leftMargin: Theme.space3 + (Theme.large ? 0 : Theme.chip + Theme.space3)
            height: Theme.hairline
            color: Theme.separator
            visible: !root.last
        }
    }
    contentItem: RowLayout {
        spacing: Theme.space3
        Rectangle {
            visible: !Theme.large // the words need the room
            implicitWidth: Theme.chip
            implicitHeight: Theme.chip
            radius: Theme.chipRadius
            color: Theme.tint
            Symbol {
                anchors.centerIn: parent
                name: root.image
                color: Theme.accent
            }
        }
        Words {
            text: root.title
            font.pixelSize: Theme.rowSize
            Layout.fillWidth: true
            Accessible.ignored: true
        }
        Toggle {
            visible: root.isSwitch
            on: root.on
        }
        Symbol {
            visible: name !== ""
            name: root.leads === SettingsView.Deeper ? "chevron-right" : root.leads === SettingsView.Outside ? "box-arrow-up-right" : ""
            mirror: root.mirrored
            color: Theme.secondary
            side: Theme.smallSymbol
        }
    }
}
