// Delegates reach the row by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts

// What a field may be filled with, to be scrolled sideways. The mark at its ends points at the field.
RowLayout {
    id: root
    required property var entries
    required property string chosen
    required property string mark
    property string label
    signal tapped(string entry)

    spacing: Theme.space1
    Accessible.role: Accessible.List
    Accessible.name: label

    Symbol {
        name: root.mark
        color: Theme.secondary
        side: Theme.smallSymbol
    }
    ListView {
        id: list
        orientation: ListView.Horizontal
        implicitHeight: Theme.target
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: root.entries
        keyNavigationEnabled: false // Tab goes from one to the next
        Layout.fillWidth: true
        delegate: RowLayout {
            id: entry
            required property string modelData
            required property int index
            readonly property bool isChosen: modelData === root.chosen

            spacing: 0
            height: ListView.view.height

            Pressable {
                id: button
                text: entry.modelData
                leftPadding: Theme.space2
                rightPadding: Theme.space2
                frameInside: true
                Accessible.selected: entry.isChosen
                Accessible.checked: entry.isChosen
                onClicked: root.tapped(entry.modelData)
                onActiveFocusChanged: {
                    if (activeFocus) entry.ListView.view.positionViewAtIndex(entry.index, ListView.Contain);
                }
                background: Rectangle {
                    radius: Theme.controlRadius
                    color: button.down ? Theme.tint : Theme.clear
                }
                contentItem: Words {
                    text: entry.modelData
                    color: entry.isChosen ? Theme.accent : Theme.text
                    font.weight: entry.isChosen ? Font.Bold : Font.Normal
                    font.underline: entry.isChosen
                    wrapMode: Text.NoWrap
                    verticalAlignment: Text.AlignVCenter
                    Accessible.ignored: true
                }
            }
            Words {
                visible: entry.index < list.count - 1
                text: "|"
                color: Theme.secondary
                Accessible.ignored: true
            }
        }
    }
    Symbol {
        name: root.mark
        color: Theme.secondary
        side: Theme.smallSymbol
    }
}
