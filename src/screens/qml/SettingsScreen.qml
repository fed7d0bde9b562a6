// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import Orl.Screens

// The fourth tab: grouped rows.
FocusScope {
    id: root
    required property SettingsView view

    ListView {
        id: list
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.columnWidth)
        visible: !history.covers && !countries.covers
        enabled: !root.view.historyPresented && !root.view.countriesPresented
        focus: true
        activeFocusOnTab: true
        keyNavigationEnabled: true
        boundsBehavior: Flickable.StopAtBounds
        cacheBuffer: 2 * Theme.phoneHeight
        model: root.view.rows
        section.property: "section"
        section.delegate: SectionHeader {
            color: Theme.clear
            implicitHeight: Theme.space6 + Theme.secondarySize
        }
        header: Words {
            x: Theme.margin
            width: list.width - 2 * Theme.margin
            topPadding: Theme.space5
            text: "Settings"
            font.pixelSize: Theme.titleSize
            font.weight: Font.Bold
            Accessible.role: Accessible.Heading
        }
        footer: Words {
            width: list.width
            topPadding: Theme.space5
            bottomPadding: Theme.space5
            text: root.view.footer
            color: Theme.secondary
            font.pixelSize: Theme.secondarySize
            horizontalAlignment: Text.AlignHCenter
        }
        Accessible.role: Accessible.List
        Accessible.name: "Settings"
        delegate: SettingsRow {
            required property int index
            x: Theme.margin
            width: ListView.view.width - 2 * Theme.margin
            on: root.view.messageSoundEnabled
            activeFocusOnTab: false
            focusPolicy: Qt.NoFocus
            onClicked: root.view.tap(index)
        }
    }
    SlideOver {
        id: history
        anchors.fill: parent
        shown: root.view.historyPresented
        onDismissed: root.view.closeHistory()
        source: "HistoryScreen.qml"
        view: root.view.history
    }
    SlideOver {
        id: countries
        anchors.fill: parent
        shown: root.view.countriesPresented
        onDismissed: root.view.closeCountries()
        source: "CountriesScreen.qml"
        view: root.view.countries
    }
    Loader {
        active: root.view.shareSheet.isPresented
        sourceComponent: ShareSheetDialog { sheet: root.view.shareSheet }
    }
}
