import QtQuick

// The one button of the identity tab: makes an identity, is busy, or clears the one that was made.
Pressable {
    id: root
    required property bool hasIdentity
    required property bool busy
    required property string title

    text: hasIdentity ? "Start over" : busy ? "Generating" : title
    enabled: !busy
    implicitHeight: Math.max(Theme.target + Theme.space2, implicitContentHeight + topPadding + bottomPadding)
    leftPadding: Theme.space4
    rightPadding: Theme.space4
    topPadding: Theme.space3
    bottomPadding: Theme.space3
    background: Rectangle {
        radius: Theme.controlRadius
        color: root.down ? Qt.darker(Theme.accent, 1.15) : Theme.accent
    }
    contentItem: Item {
        implicitHeight: Math.max(Theme.symbol, root.hasIdentity || root.busy ? 0 : label.implicitHeight)
        implicitWidth: label.implicitWidth

        Symbol {
            anchors.centerIn: parent
            visible: root.hasIdentity
            name: "arrow.triangle.2.circlepath"
            color: Theme.accentText
        }
        Spinner {
            anchors.centerIn: parent
            visible: root.busy && !root.hasIdentity
            color: Theme.accentText
        }
        Text {
            id: label
            anchors.centerIn: parent
            width: parent.width
            visible: !root.hasIdentity && !root.busy
            text: root.title
            color: Theme.accentText
            font.pixelSize: Theme.rowSize
            font.weight: Font.Bold
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            Accessible.ignored: true
        }
    }
}
