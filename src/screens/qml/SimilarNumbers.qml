// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import Orl.Screens

// The other numbers of the country, in two columns; in one where the text is large. Positioners and no layouts: those of
// Qt 6.4 hold on to cards that are gone when the country changes.
Column {
    id: root
    required property KeyedListModel numbers
    signal tapped(int index)

    visible: numbers.count > 0
    topPadding: Theme.space4
    spacing: Theme.space2

    Words {
        text: "Simular Numbers"
        font.pixelSize: Theme.headingSize
        font.weight: Font.DemiBold
        width: root.width
        Accessible.role: Accessible.Heading
    }
    Grid {
        id: grid
        columns: Theme.large ? 1 : 2
        spacing: Theme.space2
        Repeater {
            model: root.numbers
            NumberCard {
                required property int index
                padding: Theme.space3
                width: (root.width - (grid.columns - 1) * grid.spacing) / grid.columns
                onClicked: root.tapped(index)
            }
        }
    }
}
