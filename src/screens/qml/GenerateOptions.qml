// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Screens

// What kind of identity is wanted, as one card.
ColumnLayout {
    id: root
    required property FakeGeneratorView view

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
                options: root.view.genders
                onChosen: index => root.view.chooseGender(index)
                Layout.fillWidth: true
            }
            PickerRow {
                name: "Name Set"
                value: root.view.nameSets[root.view.nameSetIndex] ?? ""
                Layout.fillWidth: true
                onClicked: sheet.pick("Name Set", root.view.nameSets, root.view.nameSetIndex, index => root.view.chooseNameSet(index))
            }
            PickerRow {
                name: "Country"
                value: root.view.countries[root.view.countryIndex] ?? ""
                Layout.fillWidth: true
                onClicked: sheet.pick("Country", root.view.countries, root.view.countryIndex, index => root.view.chooseCountry(index))
            }
        }
    }
    PickerSheet { id: sheet }
}
