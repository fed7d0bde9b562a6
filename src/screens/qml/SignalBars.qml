// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick

// Bars that rise in reading direction. They mean nothing, so they have no accessible name.
Row {
    id: root
    required property int bars

    readonly property int unit: Theme.symbol / 5
    spacing: unit / 2
    height: Theme.symbol
    Accessible.ignored: true

    Repeater {
        model: 5
        Rectangle {
            required property int index
            width: root.unit
            height: root.unit * (index + 1)
            y: root.height - height
            radius: width / 3
            color: index < root.bars ? Theme.good : Theme.separator
        }
    }
}
