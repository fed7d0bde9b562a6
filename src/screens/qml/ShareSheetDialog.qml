import QtQuick
import QtQuick.Layouts
import Orl.Screens

// Where a text can go.
SheetFrame {
    id: root
    required property ShareSheet sheet

    visible: true
    onClosed: root.sheet.dismiss()

    FocusScope {
        focus: true
        width: parent ? parent.width : 0
        implicitHeight: column.implicitHeight
        Accessible.role: Accessible.Dialog
        Accessible.name: "Share App"

        ColumnLayout {
            id: column
            width: parent.width
            spacing: Theme.space2

            Words {
                text: root.sheet.text
                font.pixelSize: Theme.secondarySize
                color: Theme.secondary
                wrapMode: Text.WrapAtWordBoundaryOrAnywhere
                maximumLineCount: Theme.large ? 4 : 8
                elide: Text.ElideRight
                Layout.fillWidth: true
                Layout.bottomMargin: Theme.space2
            }
            ShareChoice {
                symbol: "files"
                text: "Copy"
                focus: true
                Layout.fillWidth: true
                onClicked: root.sheet.copyText()
            }
            ShareChoice {
                visible: root.sheet.canMail
                symbol: "ic_email"
                text: "Mail"
                Layout.fillWidth: true
                onClicked: root.sheet.mailText()
            }
            ShareChoice {
                symbol: "box-arrow-up-right"
                text: "Open"
                Layout.fillWidth: true
                onClicked: root.sheet.openLink()
            }
            QuietButton {
                text: "Cancel"
                Layout.fillWidth: true
                onClicked: root.close()
            }
        }
    }
}
