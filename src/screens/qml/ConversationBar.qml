import QtQuick
import QtQuick.Layouts
import Orl.Screens

// Who the chat is with, and the way back.
Rectangle {
    id: root
    required property string name
    required property avatarFace face
    signal backTapped

    implicitHeight: row.implicitHeight + 2 * Theme.space2
    color: Theme.bar

    RowLayout {
        id: row
        anchors.verticalCenter: parent.verticalCenter
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Theme.space1
        anchors.rightMargin: Theme.margin
        spacing: Theme.space2

        SymbolButton {
            symbol: "chevron-left"
            mirrorsWithLayout: true
            text: "Back"
            onClicked: root.backTapped()
        }
        Avatar {
            visible: root.name !== ""
            face: root.face
        }
        ColumnLayout {
            visible: root.name !== ""
            spacing: 0
            Words {
                text: root.name
                font.pixelSize: Theme.rowSize
                font.weight: Font.DemiBold
                elide: Text.ElideRight
                wrapMode: Text.NoWrap
                Layout.fillWidth: true
                Accessible.role: Accessible.Heading
            }
            Words {
                text: "Online"
                color: Theme.good
                font.pixelSize: Theme.secondarySize
            }
        }
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Theme.hairline
        color: Theme.separator
    }
}
