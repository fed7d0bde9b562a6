// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Screens

// One message with what can be lifted out of it.
Item {
    id: root
    property int gap: 0 // below the card; a list has no spacing where a row may take no room
    required property string sender
    required property string content
    required property string age
    required property list<string> exports
    required property avatarFace face
    signal exportTapped(string entry)

    implicitHeight: column.implicitHeight + 2 * Theme.space4 + gap
    activeFocusOnTab: ListView.isCurrentItem || activeFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: sender + ", " + age + ": " + content

    Card {
        anchors.fill: parent
        anchors.bottomMargin: root.gap
        FocusFrame {
            control: root
            cornerRadius: Theme.cardRadius
        }
    }
    ColumnLayout {
        id: column
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Theme.space4
        spacing: Theme.space2

        RowLayout {
            spacing: Theme.space3
            Avatar { face: root.face }
            GridLayout {
                columns: Theme.large ? 1 : 2
                columnSpacing: Theme.space2
                rowSpacing: 0
                Layout.fillWidth: true
                Words {
                    text: root.sender
                    font.pixelSize: Theme.rowSize
                    font.weight: Font.DemiBold
                    Layout.fillWidth: true
                }
                Words {
                    text: root.age
                    color: Theme.secondary
                    font.pixelSize: Theme.secondarySize
                }
            }
        }
        MessageWords {
            text: root.content
            Layout.fillWidth: true
        }
        ExportChips {
            exports: root.exports
            inTabOrder: root.ListView.isCurrentItem
            Layout.fillWidth: true
            Layout.topMargin: Theme.space1
            onTapped: entry => root.exportTapped(entry)
        }
    }
}
