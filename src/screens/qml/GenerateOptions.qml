// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Screens

// What kind of identity is wanted, as one card.
ColumnLayout {
    id: root
    required property KeyedListModel genders
    required property var nameSets ///< texts
    required property int nameSetIndex
    required property var countries
    required property int countryIndex
    signal genderChosen(int index)
    signal nameSetChosen(int index)
    signal countryChosen(int index)

    spacing: Theme.space4

    Words {
        objectName: "title_id"
        text: "Customize Your Identity"
        font.pixelSize: Theme.titleSize
        font.weight: Font.Bold
        Layout.fillWidth: true
        Accessible.role: Accessible.Heading
    }
    Card {
        implicitHeight: card.implicitHeight + 2 * Theme.space4
        Layout.fillWidth: true

        ColumnLayout {
            id: card
            anchors.fill: parent
            anchors.margins: Theme.space4
            spacing: Theme.space3

            Words {
                text: "Gender"
                color: Theme.secondary
                font.pixelSize: Theme.secondarySize
                Layout.fillWidth: true
            }
            SegmentedPicker {
                name: "Gender"
                options: root.genders
                onChosen: index => root.genderChosen(index)
                Layout.fillWidth: true
            }
            PickerRow {
                name: "Name Set"
                value: root.nameSets[root.nameSetIndex] ?? ""
                Layout.fillWidth: true
                onClicked: sheet.pick("Name Set", root.nameSets, root.nameSetIndex, index => root.nameSetChosen(index))
            }
            PickerRow {
                name: "Country"
                value: root.countries[root.countryIndex] ?? ""
                Layout.fillWidth: true
                onClicked: sheet.pick("Country", root.countries, root.countryIndex, index => root.countryChosen(index))
            }
        }
    }
    PickerSheet { id: sheet }
}
