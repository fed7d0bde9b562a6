import QtQuick
import QtQuick.Layouts

// A thing that may be done as well.
Pressable {
    id: root
    property color ink: Theme.accent
    property bool filled: false
    property string symbol

    leftPadding: Theme.space4
    rightPadding: Theme.space4
    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.topMargin: root.filled ? Theme.space1 : 0
            anchors.bottomMargin: anchors.topMargin
            radius: Theme.controlRadius
            color: Qt.alpha(root.ink, (root.down ? 0.16 : 0) + (root.filled ? 0.12 : 0))
        }
    }
    contentItem: RowLayout {
        spacing: Theme.space2
        Text {
            text: root.text
            color: root.ink
            font.pixelSize: Theme.textSize
            font.weight: Font.DemiBold
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            Layout.fillWidth: true
            Accessible.ignored: true
        }
        Symbol {
            visible: name !== ""
            name: root.symbol
            color: root.ink
        }
    }
}
