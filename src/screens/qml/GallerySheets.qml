// Components reach the gallery by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Screens

// What stands over the window, lying here as part of the page; a button shows each where it belongs.
ColumnLayout {
    id: root
    required property Gallery gallery

    spacing: 0
    Layout.fillWidth: true

    GallerySection {
        title: "Sheets"
        Layout.fillWidth: true
        Card {
            implicitHeight: body.implicitHeight + 2 * Theme.space5
            Layout.fillWidth: true
            SheetBody {
                id: body
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.top: parent.top
                anchors.margins: Theme.space5
                title: "Leave without saving?"
                message: "What you wrote is kept until you close the program."
                yes: "Leave now"
                no: "Stay"
            }
        }
        QuietButton { text: "Show a question"; filled: true; Layout.fillWidth: true; onClicked: question.open() }
        QuietButton { text: "Show an alert"; filled: true; Layout.fillWidth: true; onClicked: alert.open() }
        QuietButton { text: "Show the limit alert"; filled: true; Layout.fillWidth: true; onClicked: limit.open() }
        QuietButton { text: "Show an alert with everything"; filled: true; Layout.fillWidth: true; onClicked: terms.open() }
        QuietButton { text: "Show the SSN card"; filled: true; Layout.fillWidth: true; onClicked: root.gallery.showSSN() }
        QuietButton { text: "Ask for a name"; filled: true; Layout.fillWidth: true; onClicked: nameAlert.shown = true }
        QuietButton { text: "Share"; filled: true; Layout.fillWidth: true; onClicked: root.gallery.share() }
        QuietButton { text: "Ask for a review"; filled: true; Layout.fillWidth: true; onClicked: root.gallery.askForReview() }
        QuietButton { text: "Ask for tracking"; filled: true; Layout.fillWidth: true; onClicked: root.gallery.askForTracking() }
        QuietButton { text: "Ask for consent"; filled: true; Layout.fillWidth: true; onClicked: root.gallery.askForConsent() }
    }
    Sheet {
        id: question
        title: "Leave without saving?"
        message: "What you wrote is kept until you close the program."
        yes: "Leave now"
        no: "Stay"
        onAccepted: close()
    }
    Sheet {
        id: alert
        centred: true
        title: "No internet connection"
        message: "Please check your internet and try again"
        yes: "OK"
        onAccepted: close()
    }
    CustomAlert { id: limit; alert: root.gallery.limitAlert }
    CustomAlert { id: terms; alert: root.gallery.termsAlert }
    Connections {
        target: root.gallery.limitAlert
        function onTapped() { limit.close(); }
        function onCancel() { limit.close(); }
    }
    Connections {
        target: root.gallery.termsAlert
        function onTapped() { terms.close(); }
        function onCancel() { terms.close(); }
    }
    SaveIdentityAlert {
        id: nameAlert
        shown: false
        name: ""
        onNameEdited: text => name = text
        onSaveTapped: {
            shown = name === "";
            saved.playing = !shown;
        }
        onCancelTapped: shown = false
    }
    Loader {
        active: root.gallery.shareSheet.isPresented
        sourceComponent: ShareSheetDialog { sheet: root.gallery.shareSheet }
    }
    Loader {
        active: root.gallery.reviewPrompt.isPresented
        sourceComponent: ReviewSheet { prompt: root.gallery.reviewPrompt }
    }
    Loader {
        active: root.gallery.tracking.isAsked
        sourceComponent: TrackingSheet { question: root.gallery.tracking; displayName: "Orl" }
    }
    Loader {
        active: root.gallery.consent.isAsked
        sourceComponent: ConsentSheet { question: root.gallery.consent }
    }
    Item {
        implicitHeight: 2 * Theme.appIcon
        Layout.fillWidth: true
        Layout.bottomMargin: Theme.space5
        SavedCheckMark { id: saved; playing: true }
    }
}
