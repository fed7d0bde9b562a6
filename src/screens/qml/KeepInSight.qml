import QtQuick

// Scrolls a list to what the keyboard has reached in it.
Item {
    id: root
    required property Flickable list
    readonly property Item reached: Theme.keyboardInUse ? Window.activeFocusItem : null

    function isInList(item) {
        for (; item; item = item.parent) {
            if (item === list.contentItem) return true;
        }
        return false;
    }

    onReachedChanged: {
        if (!isInList(reached)) return;
        const top = reached.mapToItem(list.contentItem, 0, 0).y - Theme.space4;
        const bottom = top + reached.height + 2 * Theme.space4;
        if (top < list.contentY)
            list.contentY = Math.max(top, list.originY);
        else if (bottom > list.contentY + list.height)
            list.contentY = Math.min(bottom - list.height, top);
    }
}
