// Delegates reach the bar by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import Orl.Screens

// The tabs at the foot of the window. Left and right go through them.
Rectangle {
    id: root
    required property KeyedListModel tabs
    required property int selectedIndex
    signal selected(int index)

    implicitHeight: row.implicitHeight
    color: Theme.card
    Accessible.role: Accessible.PageTabList
    Accessible.name: "Tabs"

    function go(step) {
        const next = (selectedIndex + step + tabs.count) % tabs.count;
        selected(next);
        buttons.itemAt(next).forceActiveFocus();
    }

    // All labels shrink alike until the widest one fits.
    property int made: 0
    readonly property real shrink: {
        let fits = 1;
        for (let i = 0; i < made; ++i) {
            const button = buttons.itemAt(i) as TabBarButton;
            if (button) fits = Math.min(fits, button.availableWidth / button.labelWidth);
        }
        return fits;
    }

    Row {
        id: row
        anchors.horizontalCenter: parent.horizontalCenter
        Repeater {
            id: buttons
            model: root.tabs
            onItemAdded: ++root.made
            onItemRemoved: --root.made
            TabBarButton {
                shrink: root.shrink
                required property int index
                width: Math.min(root.width, Theme.columnWidth) / root.tabs.count
                checked: index === root.selectedIndex
                activeFocusOnTab: checked || activeFocus
                onClicked: root.selected(index)
                Keys.onLeftPressed: root.go(root.LayoutMirroring.enabled ? 1 : -1)
                Keys.onRightPressed: root.go(root.LayoutMirroring.enabled ? -1 : 1)
            }
        }
    }
    Rectangle {
        width: parent.width
        height: Theme.hairline
        color: Theme.separator
    }
}
