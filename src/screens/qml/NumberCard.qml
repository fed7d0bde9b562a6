import QtQuick
import QtQuick.Layouts

// One number of a country.
Pressable {
    id: root
    required property string number
    required property int bars
    property string flag

    text: number
    padding: Theme.space4
    cornerRadius: Theme.cardRadius
    background: Card { down: root.down }
    contentItem: RowLayout {
        spacing: Theme.space3
        Flag {
            visible: root.flag !== ""
            code: root.flag
        }
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
        SignalBars { bars: root.bars }
    }
}
