import QtQuick
import QtQuick.Layouts
import Orl.Screens

// Cards and rows of lists.
ColumnLayout {
    id: root
    required property Gallery gallery

    spacing: 0
    Layout.fillWidth: true

    GallerySection {
        title: "Numbers"
        Layout.fillWidth: true
        PhoneCard {
            countryName: "Norway"
            flag: "no"
            number: "+47 000 01 234"
            light: root.gallery.face.light
            dark: root.gallery.face.dark
            veil: root.gallery.face.veil
            ink: root.gallery.face.ink
            Layout.fillWidth: true
        }
        StackSelector { bySender: false }
        StackSelector { bySender: true }
        SectionHeader { section: "Europe"; Layout.fillWidth: true }
        CountryCard { name: "Norway"; prefix: "+47"; flag: "no"; Layout.fillWidth: true }
        NumberCard { number: "+47 000 01 234"; bars: 4; flag: "no"; Layout.fillWidth: true }
        HistoryCard { flag: "no"; number: "+47 000 01 234"; country: "Norway"; time: "yesterday"; Layout.fillWidth: true }
    }
    Item {
        implicitHeight: similar.implicitHeight
        Layout.fillWidth: true
        SimilarNumbers { id: similar; width: parent.width; numbers: root.gallery.numbers }
    }
    GallerySection {
        title: "Messages"
        Layout.fillWidth: true
        HomeState { shown: HomeView.Loading; nothingYet: false; Layout.fillWidth: true }
        HomeState { shown: HomeView.Loading; nothingYet: true; Layout.fillWidth: true }
        HomeState { shown: HomeView.Offline; nothingYet: false; Layout.fillWidth: true }
        ConversationBar { name: "Harbourly Pay"; face: root.gallery.face; Layout.fillWidth: true }
        ConversationBar { name: ""; face: root.gallery.face; Layout.fillWidth: true }
        Item {
            implicitHeight: message.implicitHeight
            Layout.fillWidth: true
            MessageCard {
                id: message
                width: parent.width
                sender: "Harbourly Pay"
                content: "482913 is your code. Or tap https://harbourly.example/v/8Xk2 now."
                age: "3 min. ago"
                exports: ["482913", "https://harbourly.example/v/8Xk2"]
                face: root.gallery.face
            }
        }
        SenderCard { name: "Harbourly Pay"; content: "482913 is your code."; time: "3 min. ago"; unseen: "2"; face: root.gallery.face; Layout.fillWidth: true }
        SenderCard { name: "Harbourly Pay"; content: "All are seen."; time: "yesterday"; unseen: ""; face: root.gallery.face; Layout.fillWidth: true }
        Item {
            implicitHeight: theirs.implicitHeight
            Layout.fillWidth: true
            ChatMessageCard { id: theirs; width: parent.width; content: "482913 is your code."; time: "3 min. ago"; exports: ["482913"]; mine: false }
        }
        Item {
            implicitHeight: ours.implicitHeight
            Layout.fillWidth: true
            Layout.bottomMargin: Theme.space5
            ChatMessageCard { id: ours; width: parent.width; content: "Is 12345 right?"; time: "now"; exports: []; mine: true }
        }
    }
}
