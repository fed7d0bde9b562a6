import QtQuick
import QtQuick.Layouts

// One file that came with a mail.
Pressable {
    id: root
    required property string name
    required property string size
    required property string image

    text: name + ", " + size
    padding: Theme.space3
    cornerRadius: Theme.cardRadius
    background: Card { down: root.down }
    contentItem: RowLayout {
        spacing: Theme.space3
        Symbol {
            name: root.image
            color: Theme.accent
            side: Theme.symbol * 1.4
        }
        ColumnLayout {
            spacing: 0
            Words {
                text: root.name
                font.weight: Font.DemiBold
                wrapMode: Text.NoWrap
                elide: Text.ElideMiddle
                Layout.fillWidth: true
                Accessible.ignored: true
            }
            Words {
                text: root.size
                color: Theme.secondary
                font.pixelSize: Theme.secondarySize
                Layout.fillWidth: true
                Accessible.ignored: true
            }
        }
    }
}
