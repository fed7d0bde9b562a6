import QtQuick
import Orl.Screens

// A screen with another one that slides over it from the end of the line and is dragged away from anywhere.
FocusScope {
    id: root
    required property FullSwipePopHelper helper
    required property Component content
    default property alias mainContent: covered.data
    readonly property int direction: LayoutMirroring.enabled ? -1 : 1
    property bool dragging: false

    Binding { target: root.helper; property: "width"; value: root.width }

    FocusScope {
        id: covered
        width: root.width
        height: root.height
        x: root.direction * root.helper.coveredOffset
        visible: cover.place > 0
        enabled: !root.helper.show
        focus: !root.helper.show
        Behavior on x {
            enabled: !root.dragging
            NumberAnimation { duration: Theme.travel; easing.type: Easing.OutCubic }
        }
    }
    FocusScope {
        id: cover
        property real place: root.helper.show ? root.helper.coveringOffset / Math.max(root.width, 1) : 1
        width: root.width
        height: root.height
        x: root.direction * place * root.width
        visible: place < 1
        enabled: root.helper.show
        focus: root.helper.show
        Keys.onEscapePressed: root.helper.show = false
        Keys.onBackPressed: root.helper.show = false
        Behavior on place {
            enabled: !root.dragging
            NumberAnimation { duration: Theme.travel; easing.type: Easing.OutCubic }
        }

        Rectangle {
            anchors.fill: parent
            color: Theme.background
        }
        Rectangle {
            anchors.right: root.direction > 0 ? parent.left : undefined
            anchors.left: root.direction < 0 ? parent.right : undefined
            width: Theme.hairline
            height: parent.height
            color: Theme.separator
        }
        Loader {
            id: loader
            anchors.fill: parent
            focus: true
            active: cover.visible || root.helper.show
            sourceComponent: root.content
        }
        DragHandler {
            id: drag
            target: null
            yAxis.enabled: false
            dragThreshold: root.helper.minimumDistance
            grabPermissions: PointerHandler.CanTakeOverFromAnything
            onActiveTranslationChanged: if (active) root.helper.drag(root.direction * activeTranslation.x)
            onActiveChanged: {
                root.dragging = active;
                if (!active) root.helper.endDrag();
            }
        }
    }
}
