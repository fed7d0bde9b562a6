// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Screens

// What is known about a social security number: the verdict and five facts, all values at one left edge.
FocusScope {
    id: root
    required property SSNIsValidAlertView alert
    readonly property int captionWidth: {
        let widest = 0;
        for (let i = 0; i < facts.count; ++i)
            widest = Math.max(widest, facts.itemAt(i)?.titleWidth ?? 0);
        return widest;
    }

    implicitHeight: column.implicitHeight
    Accessible.role: Accessible.AlertMessage
    Accessible.name: root.alert.valid

    ColumnLayout {
        id: column
        width: parent.width
        spacing: Theme.space3

        CheckMark {
            side: Theme.appIcon
            playing: root.alert.isPresented
            Layout.alignment: Qt.AlignHCenter
        }
        Words {
            text: root.alert.valid
            horizontalAlignment: Text.AlignHCenter
            Layout.fillWidth: true
        }
        Repeater {
            id: facts
            model: root.alert.rows
            RowLayout {
                id: fact
                required property string title
                required property string content
                readonly property real titleWidth: Math.ceil(caption.implicitWidth) + 1
                spacing: Theme.space3
                Layout.fillWidth: true
                Words {
                    id: caption
                    text: fact.title
                    color: Theme.secondary
                    font.pixelSize: Theme.captionSize
                    Layout.preferredWidth: Math.min(root.captionWidth, root.width / 2)
                    Layout.alignment: Qt.AlignBaseline
                }
                Words {
                    text: fact.content
                    wrapMode: Text.WrapAtWordBoundaryOrAnywhere
                    Layout.fillWidth: true
                    Layout.alignment: Qt.AlignBaseline
                }
            }
        }
        MainButton {
            text: "DONE"
            focus: true
            Layout.fillWidth: true
            Layout.topMargin: Theme.space2
            onClicked: root.alert.done()
        }
    }
}
