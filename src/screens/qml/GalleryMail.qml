import QtQuick
import QtQuick.Layouts
import Orl.Screens

// What the inbox and a mail are made of.
ColumnLayout {
    id: root
    required property Gallery gallery

    spacing: 0
    Layout.fillWidth: true

    GallerySection {
        title: "Mail"
        Layout.fillWidth: true
        MailRow { unread: true; sender: "Harbourly Pay"; time: "09:05"; subject: "482913 is your code"; image: "envelope"; Layout.fillWidth: true }
        MailRow { unread: false; sender: "A sender whose name is longer than a phone is wide, and then some"; time: "23:59"; subject: "A subject that goes on and on until it needs another line, and on until it needs a third one, which it does not get"; image: "envelope.open.fill"; Layout.fillWidth: true }
        MailRow { unread: false; down: true; sender: "Pressed"; time: "00:00"; subject: ""; image: "envelope.open.fill"; Layout.fillWidth: true }
        MailAttachmentCard { name: "Harbour at noon.JPG"; size: "218 KB"; image: "photo"; Layout.fillWidth: true }
        MailAttachmentCard { name: "minutes of the meeting on the nineteenth of November, third draft.pdf"; size: "1.2 MB"; image: "doc"; Layout.fillWidth: true }
        MailSuggestions { entries: ["hello", "admin", "support", "help", "noreply"]; chosen: "admin"; mark: "arrowtriangle.down.fill"; label: "Suggestions"; Layout.fillWidth: true }
        MailEmpty { progress: true; Layout.fillWidth: true }
        MailEmpty { progress: false; Layout.fillWidth: true }
    }
}
