// Components reach the gallery by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Screens

// What is tapped, chosen and typed into.
ColumnLayout {
    id: root
    required property Gallery gallery

    spacing: 0
    Layout.fillWidth: true

    GallerySection {
        title: "Buttons"
        Layout.fillWidth: true
        MainButton { text: "Main"; Layout.fillWidth: true }
        MainButton { text: "Main, pressed"; down: true; Layout.fillWidth: true }
        QuietButton { text: "Quiet"; Layout.fillWidth: true }
        QuietButton { text: "Quiet, pressed"; down: true; Layout.fillWidth: true }
        QuietButton { text: "Quiet, filled"; filled: true; symbol: "send"; Layout.fillWidth: true }
        QuietAdButton { text: "Beside an ad"; Layout.fillWidth: true }
        Flow {
            spacing: Theme.space2
            Layout.fillWidth: true
            SymbolButton { symbol: "arrow-clockwise"; text: "Symbol" }
            SymbolButton { symbol: "arrow-clockwise"; text: "Symbol, pressed"; down: true }
            RoundButton { symbol: "checkmark"; text: "Round" }
            RoundButton { symbol: "plus"; text: "Round, disabled"; enabled: false }
        }
    }
    GallerySection {
        title: "Generate button"
        Layout.fillWidth: true
        GenerateButton { hasIdentity: false; busy: false; title: "Generate"; Layout.fillWidth: true }
        GenerateButton { hasIdentity: false; busy: true; title: ""; Layout.fillWidth: true }
        GenerateButton { hasIdentity: false; busy: false; title: "Failed! Change something & try again"; Layout.fillWidth: true }
        GenerateButton { hasIdentity: true; busy: false; title: ""; Layout.fillWidth: true }
    }
    GallerySection {
        title: "Choices"
        Layout.fillWidth: true
        SegmentedPicker {
            name: "Gender"
            options: root.gallery.genders
            onChosen: index => root.gallery.chooseGender(index)
            Layout.fillWidth: true
        }
        PickerRow {
            name: "Name Set"
            value: root.gallery.nameSets[14]
            Layout.fillWidth: true
            onClicked: sheet.pick("Name Set", root.gallery.nameSets, 14, () => {})
        }
        PickerOption { text: "Chosen"; checked: true; Layout.fillWidth: true }
        PickerOption { text: "Not chosen"; Layout.fillWidth: true }
        SettingsRow { title: "Switch, on"; image: "bell.badge"; leads: SettingsView.Nowhere; on: true; first: true; last: false; Layout.fillWidth: true }
        SettingsRow { title: "Switch, off"; image: "bell.slash"; leads: SettingsView.Nowhere; first: false; last: false; Layout.fillWidth: true; Layout.topMargin: -Theme.space3 }
        SettingsRow { title: "Leads deeper"; image: "lock.shield"; leads: SettingsView.Deeper; first: false; last: true; Layout.fillWidth: true; Layout.topMargin: -Theme.space3 }
    }
    GallerySection {
        title: "Text fields"
        Layout.fillWidth: true
        InputField { placeholderText: "Empty"; implicitWidth: 0; Layout.fillWidth: true }
        InputField { text: "Filled"; placeholderText: "Name"; implicitWidth: 0; Layout.fillWidth: true }
        InputField { text: "Being edited"; placeholderText: "Name"; isEditing: true; implicitWidth: 0; Layout.fillWidth: true }
        SearchBar { implicitWidth: 0; Layout.fillWidth: true }
        SearchBar { text: "Norway"; implicitWidth: 0; Layout.fillWidth: true }
    }
    PickerSheet { id: sheet }
}
