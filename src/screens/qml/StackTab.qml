import QtQuick

// One of the two layouts. The chosen one is raised and bold, so that colour is not the only sign.
Pressable {
    id: root
    leftPadding: Theme.space4
    rightPadding: Theme.space4
    Accessible.role: Accessible.PageTab
    Accessible.checked: checked
    Accessible.selected: checked

    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.margins: Theme.space1
            radius: Theme.controlRadius - Theme.space1
            color: Theme.raised
            visible: root.checked
        }
    }
    contentItem: Text {
        text: root.text
        color: Theme.text
        font.pixelSize: Theme.textSize
        font.weight: root.checked ? Font.DemiBold : Font.Normal
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
