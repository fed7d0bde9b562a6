import QtQuick
import QtQuick.Layouts
import Orl.Screens

// What stands above the messages: the number, the layout selector and how old the messages are.
ColumnLayout {
    id: root
    required property HomeView view

    spacing: Theme.space3

    PhoneCard {
        countryName: root.view.countryName
        flag: root.view.flag
        number: root.view.number
        light: root.view.cardLight
        dark: root.view.cardDark
        veil: root.view.cardVeil
        ink: root.view.cardInk
        Layout.fillWidth: true
        Layout.topMargin: Theme.margin
        onClicked: root.view.copyNumber()
        onChangeTapped: root.view.openCountries()
    }
    GridLayout {
        columns: Theme.large ? 1 : 2
        rowSpacing: 0
        Layout.fillWidth: true
        Layout.bottomMargin: Theme.space3
        StackSelector {
            bySender: root.view.bySender
            onRecentTapped: root.view.showRecent()
            onSendersTapped: root.view.showSenders()
        }
        QuietButton {
            text: root.view.allowManualRefresh ? "Updated " + root.view.fetchAge : ""
            symbol: "arrow-clockwise"
            visible: root.view.state === HomeView.Messages && root.view.allowManualRefresh
            ink: Theme.secondary
            Accessible.name: text + ". Refresh"
            Layout.alignment: Theme.large ? Qt.AlignLeft : Qt.AlignRight
            Layout.maximumWidth: root.width
            onClicked: root.view.retry()
        }
    }
}
