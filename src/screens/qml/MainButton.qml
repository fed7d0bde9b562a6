import QtQuick

// The one thing to do on a screen or sheet.
Pressable {
    id: root
    leftPadding: Theme.space5
    rightPadding: Theme.space5
    topPadding: Theme.space3
    bottomPadding: Theme.space3
    background: Rectangle {
        radius: Theme.controlRadius
        color: root.down ? Qt.darker(Theme.accent, 1.15) : Theme.accent
    }
    contentItem: Text {
        text: root.text
        color: Theme.accentText
        font.pixelSize: Theme.rowSize
        font.weight: Font.DemiBold
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
