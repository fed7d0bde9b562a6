import QtQuick
import QtQuick.Layouts
import Orl.Screens

// The messages of one sender in a row: who, the newest one, when, and how many are unread.
Card {
    id: root
    required property string name
    required property string content
    required property string time
    required property string unread
    required property avatarFace face

    implicitHeight: row.implicitHeight + 2 * Theme.space3
    Accessible.role: Accessible.ListItem
    Accessible.name: name + ", " + time + ": " + content
    Accessible.description: unread === "" ? "" : unread + " unread"

    RowLayout {
        id: row
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: Theme.space4
        anchors.rightMargin: Theme.space4
        spacing: Theme.space3

        Avatar { face: root.face }
        ColumnLayout {
            spacing: Theme.space1
            RowLayout {
                spacing: Theme.space2
                Words {
                    text: root.name
                    font.pixelSize: Theme.rowSize
                    font.weight: Font.DemiBold
                    elide: Text.ElideRight
                    wrapMode: Text.NoWrap
                    Layout.fillWidth: true
                }
                Words {
                    text: root.time
                    color: Theme.secondary
                    font.pixelSize: Theme.secondarySize
                }
            }
            RowLayout {
                spacing: Theme.space2
                MessageWords {
                    text: root.content
                    color: Theme.secondary
                    elide: Text.ElideRight
                    maximumLineCount: 2
                    Layout.fillWidth: true
                }
                Badge {
                    text: root.unread
                    visible: root.unread !== ""
                    Layout.alignment: Qt.AlignTop
                }
            }
        }
    }
}
