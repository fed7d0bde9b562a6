import QtQuick
import QtQuick.Layouts

// What a sheet says and asks; the keyboard starts on its first button.
FocusScope {
    id: root
    property alias title: heading.text
    property alias message: sentence.text
    property alias yes: acceptButton.text
    property alias no: rejectButton.text
    signal accepted
    signal rejected

    implicitHeight: column.implicitHeight
    implicitWidth: column.implicitWidth
    Accessible.role: Accessible.Dialog
    Accessible.name: title.replace("\n", "")

    ColumnLayout {
        id: column
        width: parent.width
        spacing: Theme.space3

        Words {
            id: heading
            font.pixelSize: Theme.headingSize
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignHCenter
            Layout.fillWidth: true
        }
        Words {
            id: sentence
            visible: text !== ""
            color: Theme.secondary
            horizontalAlignment: Text.AlignHCenter
            Layout.fillWidth: true
            Layout.bottomMargin: Theme.space2
        }
        MainButton {
            id: acceptButton
            visible: text !== ""
            focus: visible
            Layout.fillWidth: true
            onClicked: root.accepted()
        }
        QuietButton {
            id: rejectButton
            visible: text !== ""
            focus: !acceptButton.visible
            Layout.fillWidth: true
            onClicked: root.rejected()
        }
    }
}
