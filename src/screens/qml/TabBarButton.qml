import QtQuick

// One tab. The selected one has a filled symbol and a bold label, so that colour is not the only sign.
Pressable {
    id: root
    required property string label
    required property string image
    property real shrink: 1 ///< of the label
    readonly property real labelWidth: Math.max(1, metrics.advanceWidth) ///< at its full size, bold
    readonly property color ink: checked ? Theme.accent : Theme.secondary

    text: label
    topPadding: Theme.space2
    leftPadding: Theme.space1
    rightPadding: Theme.space1
    bottomPadding: Theme.space2
    Accessible.role: Accessible.PageTab
    Accessible.checked: checked
    Accessible.selected: checked

    TextMetrics {
        id: metrics
        text: root.label
        font.pixelSize: Theme.captionSize
        font.weight: Font.DemiBold
    }
    contentItem: Column {
        spacing: Theme.space1
        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: root.image
            color: root.ink
        }
        Text {
            width: parent.width
            text: root.label
            color: root.ink
            font.pixelSize: Math.max(1, Math.floor(Theme.captionSize * root.shrink))
            font.weight: root.checked ? Font.DemiBold : Font.Normal
            textFormat: Text.PlainText
            horizontalAlignment: Text.AlignHCenter
            Accessible.ignored: true
        }
    }
}
