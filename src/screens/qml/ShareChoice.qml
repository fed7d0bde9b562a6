import QtQuick
import QtQuick.Layouts

// One way to hand a text on.
Pressable {
    id: root
    property string symbol

    leftPadding: Theme.space4
    rightPadding: Theme.space4
    background: Rectangle {
        radius: Theme.controlRadius
        color: root.down ? Qt.alpha(Theme.accent, 0.24) : Theme.tint
    }
    contentItem: RowLayout {
        spacing: Theme.space3
        Symbol {
            name: root.symbol
            color: Theme.accent
        }
        Words {
            text: root.text
            font.pixelSize: Theme.rowSize
            font.weight: Font.DemiBold
            color: Theme.accent
            Layout.fillWidth: true
            Accessible.ignored: true
        }
    }
}
