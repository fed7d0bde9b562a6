import QtQuick
import QtQuick.Templates as T

// The search field of the country lists, with a clear button while there is text.
T.TextField {
    id: root
    property bool isEditing: activeFocus

    placeholderText: "Phone Code or Country..."
    placeholderTextColor: Theme.secondary
    color: Theme.text
    selectionColor: Theme.accent
    selectedTextColor: Theme.accentText
    font.pixelSize: Theme.rowSize
    verticalAlignment: TextInput.AlignVCenter
    inputMethodHints: Qt.ImhNoPredictiveText
    implicitHeight: Math.max(Theme.target, contentHeight + 2 * Theme.space3)
    implicitWidth: Theme.leastWidth
    leftPadding: LayoutMirroring.enabled ? Theme.target : Theme.space4 + Theme.symbol + Theme.space2
    rightPadding: LayoutMirroring.enabled ? Theme.space4 + Theme.symbol + Theme.space2 : Theme.target
    Accessible.role: Accessible.EditableText
    Accessible.name: placeholderText
    Accessible.searchEdit: true

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
    Symbol {
        anchors.left: parent.left
        anchors.leftMargin: Theme.space4
        anchors.verticalCenter: parent.verticalCenter
        name: "search"
        color: Theme.secondary
    }
    SymbolButton {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: root.text !== ""
        symbol: "x-circle-fill"
        ink: Theme.secondary
        text: "Clear search"
        onClicked: {
            root.clear();
            root.forceActiveFocus();
        }
    }
}
