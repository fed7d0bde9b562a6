import QtQuick

// The place of one tab's screen.
Loader {
    id: root
    required property int index
    required property int selectedIndex
    readonly property bool selected: index === selectedIndex
    property bool wasSelected: false

    anchors.fill: parent
    active: wasSelected
    visible: selected
    enabled: selected
    focus: selected
    onSelectedChanged: if (selected) wasSelected = true
    Component.onCompleted: if (selected) wasSelected = true
}
