import QtQuick
import QtQuick.Layouts

// A code that copies itself or a link that opens, and says in place what it did.
Pressable {
    id: root
    required property string entry
    readonly property bool isLink: entry.includes("http")
    property bool done: false
    readonly property color ink: done ? Theme.good : Theme.accent

    text: entry
    cornerRadius: Theme.chipRadius
    leftPadding: Theme.space3
    rightPadding: Theme.space3
    Accessible.name: isLink ? "Open " + entry : "Copy " + entry
    Accessible.description: done && !isLink ? "Copied" : ""
    onClicked: {
        done = !isLink;
        shown.restart();
    }

    Timer {
        id: shown
        interval: Theme.wait
        onTriggered: root.done = false
    }

    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.topMargin: Theme.space1
            anchors.bottomMargin: Theme.space1
            radius: Theme.chipRadius
            color: Qt.alpha(root.ink, root.down ? 0.24 : 0.1)
        }
    }
    contentItem: RowLayout {
        spacing: Theme.space2
        Text {
            text: root.entry
            color: root.ink
            font.pixelSize: Theme.rowSize
            font.weight: Font.DemiBold
            font.letterSpacing: root.isLink ? 0 : Theme.numberSpacing
            textFormat: Text.PlainText
            elide: Text.ElideMiddle
            Layout.fillWidth: true
            Accessible.ignored: true
        }
        Symbol {
            name: root.done ? "check-lg" : root.isLink ? "box-arrow-up-right" : "files"
            color: root.ink
            side: Theme.smallSymbol
        }
    }
}
