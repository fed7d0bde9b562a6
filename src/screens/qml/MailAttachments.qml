// Delegates reach the column by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Screens

// The files of a mail, and below them the picture that was tapped last.
ColumnLayout {
    id: root
    required property MailDetailsView view

    spacing: Theme.space2

    Repeater {
        id: files
        model: root.view.attachments
        MailAttachmentCard {
            required property int index
            Layout.fillWidth: true
            onClicked: root.view.tapAttachment(index)
        }
    }
    MailPictureView {
        visible: root.view.imageToShowLink !== ""
        link: root.view.imageToShowLink
        Layout.fillWidth: true
    }
}
