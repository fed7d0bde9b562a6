import QtQuick
import QtQuick.Layouts
import Orl.Screens

// What stands above the messages: the number, the layout selector and how old the messages are.
ColumnLayout {
    id: root
    required property HomeView view

    spacing: Theme.space3

    PhoneCard {
        view: root.view
        Layout.fillWidth: true
        Layout.topMargin: Theme.margin
    }
    GridLayout {
        columns: Theme.large ? 1 : 2
        rowSpacing: 0
        Layout.fillWidth: true
        Layout.bottomMargin: Theme.space3
        StackSelector { view: root.view }
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
