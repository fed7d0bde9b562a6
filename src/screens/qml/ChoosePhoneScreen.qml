import QtQuick
import Orl.Screens

// First run: a country, then a number.
Item {
    id: root
    required property ChoosePhoneView view
    required property ContentView content

    CustomNavigation {
        anchors.fill: parent
        visible: !numbers.covers
        enabled: !root.view.isPresented
        focus: true
        placeHolder: "Phone Code or Country..."
        title: "Select Country"
        searchShown: root.view.state === CountryScreen.Sections
        onSearch: text => root.content.search(text)
        onCancel: root.content.cancelSearch()

        CountryList {
            anchors.fill: parent
            focus: true
            view: root.view
            hasSearchBar: false
            listHeader: Words {
                x: Theme.margin
                width: ListView.view ? ListView.view.width - 2 * Theme.margin : 0
                bottomPadding: Theme.space2
                text: "No wories, you can change it later."
                color: Theme.secondary
            }
        }
    }
    SlideOver {
        id: numbers
        anchors.fill: parent
        shown: root.view.isPresented
        onDismissed: root.view.isPresented = false
        source: "PhoneNumberScreen.qml"
        view: root.view.numbers
    }
}
