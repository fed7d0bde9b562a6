import QtQuick
import QtQuick.Layouts
import Orl.Screens

// Icon, headline and advertiser of an ad, and the chip that says what it is.
RowLayout {
    id: root
    required property adFace face
    property bool compact: false // for a strip: the headline alone

    spacing: Theme.space3

    Rectangle {
        implicitWidth: Theme.avatar
        implicitHeight: Theme.avatar
        radius: Theme.chipRadius
        color: Theme.tint
        visible: root.face.icon !== ""
        Layout.alignment: Qt.AlignTop
        AdPicture {
            anchors.fill: parent
            key: root.face.icon
        }
    }
    // No layout: one that gets its width late keeps the height of the lines that its words broke into before.
    Column {
        Layout.fillWidth: true
        Words {
            text: root.face.headline
            font.pixelSize: root.compact ? Theme.textSize : Theme.rowSize
            font.weight: Font.DemiBold
            maximumLineCount: root.compact ? 2 : 5
            elide: Text.ElideRight
            width: parent.width
        }
        Words {
            text: root.face.advertiser
            color: Theme.secondary
            font.pixelSize: Theme.secondarySize
            visible: text !== "" && !root.compact
            width: parent.width
        }
    }
    AdChip { Layout.alignment: Qt.AlignTop }
}
