import QtQuick

// The ground of a card.
Rectangle {
    property bool down: false

    color: Theme.card
    radius: Theme.cardRadius
    border.color: Theme.separator
    border.width: Theme.hairline

    Rectangle {
        anchors.fill: parent
        radius: parent.radius
        color: Theme.tint
        visible: parent.down
    }
}
