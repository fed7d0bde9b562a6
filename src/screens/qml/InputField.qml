import QtQuick
import QtQuick.Templates as T

// A line to type into, with a hint while it is empty. Its rooms are for what a user of it puts at its ends.
T.TextField {
    id: root
    property bool isEditing: activeFocus
    property int leadingRoom: Theme.space4
    property int trailingRoom: Theme.space4

    placeholderTextColor: Theme.secondary
    color: Theme.text
    selectionColor: Theme.accent
    selectedTextColor: Theme.accentText
    font.pixelSize: Theme.rowSize
    horizontalAlignment: TextInput.AlignLeft // where lines of the layout begin, as the hint does
    verticalAlignment: TextInput.AlignVCenter
    implicitHeight: Math.max(Theme.target, contentHeight + 2 * Theme.space3)
    implicitWidth: Theme.leastWidth
    leftPadding: LayoutMirroring.enabled ? trailingRoom : leadingRoom
    rightPadding: LayoutMirroring.enabled ? leadingRoom : trailingRoom
    Accessible.role: Accessible.EditableText
    Accessible.name: placeholderText

    background: Rectangle {
        radius: Theme.controlRadius
        color: Theme.raised
        border.color: root.isEditing ? Theme.accent : Theme.separator
        border.width: root.isEditing ? Theme.focusRing : Theme.hairline
    }

    Text {
        anchors.fill: parent
        anchors.leftMargin: root.leftPadding
        anchors.rightMargin: root.rightPadding
        LayoutMirroring.enabled: false
        horizontalAlignment: root.LayoutMirroring.enabled ? Text.AlignRight : Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        visible: root.text === "" && root.preeditText === ""
        text: root.placeholderText
        color: root.placeholderTextColor
        font: root.font
        elide: Text.ElideRight
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
}
