import QtQuick
import QtQuick.Layouts

// One number of the history: where it is from, and how long ago it was chosen.
Pressable {
    id: root
    required property string flag
    required property string number
    required property string country
    required property string time

    text: number
    padding: Theme.space3
    leftPadding: Theme.space4
    rightPadding: Theme.space4
    cornerRadius: Theme.cardRadius
    Accessible.description: country + ", " + time
    background: Card { down: root.down }
    contentItem: RowLayout {
        spacing: Theme.space3
        Flag { code: root.flag }
        ColumnLayout {
            spacing: 0
            Words {
                text: root.number
                font.pixelSize: Theme.rowSize
                font.letterSpacing: Theme.numberSpacing
                font.weight: Font.DemiBold
                wrapMode: Text.NoWrap
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: Theme.captionSize / 2
                Layout.fillWidth: true
                Accessible.ignored: true
            }
            Words {
                text: root.country + " · " + root.time
                color: Theme.secondary
                font.pixelSize: Theme.secondarySize
                Layout.fillWidth: true
                Accessible.ignored: true
            }
        }
        Symbol {
            name: "chevron-right"
            mirror: root.mirrored
            color: Theme.secondary
            side: Theme.smallSymbol
        }
    }
}
