import QtQuick

// A line symbol in one colour; decoration, so it has no accessible name.
Image {
    id: root
    property string name
    property color color: Theme.text
    property int side: Theme.symbol

    width: side
    height: side
    sourceSize { width: side; height: side }
    source: root.name === "" ? "" : "image://symbol/" + root.name + "/" + root.color
    Accessible.ignored: true
}
