// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import Orl.Screens

// The numbers of a country.
Item {
    id: root
    required property PhoneNumberView view
    signal backTapped

    visible: view.state !== PhoneNumberView.Nothing

    TopBar {
        id: bar
        z: 1
        width: parent.width
        title: root.view.countryName
        flag: root.view.flag
        onBackTapped: root.backTapped()
    }
    ListView {
        id: list
        anchors.top: bar.bottom
        anchors.bottom: banner.top
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.columnWidth) - 2 * Theme.margin
        visible: root.view.state === PhoneNumberView.Numbers
        focus: true
        activeFocusOnTab: true
        keyNavigationEnabled: true
        topMargin: Theme.space4
        bottomMargin: Theme.space4
        spacing: Theme.space2
        boundsBehavior: Flickable.StopAtBounds
        model: root.view.phones
        Accessible.role: Accessible.List
        Accessible.name: "Numbers"
        delegate: NumberCard {
            required property int index
            width: ListView.view.width
            flag: root.view.flag
            activeFocusOnTab: false
            focusPolicy: Qt.NoFocus
            onClicked: root.view.tap(index)
        }
    }
    Column {
        anchors.top: bar.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        width: list.width
        visible: root.view.state === PhoneNumberView.Fetching
        StateMessage {
            width: parent.width
            busy: true
            sentence: "Fetching numbers..."
        }
        NumberSkeleton { width: parent.width }
    }
    Error404 {
        anchors.fill: parent
        anchors.topMargin: bar.height
        visible: root.view.state === PhoneNumberView.Failed
        title: "Unknow Error!"
        subtitle: "Please check your internet connection, or change the country and try again."
        btnTitle: "Try Again"
        onAction: root.view.load()
    }
    AnchoredBanner {
        id: banner
        anchors.bottom: parent.bottom
        width: parent.width
    }
    NumberChoiceDialogs {
        anchors.fill: parent
        choice: root.view.choice
    }
}
