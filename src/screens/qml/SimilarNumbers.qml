// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Screens

// The other numbers of the country, in two columns; in one where the text is large.
ColumnLayout {
    id: root
    required property HomeView view

    visible: view.similar.count > 0
    spacing: Theme.space2

    Words {
        text: "Simular Numbers"
        font.pixelSize: Theme.headingSize
        font.weight: Font.DemiBold
        Layout.fillWidth: true
        Layout.topMargin: Theme.space4
        Accessible.role: Accessible.Heading
    }
    GridLayout {
        columns: Theme.large ? 1 : 2
        columnSpacing: Theme.space2
        rowSpacing: Theme.space2
        Layout.fillWidth: true
        Repeater {
            model: root.view.similar
            NumberCard {
                required property int index
                padding: Theme.space3
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                onClicked: root.view.tapSimilar(index)
            }
        }
    }
}
