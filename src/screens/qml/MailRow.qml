import QtQuick
import QtQuick.Layouts

// One mail of the inbox.
Pressable {
    id: root
    required property bool unread
    required property string sender
    required property string time
    required property string subject
    required property string image

    text: sender + ", " + time + ": " + subject
    padding: Theme.space3
    leftPadding: Theme.space2
    rightPadding: Theme.space2
    scale: 1
    frameInside: true
    Accessible.description: unread ? "Unread" : "Read"
    background: Item {
        Rectangle {
            anchors.fill: parent
            radius: Theme.controlRadius
            color: Theme.tint
            visible: root.down
        }
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: Theme.hairline
            color: Theme.separator
        }
    }
    contentItem: RowLayout {
        spacing: Theme.space3
        Item {
            implicitWidth: Theme.symbol + Theme.space2
            implicitHeight: Theme.symbol + Theme.space1
            Layout.alignment: Qt.AlignTop
            Symbol {
                anchors.centerIn: parent
                name: root.image
                color: root.unread ? Theme.text : Theme.secondary
            }
            Rectangle {
                anchors.right: parent.right
                anchors.top: parent.top
                width: Theme.space2 + Theme.hairline * 2
                height: width
                radius: width / 2
                color: Theme.bad
                border.color: Theme.background
                border.width: Theme.hairline
                visible: root.unread
            }
        }
        ColumnLayout {
            spacing: Theme.space1
            RowLayout {
                spacing: Theme.space2
                Words {
                    text: root.sender
                    font.pixelSize: Theme.rowSize
                    font.weight: root.unread ? Font.DemiBold : Font.Normal
                    wrapMode: Text.NoWrap
                    elide: Text.ElideRight
                    Layout.fillWidth: true
                    Accessible.ignored: true
                }
                Words {
                    text: root.time
                    color: Theme.secondary
                    font.pixelSize: Theme.secondarySize
                    wrapMode: Text.NoWrap
                    Accessible.ignored: true
                }
            }
            Words {
                text: root.subject
                color: Theme.secondary
                font.pixelSize: Theme.detailSize
                maximumLineCount: 2
                elide: Text.ElideRight
                Layout.fillWidth: true
                Accessible.ignored: true
            }
        }
    }
}
