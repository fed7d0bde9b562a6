import QtQuick
import Orl.Screens

// Another country, then another number.
Item {
    id: root
    required property CountriesView view
    signal backTapped

    Item {
        anchors.fill: parent
        visible: !numbers.covers
        enabled: !root.view.isPresented

        TopBar {
            id: bar
            width: parent.width
            title: "Select a country"
            onBackTapped: root.backTapped()
        }
        CountryList {
            anchors.top: bar.bottom
            anchors.bottom: banner.top
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(parent.width, Theme.columnWidth)
            focus: true
            view: root.view
        }
        AnchoredBanner {
            id: banner
            anchors.bottom: parent.bottom
            width: parent.width
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
