import QtQuick
import QtQuick.Layouts

// One identity that was kept: its name, whose it is, and how long ago that was.
Pressable {
    id: root
    required property string picture
    required property string gender
    required property string name
    required property string fullName
    required property string time

    text: name
    padding: Theme.space3
    leftPadding: Theme.space4
    rightPadding: Theme.space4
    cornerRadius: Theme.cardRadius
    frameInside: true
    Accessible.description: fullName + ", " + time
    background: Card { down: root.down }
    contentItem: RowLayout {
        spacing: Theme.space3
        GenderPicture {
            picture: root.picture
            gender: root.gender
            Accessible.ignored: true
        }
        ColumnLayout {
            spacing: Theme.space1 / 2
            Words {
                text: root.name
                font.pixelSize: Theme.rowSize
                font.weight: Font.Bold
                wrapMode: Text.WrapAtWordBoundaryOrAnywhere
                maximumLineCount: 2
                elide: Text.ElideRight
                Layout.fillWidth: true
                Accessible.ignored: true
            }
            Words {
                text: root.fullName
                wrapMode: Text.WrapAtWordBoundaryOrAnywhere
                Layout.fillWidth: true
                Accessible.ignored: true
            }
            RowLayout {
                spacing: Theme.space1
                Symbol {
                    name: "clock.arrow.circlepath"
                    color: Theme.secondary
                    side: Theme.smallSymbol
                }
                Words {
                    text: root.time
                    color: Theme.secondary
                    font.pixelSize: Theme.secondarySize
                    Layout.fillWidth: true
                    Accessible.ignored: true
                }
            }
        }
    }
}
