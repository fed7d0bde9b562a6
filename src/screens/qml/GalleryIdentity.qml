// Components reach the gallery by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Screens

// What identities are shown with, and QR codes.
ColumnLayout {
    id: root
    required property Gallery gallery

    spacing: 0
    Layout.fillWidth: true

    GallerySection {
        title: "Choices of an identity"
        Layout.fillWidth: true
        GenerateOptions {
            id: options
            genders: root.gallery.genders
            nameSets: root.gallery.nameSets
            nameSetIndex: 0
            countries: ["Cyrillic, Serbia - Ћирилица, српски", "Latin, Serbia - Latin, Srbija"]
            countryIndex: 0
            onGenderChosen: index => root.gallery.chooseGender(index)
            onNameSetChosen: index => options.nameSetIndex = index
            onCountryChosen: index => options.countryIndex = index
            Layout.fillWidth: true
        }
        GenerateBar { hasIdentity: false; hasSaved: false; canSave: false; busy: false; title: "Generate"; Layout.fillWidth: true }
        GenerateBar { hasIdentity: true; hasSaved: false; canSave: false; busy: true; title: ""; Layout.fillWidth: true }
        GenerateBar { hasIdentity: true; hasSaved: true; canSave: true; busy: false; title: ""; Layout.fillWidth: true }
    }
    GeneratedResults {
        view: root.gallery.results
        Layout.fillWidth: true
        Layout.topMargin: Theme.space5
    }
    GallerySection {
        title: "Identity"
        Layout.fillWidth: true
        CopyLine { name: "Full name"; content: "Élise Bérard"; large: true; Layout.fillWidth: true }
        CopyLine { name: "Address"; content: "12 rue du Moulin\n21040 Dijon"; symbol: "mappin.and.ellipse"; copied: true; Layout.fillWidth: true }
        SectionTitle { text: "Internet"; symbol: "globe"; Layout.fillWidth: true }
        IDExtraInfoCardView { title: "Email address"; content: "elise.berard42@example.net"; last: false; Layout.fillWidth: true }
        IDExtraInfoCardView { title: "Username"; content: "riverheron17"; first: false; last: false; copied: true; Layout.fillWidth: true; Layout.topMargin: -Theme.space3 }
        IDExtraInfoCardView { title: "Pressed"; content: "—"; first: false; down: true; Layout.fillWidth: true; Layout.topMargin: -Theme.space3 }
        SavedIdentityMenuItem { picture: "female"; gender: "Female"; name: "Work"; fullName: "Élise Bérard"; time: "2 hours ago"; Layout.fillWidth: true }
        SavedIdentityMenuItem { picture: "male"; gender: "Male"; name: "A name that is long enough to need more than one line of a narrow phone, and then some more"; fullName: "Ólafur Þorsteinsson"; time: "3 weeks ago"; Layout.fillWidth: true }
        Flow {
            id: labels
            spacing: Theme.space1
            Layout.fillWidth: true
            Repeater {
                model: ["Random", "Greek - Ελληνικά", "Cyrillic, Serbia - Ћирилица, српски"]
                ConditionLabel {
                    required property string modelData
                    text: modelData
                    mostWidth: labels.width
                }
            }
        }
        RowLayout {
            spacing: Theme.space3
            GenderPicture { picture: "male"; gender: "Male" }
            GenderPicture { picture: "female"; gender: "Female" }
        }
    }
    GallerySection {
        title: "Check mark"
        Layout.fillWidth: true
        CheckMark {
            id: checkMark
            Layout.alignment: Qt.AlignHCenter
        }
        QuietButton {
            text: "Play again"
            Layout.fillWidth: true
            onClicked: {
                checkMark.playing = false;
                checkMark.playing = true;
            }
        }
    }
    GallerySection {
        title: "QR codes"
        Layout.fillWidth: true
        Rectangle {
            implicitHeight: codes.implicitHeight + 2 * Theme.space4
            radius: Theme.cardRadius
            color: Theme.dark ? Theme.background : Theme.text
            border.color: Theme.separator
            border.width: Theme.hairline
            Layout.fillWidth: true
            Flow {
                id: codes
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.top: parent.top
                anchors.margins: Theme.space4
                spacing: Theme.space4
                QRCodeGeneratorView { content: "https://orl.example/"; color: Theme.dark ? Theme.text : Theme.card; size: 160; cornerRadius: Theme.cardRadius }
                QRCodeGeneratorView { content: "Ελένη 日本語"; color: Theme.dark ? Theme.text : Theme.card; size: 96; cornerRadius: Theme.controlRadius }
                QRCodeGeneratorView { content: ""; color: Theme.dark ? Theme.text : Theme.card; size: 96; cornerRadius: Theme.cardRadius }
                QRCodeGeneratorView { content: "x".repeat(3000); color: Theme.accent; size: 64; cornerRadius: Theme.controlRadius }
            }
        }
    }
}
