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
        Layout.fillWidth: true
        Layout.bottomMargin: Theme.space3
        StackSelector { view: root.view }
        Words {
            text: root.view.fetchAge === "" ? "" : "Updated " + root.view.fetchAge
            visible: root.view.state === HomeView.Messages
            color: Theme.secondary
            font.pixelSize: Theme.secondarySize
            horizontalAlignment: Theme.large ? Text.AlignLeft : Text.AlignRight
            Layout.fillWidth: true
        }
    }
}
