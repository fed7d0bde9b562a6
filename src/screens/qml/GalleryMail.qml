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
        MailAddressCard { address: "riverheron17@harbour.example"; Layout.fillWidth: true }
        MailAddressCard { address: "a.name.that.is.longer.than.a.phone.is.wide.and.then.some@mail.of.the.harbour.example"; Layout.fillWidth: true }
        MailRow { unread: true; sender: "Harbourly Pay"; time: "09:05"; subject: "482913 is your code"; image: "envelope"; Layout.fillWidth: true }
        MailRow { unread: false; sender: "A sender whose name is longer than a phone is wide, and then some"; time: "23:59"; subject: "A subject that goes on and on until it needs another line, and on until it needs a third one, which it does not get"; image: "envelope.open.fill"; Layout.fillWidth: true }
        MailRow { unread: false; down: true; sender: "Pressed"; time: "00:00"; subject: ""; image: "envelope.open.fill"; Layout.fillWidth: true }
        MailHeader { sender: "Harbourly Pay"; senderAddress: "no-reply@harbourly.example"; time: "09:05"; subject: "482913 is your code"; Layout.fillWidth: true }
        MailHeader { sender: "A sender whose name is longer than a phone is wide, and then some"; senderAddress: "a.name.that.is.longer.than.a.phone.is.wide.and.then.some@mail.of.the.harbour.example"; time: "23:59"; subject: "A subject that goes on and on until it needs another line, and on until it needs a third one"; Layout.fillWidth: true }
        MailPrivacyRow { on: false; withheldPictures: 0; Layout.fillWidth: true }
        MailPrivacyRow { on: true; withheldPictures: 1; Layout.fillWidth: true }
        MailPrivacyRow { on: true; withheldPictures: 12; Layout.fillWidth: true }
        MailAttachments { attachments: root.gallery.attachments; pictureLink: ""; Layout.fillWidth: true }
        MailPictureView { link: ""; Layout.fillWidth: true }
        MailSuggestions { entries: ["hello", "admin", "support", "help", "noreply"]; chosen: "admin"; mark: "arrowtriangle.down.fill"; label: "Suggestions"; Layout.fillWidth: true }
        MailEmpty { progress: true; Layout.fillWidth: true }
        MailEmpty { progress: false; Layout.fillWidth: true }
    }
}
