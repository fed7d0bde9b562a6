import QtQuick
import QtQuick.Layouts

// The heading of a group of rows, beside its symbol.
RowLayout {
    id: root
    required property string text
    property string symbol

    spacing: Theme.space2

    Symbol {
        visible: name !== ""
        name: root.symbol
        color: Theme.secondary
        side: Theme.smallSymbol
    }
    Words {
        text: root.text
        color: Theme.secondary
        font.pixelSize: Theme.secondarySize
        font.weight: Font.DemiBold
        Layout.fillWidth: true
        Accessible.role: Accessible.Heading
    }
}
