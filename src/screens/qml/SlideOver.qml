import QtQuick

// A screen that is given `view` and slides in over another one from the end of the line, and is gone once it has slid out,
// unless it is kept for the next time.
Item {
    id: root
    required property bool shown
    required property string source
    required property var view
    property bool kept: false
    readonly property bool covers: shown && place === 0
    property real place: shown ? 0 : 1
    signal dismissed

    visible: place < 1
    enabled: shown

    Behavior on place { NumberAnimation { duration: Theme.travel; easing.type: Easing.OutCubic } }

    FocusScope {
        id: sheet
        width: root.width
        height: root.height
        x: (root.LayoutMirroring.enabled ? -1 : 1) * root.place * root.width
        focus: root.shown
        Keys.onEscapePressed: root.dismissed()
        Keys.onBackPressed: root.dismissed()

        Rectangle {
            anchors.fill: parent
            color: Theme.background
        }
        Loader {
            id: loader
            anchors.fill: parent
            focus: true
        }
        Connections {
            target: loader.item
            ignoreUnknownSignals: true
            function onBackTapped() { root.dismissed(); }
        }
    }
    // What it shows may have gone while it was still sliding out, and something else is to be shown.
    onViewChanged: {
        if (view && loader.status !== Loader.Null) loader.setSource("");
        settle();
    }
    onVisibleChanged: settle()
    onKeptChanged: settle()
    function settle() {
        if (!visible && !kept) loader.setSource("");
        else if (visible && loader.status === Loader.Null) loader.setSource(source, { view: root.view });
    }
    onShownChanged: if (shown) sheet.forceActiveFocus()
}
