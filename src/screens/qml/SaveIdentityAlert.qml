import QtQuick
import QtQuick.Layouts

// Asks for the name under which an identity is kept. An empty name keeps it open, and what was typed stays until it is
// used.
SheetFrame {
    id: root
    required property bool shown
    required property string name
    signal nameEdited(string text)
    signal saveTapped
    signal cancelTapped

    visible: shown
    centred: true
    onClosed: if (shown) cancelTapped()
    onOpened: field.forceActiveFocus()

    FocusScope {
        focus: true
        width: parent ? parent.width : 0
        implicitHeight: column.implicitHeight
        Accessible.role: Accessible.Dialog
        Accessible.name: "Identity Name"

        // A tap beside the field ends the typing.
        TapHandler { onTapped: saveButton.forceActiveFocus() }

        ColumnLayout {
            id: column
            width: parent.width
            spacing: Theme.space3

            Words {
                text: "Identity Name"
                font.pixelSize: Theme.headingSize
                font.weight: Font.DemiBold
                horizontalAlignment: Text.AlignHCenter
                Layout.fillWidth: true
                Accessible.role: Accessible.Heading
            }
            InputField {
                id: field
                placeholderText: "Enter name"
                text: root.name
                focus: true
                implicitWidth: 0
                Layout.fillWidth: true
                onTextEdited: root.nameEdited(text)
                onAccepted: root.saveTapped()
            }
            GridLayout {
                columns: Theme.large ? 1 : 2
                columnSpacing: Theme.space2
                rowSpacing: Theme.space2
                Layout.fillWidth: true
                Layout.topMargin: Theme.space1
                QuietButton {
                    text: "Cancel"
                    filled: true
                    implicitWidth: 0
                    Layout.fillWidth: true
                    Layout.fillHeight: !Theme.large
                    onClicked: root.cancelTapped()
                }
                MainButton {
                    id: saveButton
                    text: "Save"
                    implicitWidth: 0
                    Layout.fillWidth: true
                    onClicked: root.saveTapped()
                }
            }
        }
    }
}
