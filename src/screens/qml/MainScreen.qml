// Components reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import Orl.Screens

// The tabs. A page is built when it is first selected and stays.
FocusScope {
    id: root
    required property MainView view

    FocusScope {
        id: pages
        anchors.top: parent.top
        anchors.bottom: bar.top
        anchors.left: parent.left
        anchors.right: parent.right
        enabled: !card.covers
        focus: !card.covers

        TabPage {
            index: 0
            selectedIndex: root.view.selectedIndex
            file: "HomeScreen.qml"
            properties: ({ view: root.view.home })
        }
        TabPage {
            index: 1
            selectedIndex: root.view.selectedIndex
            file: "MailScreen.qml"
            properties: ({ view: root.view.mail })
        }
        TabPage {
            index: 2
            selectedIndex: root.view.selectedIndex
            file: "FakeGeneratorScreen.qml"
            properties: ({ view: root.view.fakeGenerator })
        }
        TabPage {
            index: 3
            selectedIndex: root.view.selectedIndex
            file: "SettingsScreen.qml"
            properties: ({ view: root.view.settings })
        }
    }
    TabBar {
        id: bar
        anchors.bottom: parent.bottom
        width: parent.width
        enabled: !card.covers
        tabs: root.view.tabs
        selectedIndex: root.view.selectedIndex
        onSelected: index => root.view.select(index)
    }
    // The native card above the tabs, which the user closes.
    Loader {
        id: card
        readonly property bool covers: item !== null && (item as NativeAdXMark).view.isPresented
        anchors.fill: parent
        active: Ads.places !== null && Ads.places.nativeAdEnabled
        focus: covers
        sourceComponent: NativeAdXMark { view: Ads.places.homeCard(card) }
    }
}
