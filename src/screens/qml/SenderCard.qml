import QtQuick
import QtQuick.Layouts
import Orl.Screens

// The messages of one sender in a row: who, the last one, when, and how many are unseen. Opens the conversation.
Pressable {
    id: root
    property int gap: 0 // below the card, as in MessageCard
    required property string name
    required property string content
    required property string time
    required property string unseen
    required property avatarFace face

    text: name + ", " + time + ": " + content
    activeFocusOnTab: ListView.isCurrentItem || activeFocus
    cornerRadius: Theme.cardRadius
    padding: Theme.space3
    bottomPadding: padding + gap
    bottomInset: gap
    leftPadding: Theme.space4
    rightPadding: Theme.space4
    Accessible.description: unseen === "" ? "" : unseen + " unread"
    background: Card { down: root.down }
    contentItem: RowLayout {
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
                    Accessible.ignored: true
                }
                Words {
                    text: root.time
                    color: Theme.secondary
                    font.pixelSize: Theme.secondarySize
                    Accessible.ignored: true
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
                    Accessible.ignored: true
                }
                Badge {
                    text: root.unseen
                    visible: root.unseen !== ""
                    Layout.alignment: Qt.AlignTop
                }
            }
        }
    }
}
