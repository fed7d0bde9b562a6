import QtQuick

// A screen that failed, with what can be done about it.
StateMessage {
    property alias subtitle: root.sentence
    property alias btnTitle: root.button
    signal action

    id: root
    drawing: "angry_cat"
    onActed: action()
}
