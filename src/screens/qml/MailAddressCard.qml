import QtQuick
import QtQuick.Layouts

// The address of the inbox. The whole card copies it.
ColumnLayout {
    id: root
    required property string address
    signal tapped

    spacing: Theme.space2

    Words {
        text: "Your Temporary Email Address  "
        color: Theme.secondary
        Layout.fillWidth: true
        Layout.topMargin: Theme.space2
        Accessible.role: Accessible.Heading
    }
    Pressable {
        id: card
        text: "Copy address " + root.address
        padding: Theme.space4
        cornerRadius: Theme.cardRadius
        frameInside: true
        Layout.fillWidth: true
        Layout.bottomMargin: Theme.space3
        Accessible.description: "Tap to copy"
        onClicked: root.tapped()
        background: Card { down: card.down }
        contentItem: RowLayout {
            spacing: Theme.space3
            Symbol {
                name: "envelope.fill"
                color: Theme.accent
                side: Theme.symbol * 1.4
                visible: !Theme.large
            }
            ColumnLayout {
                spacing: Theme.space1
                Words {
                    text: root.address.replace("@", "@\u200B") // breaks there first
                    font.pixelSize: Theme.headingSize
                    font.weight: Font.Bold
                    maximumLineCount: 3
                    fontSizeMode: Text.Fit
                    minimumPixelSize: Theme.textSize
                    elide: Text.ElideRight
                    Layout.fillWidth: true
                    Accessible.ignored: true
                }
                Words {
                    text: "Tap to copy"
                    color: Theme.secondary
                    Layout.fillWidth: true
                    Accessible.ignored: true
                }
            }
        }
    }
}
