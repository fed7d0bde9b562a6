// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts

// What was lifted out of a message: one chip for each code and link.
ColumnLayout {
    id: root
    required property list<string> exports
    signal tapped(string entry)

    visible: exports.length > 0
    spacing: Theme.space1

    Words {
        text: "Exported:"
        color: Theme.secondary
        font.pixelSize: Theme.secondarySize
    }
    Flow {
        spacing: Theme.space2
        Layout.fillWidth: true
        Repeater {
            model: root.exports
            ExportChip {
                required property string modelData
                entry: modelData
                width: Math.min(implicitWidth, root.width)
                onClicked: root.tapped(entry)
            }
        }
    }
}
