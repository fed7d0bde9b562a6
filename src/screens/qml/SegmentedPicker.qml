// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Screens

// A few choices side by side, each a picture and a word; one below the other where the words are large.
Rectangle {
    id: root
    required property string name
    required property KeyedListModel options
    signal chosen(int index)

    implicitHeight: segments.implicitHeight
    implicitWidth: segments.implicitWidth
    radius: Theme.controlRadius
    color: Theme.separator
    Accessible.role: Accessible.Grouping
    Accessible.name: name

    GridLayout {
        id: segments
        width: parent.width
        columns: Theme.large ? 1 : root.options.count
        columnSpacing: 0
        rowSpacing: 0

        Repeater {
            model: root.options
            Segment {
                required property int index
                Layout.fillWidth: true
                onClicked: root.chosen(index)
            }
        }
    }
}
