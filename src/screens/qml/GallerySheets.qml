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
        QuietButton { text: "Show the SSN card"; filled: true; Layout.fillWidth: true; onClicked: root.gallery.showSSN() }
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
}
