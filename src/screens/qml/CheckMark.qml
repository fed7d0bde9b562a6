// What a loader loads reaches the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick

// "check_mark", played once; a still where motion is reduced. What plays it is loaded when it is first shown.
Item {
    id: root
    property bool playing: true
    property int side: Theme.drawing

    implicitWidth: side
    implicitHeight: side
    Accessible.ignored: true

    Image {
        anchors.fill: parent
        visible: Theme.reducedMotion || player.status === Loader.Error
        source: visible ? "qrc:/orl/drawings/check_mark.svg" : ""
        sourceSize { width: root.side; height: root.side }
    }
    Loader {
        id: player
        anchors.fill: parent
        active: root.playing && !Theme.reducedMotion
        source: "CheckMarkAnimation.qml"
    }
}
