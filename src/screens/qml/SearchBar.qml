import QtQuick

// The search field of the country lists, with a clear button while there is text.
InputField {
    id: root
    placeholderText: "Phone Code or Country..."
    inputMethodHints: Qt.ImhNoPredictiveText
    leadingRoom: Theme.space4 + Theme.symbol + Theme.space2
    trailingRoom: Theme.target
    Accessible.searchEdit: true

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
