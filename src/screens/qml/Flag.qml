import QtQuick

// A country's flag; its room is reserved while it is drawn.
Item {
    id: root
    property string code

    implicitWidth: Theme.flagWidth
    implicitHeight: Theme.flagHeight
    Accessible.ignored: true

    Image {
        anchors.fill: parent
        asynchronous: true
        sourceSize { width: Theme.flagWidth; height: Theme.flagHeight }
        source: root.code === "" ? "" : "image://flag/" + root.code
    }
    Rectangle {
        anchors.fill: parent
        radius: height / 6
        color: Theme.clear
        border.color: Qt.alpha(Theme.text, 0.15)
        border.width: Theme.hairline
    }
}
