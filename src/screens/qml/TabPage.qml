import QtQuick

// The place of one tab's screen, which is made when it is first selected and stays.
Late {
    id: root
    required property int index
    required property int selectedIndex
    readonly property bool selected: index === selectedIndex
    property bool wasSelected: false

    anchors.fill: parent
    due: wasSelected
    visible: selected
    enabled: selected
    focus: selected
    onSelectedChanged: if (selected) wasSelected = true
}
