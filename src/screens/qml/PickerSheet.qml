// Delegates reach the sheet by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick

// A list of texts to choose one from, over the whole window. It opens where the chosen one is.
SheetFrame {
    id: root
    property string title
    property list<string> options
    property int current: -1
    property var choose: null

    function pick(what: string, texts: list<string>, chosen: int, then: var) {
        title = what;
        options = texts;
        current = chosen;
        choose = then;
        open();
        const row = rows.itemAt(chosen);
        const list = contentItem as Flickable;
        if (row) list.contentY = Math.max(0, Math.min(list.contentHeight - list.height, row.y - (list.height - row.height) / 2));
    }

    padding: Theme.space3

    Column {
        id: column
        width: parent ? parent.width : 0
        Accessible.role: Accessible.List
        Accessible.name: root.title

        Words {
            width: parent.width
            leftPadding: Theme.space3
            bottomPadding: Theme.space2
            topPadding: Theme.space2
            text: root.title
            font.pixelSize: Theme.headingSize
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        Repeater {
            id: rows
            model: root.options
            PickerOption {
                required property int index
                required property string modelData
                width: column.width
                text: modelData
                checked: index === root.current
                onClicked: {
                    root.close();
                    root.choose(index);
                }
            }
        }
    }
}
