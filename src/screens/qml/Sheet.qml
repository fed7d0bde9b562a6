import QtQuick
import QtQuick.Templates as T

// A question over the whole window, standing at its foot. Escape and a tap beside it mean no.
T.Popup {
    id: root
    property string title
    property string message
    property string yes
    property string no
    signal accepted
    signal rejected

    parent: T.Overlay.overlay
    modal: true
    focus: true
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? parent.height - height - Theme.margin : 0
    width: Math.min(parent ? parent.width - 2 * Theme.margin : 0, Theme.phoneWidth)
    height: implicitContentHeight + topPadding + bottomPadding
    padding: Theme.space5
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onClosed: root.rejected()

    T.Overlay.modal: Rectangle { color: Theme.dim }
    enter: Transition { NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.motion } }
    exit: Transition { NumberAnimation { property: "opacity"; to: 0; duration: Theme.motion } }

    background: Rectangle {
        radius: Theme.cardRadius
        color: Theme.raised
        border.color: Theme.separator
        border.width: Theme.hairline
    }
    contentItem: SheetBody {
        title: root.title
        message: root.message
        yes: root.yes
        no: root.no
        focus: true
        onAccepted: root.accepted()
        onRejected: root.close()
    }
}
