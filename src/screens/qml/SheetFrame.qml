import QtQuick
import QtQuick.Templates as T

// What sheets have in common: a card over the whole window, at its foot unless `centred`. Escape and a tap beside it
// close it. What does not fit scrolls.
T.Popup {
    id: root
    property bool centred: false
    default property Item body

    parent: T.Overlay.overlay
    modal: true
    focus: true
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? (centred ? Math.round((parent.height - height) / 2) : parent.height - height - Theme.margin) : 0
    width: Math.min(parent ? parent.width - 2 * Theme.margin : 0, Theme.phoneWidth)
    height: Math.min(implicitContentHeight + topPadding + bottomPadding, parent ? parent.height - 2 * Theme.margin : 0)
    padding: Theme.space5
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    Component.onCompleted: body.parent = (contentItem as Flickable).contentItem

    T.Overlay.modal: Rectangle { color: Theme.dim }
    enter: Transition { NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.motion } }
    exit: Transition { NumberAnimation { property: "opacity"; to: 0; duration: Theme.motion } }

    background: Rectangle {
        radius: Theme.cardRadius
        color: Theme.raised
        border.color: Theme.separator
        border.width: Theme.hairline
    }
    contentItem: Flickable {
        implicitHeight: contentHeight
        contentWidth: width
        contentHeight: root.body ? root.body.implicitHeight : 0
        interactive: contentHeight > height
        clip: interactive
        boundsBehavior: Flickable.StopAtBounds
    }
}
