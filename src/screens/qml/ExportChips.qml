// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts

// What was lifted out of a message: one chip for each code and link.
ColumnLayout {
    id: root
    required property list<string> exports
    property bool inTabOrder: true // a long list is gone through row by row
    signal tapped(string entry)

    visible: exports.length > 0
    spacing: Theme.space1

    Words {
        text: "Exported:"
        color: Theme.secondary
        font.pixelSize: Theme.secondarySize
    }
    // Made by hand: a Repeater in a card that the list drops while it is still making it complains of that.
    Flow {
        id: chips
        spacing: Theme.space2
        Layout.fillWidth: true
    }
    Component {
        id: chip
        ExportChip {
            width: Math.min(implicitWidth, root.width)
            activeFocusOnTab: root.inTabOrder || activeFocus
            onClicked: root.tapped(entry)
        }
    }
    onExportsChanged: fill()

    function fill() {
        for (let i = chips.children.length; i-- > 0;)
            chips.children[i].destroy();
        for (let i = 0; i < exports.length; ++i)
            chip.createObject(chips, { entry: exports[i] });
    }
}
