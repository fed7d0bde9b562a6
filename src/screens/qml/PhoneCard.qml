import QtQuick
import QtQuick.Layouts
import Orl.Screens

// The current number. The whole card copies it; its one other button changes it.
Pressable {
    id: root
    required property string countryName
    required property string flag
    required property string number
    required property color light
    required property color dark
    required property color veil ///< over the two, so that the ink can be read
    required property color ink
    signal changeTapped

    text: "Copy number " + number
    cornerRadius: Theme.cardRadius
    padding: Theme.space4
    topPadding: Theme.space2
    Accessible.description: countryName + ". Tap to copy!"

    background: Rectangle {
        radius: Theme.cardRadius
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: root.light }
            GradientStop { position: 1; color: root.dark }
        }
        Rectangle {
            anchors.fill: parent
            radius: Theme.cardRadius
            color: root.veil
        }
    }
    contentItem: ColumnLayout {
        spacing: Theme.space1
        GridLayout {
            readonly property real oneRow: children[0].implicitWidth + children[1].implicitWidth
                + children[2].implicitWidth + 2 * columnSpacing
            columns: Theme.large && oneRow > root.availableWidth ? 2 : 3
            columnSpacing: Theme.space2
            rowSpacing: 0
            Flag { code: root.flag }
            Words {
                text: root.countryName
                color: root.ink
                font.pixelSize: Theme.rowSize
                font.weight: Font.DemiBold
                Layout.fillWidth: true
                Accessible.ignored: true
            }
            QuietButton {
                filled: true
                Layout.columnSpan: (parent as GridLayout).columns === 2 ? 2 : 1
                text: "change"
                ink: root.ink
                Accessible.name: "Change number"
                onClicked: root.changeTapped()
            }
        }
        Words {
            text: root.number
            color: root.ink
            // Large text: as large as it fits anyway, without the height of a size that does not.
            font.pixelSize: Theme.large ? Theme.headingSize : Theme.titleSize * 1.15
            font.weight: Font.Bold
            font.letterSpacing: Theme.numberSpacing
            wrapMode: Text.NoWrap
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: Theme.captionSize / 2
            Layout.fillWidth: true
            Accessible.ignored: true
        }
        Words {
            text: "Tap to copy!"
            color: root.ink
            font.pixelSize: Theme.large ? Theme.secondarySize : Theme.textSize
            Layout.fillWidth: true
            Accessible.ignored: true
        }
        RowLayout {
            spacing: Theme.space2
            Layout.topMargin: Theme.space2
            Symbol {
                name: "eye"
                color: root.ink
                side: Theme.smallSymbol
            }
            Words {
                text: "Anyone can read the messages of this number."
                color: root.ink
                font.pixelSize: Theme.secondarySize
                Layout.fillWidth: true
            }
        }
        BlackBannerPlace {
            Layout.fillWidth: true
            Layout.topMargin: Theme.space2
        }
    }
}
