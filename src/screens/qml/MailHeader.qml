import QtQuick
import QtQuick.Layouts

// Who wrote a mail, when and what about.
ColumnLayout {
    id: root
    required property string sender
    required property string senderAddress
    required property string time
    required property string subject

    spacing: Theme.space2

    RowLayout {
        spacing: Theme.space3
        Symbol {
            name: "person.crop.circle.fill"
            color: Theme.secondary
            side: Theme.avatar
        }
        ColumnLayout {
            spacing: 0
            Words {
                text: root.sender
                font.pixelSize: Theme.rowSize
                font.weight: Font.DemiBold
                maximumLineCount: 2
                elide: Text.ElideRight
                Layout.fillWidth: true
            }
            Words {
                text: root.senderAddress.replace("@", "@\u200B") // breaks there first
                color: Theme.secondary
                font.pixelSize: Theme.secondarySize
                maximumLineCount: 3
                elide: Text.ElideRight
                Layout.fillWidth: true
                Accessible.name: root.senderAddress
            }
        }
        Words {
            text: root.time
            color: Theme.secondary
            font.pixelSize: Theme.secondarySize
            wrapMode: Text.NoWrap
            Layout.alignment: Qt.AlignTop
        }
    }
    Rectangle {
        implicitHeight: Theme.hairline
        color: Theme.separator
        Layout.fillWidth: true
    }
    Words {
        text: "Subject:"
        color: Theme.secondary
        font.pixelSize: Theme.labelSize
        Layout.fillWidth: true
    }
    Words {
        text: root.subject
        maximumLineCount: 4
        elide: Text.ElideRight
        Layout.fillWidth: true
    }
    Rectangle {
        implicitHeight: Theme.hairline
        color: Theme.separator
        Layout.fillWidth: true
    }
}
