// Delegates reach the column by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Screens

// The files of a mail, and below them the picture that was tapped last.
ColumnLayout {
    id: root
    required property KeyedListModel attachments
    required property string pictureLink
    signal tapped(int index)

    spacing: Theme.space2

    Repeater {
        id: files
        model: root.attachments
        MailAttachmentCard {
            required property int index
            Layout.fillWidth: true
            onClicked: root.tapped(index)
        }
    }
    MailPictureView {
        visible: root.pictureLink !== ""
        link: root.pictureLink
        Layout.fillWidth: true
    }
}
