import QtQuick
import QtQuick.Layouts

// A row of an identity: what it is, and below it what is copied by a tap. Says so with a tick.
Pressable {
    id: root
    required property string title
    required property string content
    property bool first: true
    property bool last: true
    property bool copied: false

    text: title
    leftPadding: Theme.space4
    rightPadding: Theme.space4
    topPadding: Theme.space2
    bottomPadding: Theme.space2
    implicitHeight: Math.max(Theme.target + Theme.space2, implicitContentHeight + topPadding + bottomPadding)
    cornerRadius: first || last ? Theme.cardRadius : 0
    scale: 1
    Accessible.description: copied ? content + ", copied" : content

    // Rounded where the group ends; the rest of the shape lies outside of what is shown.
    background: Item {
        clip: true
        Card {
            anchors.fill: parent
            anchors.topMargin: root.first ? 0 : -Theme.cardRadius
            anchors.bottomMargin: root.last ? 0 : -Theme.cardRadius
            down: root.down
        }
        Rectangle {
            anchors.bottom: parent.bottom
            anchors.right: parent.right
            anchors.left: parent.left
            anchors.leftMargin: Theme.space4
            height: Theme.hairline
            color: Theme.separator
            visible: !root.last
        }
    }
    contentItem: RowLayout {
        spacing: Theme.space3
        ColumnLayout {
            spacing: Theme.space1 / 2
            Words {
                text: root.title
                color: Theme.secondary
                font.pixelSize: Theme.secondarySize
                Layout.fillWidth: true
                Accessible.ignored: true
            }
            Words {
                text: root.content
                font.pixelSize: Theme.rowSize
                wrapMode: Text.WrapAtWordBoundaryOrAnywhere
                Layout.fillWidth: true
                Accessible.ignored: true
            }
        }
        Symbol {
            name: root.copied ? "check-lg" : "files"
            color: root.copied ? Theme.good : Theme.secondary
            side: Theme.smallSymbol
        }
    }
}
