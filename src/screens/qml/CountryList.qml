// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Screens

// What both country screens show: the search field in reach of the thumb, and the state that the screen is in.
ColumnLayout {
    id: root
    required property CountryScreen view
    property alias listHeader: list.header
    property bool hasSearchBar: true

    spacing: 0

    ListView {
        id: list
        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: root.view.state === CountryScreen.Sections
        clip: true
        focus: true
        activeFocusOnTab: true
        keyNavigationEnabled: true
        spacing: Theme.space2
        cacheBuffer: height
        boundsBehavior: Flickable.StopAtBounds
        model: root.view.countries
        section.property: "continent"
        section.delegate: SectionHeader {}
        section.labelPositioning: ViewSection.InlineLabels | ViewSection.CurrentLabelAtStart
        Accessible.role: Accessible.List
        Accessible.name: "Countries"
        delegate: CountryCard {
            required property int index
            width: ListView.view.width - 2 * Theme.margin
            x: Theme.margin
            activeFocusOnTab: false
            focusPolicy: Qt.NoFocus
            onClicked: root.view.tap(index)
        }
        footer: Item {
            width: list.width
            implicitHeight: nothing.visible ? nothing.implicitHeight : Theme.space4
            StateMessage {
                id: nothing
                width: parent.width
                visible: root.view.noResults
                drawing: "no_results"
                title: "Opps!"
                sentence: "No results found for:\n'" + root.view.searchTerm + "'"
            }
        }
    }
    NoInternet {
        visible: root.view.state === CountryScreen.NotConnected
        Layout.fillWidth: true
        Layout.fillHeight: true
        onActed: root.view.retry()
    }
    StateMessage {
        visible: root.view.state === CountryScreen.Fetching
        busy: true
        sentence: "Fetching Available Countries..."
        Layout.fillWidth: true
        Layout.fillHeight: true
    }
    Rectangle {
        color: Theme.background
        visible: root.hasSearchBar && root.view.state === CountryScreen.Sections
        implicitHeight: search.implicitHeight + 2 * Theme.space3
        Layout.fillWidth: true

        SearchBar {
            id: search
            anchors.fill: parent
            anchors.margins: Theme.space3
            anchors.leftMargin: Theme.margin
            anchors.rightMargin: Theme.margin
            text: root.view.searchTerm
            onTextChanged: root.view.searchTerm = text
            Keys.onEscapePressed: event => {
                event.accepted = text !== "";
                clear();
            }
            Keys.onUpPressed: list.forceActiveFocus()
        }
    }
}
