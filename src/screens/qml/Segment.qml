import QtQuick
import QtQuick.Layouts

// One choice of a segmented picker. The chosen one is raised and bold, so that colour is not the only sign.
Pressable {
    id: root
    required property string picture
    required property bool chosen
    required text

    checked: chosen
    leftPadding: Theme.space2
    rightPadding: Theme.space2
    implicitWidth: Theme.target // all of the same width
    Accessible.role: Accessible.RadioButton
    Accessible.checkable: true
    Accessible.checked: chosen
    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.margins: Theme.space1
            radius: Theme.controlRadius - Theme.space1
            color: root.down ? Theme.tint : Theme.raised
            visible: root.chosen || root.down
        }
    }
    contentItem: RowLayout {
        spacing: Theme.space1
        Item { Layout.fillWidth: true }
        Symbol {
            name: root.picture
            color: root.chosen ? Theme.accent : Theme.text
            side: Theme.smallSymbol
        }
        Text {
            text: root.text
            color: root.chosen ? Theme.accent : Theme.text
            font.pixelSize: Theme.textSize
            font.weight: root.chosen ? Font.DemiBold : Font.Normal
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
        Item { Layout.fillWidth: true }
    }
}
