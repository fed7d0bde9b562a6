// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import Orl.Screens

// The numbers that were chosen earlier.
Item {
    id: root
    required property HistoryView view
    signal backTapped

    TopBar {
        id: bar
        z: 1
        width: parent.width
        title: "History"
        onBackTapped: root.backTapped()
    }
    ListView {
        id: list
        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.columnWidth) - 2 * Theme.margin
        visible: count > 0
        focus: true
        activeFocusOnTab: true
        keyNavigationEnabled: true
        topMargin: Theme.space4
        bottomMargin: Theme.space4
        spacing: Theme.space2
        boundsBehavior: Flickable.StopAtBounds
        model: root.view.rows
        Accessible.role: Accessible.List
        Accessible.name: "History"
        delegate: HistoryCard {
            required property int index
            width: ListView.view.width
            activeFocusOnTab: false
            focusPolicy: Qt.NoFocus
            onClicked: root.view.tap(index)
        }
    }
    StateMessage {
        anchors.fill: parent
        anchors.topMargin: bar.height
        visible: list.count === 0
        drawing: "no_history"
        title: "No numbers yet"
        sentence: "The numbers that you choose are kept here, so that you find them again."
    }
    NumberChoiceDialogs {
        anchors.fill: parent
        choice: root.view.choice
    }
    Sheet {
        visible: root.view.currentNumberAlert
        title: root.view.currentNumberText
        yes: "OK"
        onAccepted: root.view.dismissCurrentNumberAlert()
        onRejected: root.view.dismissCurrentNumberAlert()
    }
}
