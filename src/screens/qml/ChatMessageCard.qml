// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Screens

// One message of a chat: a bubble with a tail on its sender's side, and what can be lifted out of it.
Item {
    id: root
    required property string content
    required property string time
    required property list<string> exports
    required property bool mine
    property real proxy: width // what a bubble may not fill
    signal exportTapped(string entry)

    readonly property real widest: Math.round(proxy * 0.82)
    readonly property bool atEnd: mine !== LayoutMirroring.enabled

    implicitHeight: column.implicitHeight
    activeFocusOnTab: ListView.isCurrentItem || activeFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: time === "" ? content : time + ": " + content

    ColumnLayout {
        id: column
        width: root.widest
        x: root.atEnd ? root.width - width : 0
        spacing: Theme.space1

        Rectangle {
            implicitWidth: Math.min(root.widest, words.implicitWidth + 2 * Theme.space4)
            implicitHeight: words.implicitHeight + 2 * Theme.space3
            radius: Theme.cardRadius
            color: root.mine ? Theme.accent : Theme.card
            border.color: Theme.separator
            border.width: root.mine ? 0 : Theme.hairline
            Layout.alignment: root.mine ? Qt.AlignRight : Qt.AlignLeft

            Rectangle {
                width: Theme.cardRadius
                height: Theme.cardRadius
                radius: Theme.space1 / 2
                color: parent.color
                border.color: parent.border.color
                border.width: parent.border.width
                anchors.bottom: parent.bottom
                x: root.atEnd ? parent.width - width : 0
            }
            Rectangle {
                anchors.fill: parent
                anchors.margins: parent.border.width
                radius: parent.radius - anchors.margins
                color: parent.color
            }
            FocusFrame {
                control: root
                cornerRadius: Theme.cardRadius
            }
            MessageWords {
                id: words
                anchors.fill: parent
                anchors.margins: Theme.space3
                anchors.leftMargin: Theme.space4
                anchors.rightMargin: Theme.space4
                text: root.content
                color: root.mine ? Theme.accentText : Theme.text
            }
        }
        Words {
            text: root.time
            visible: text !== ""
            color: Theme.secondary
            font.pixelSize: Theme.captionSize
            Layout.alignment: root.mine ? Qt.AlignRight : Qt.AlignLeft
            Layout.leftMargin: Theme.space2
            Layout.rightMargin: Theme.space2
        }
        ExportChips {
            exports: root.exports
            inTabOrder: root.ListView.isCurrentItem
            LayoutMirroring.enabled: root.atEnd
            LayoutMirroring.childrenInherit: true
            Layout.fillWidth: true
            onTapped: entry => root.exportTapped(entry)
        }
    }
}
