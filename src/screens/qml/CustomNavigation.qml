import QtQuick
import QtQuick.Layouts
import Orl.Screens

// A title above a hosted screen and a search field below it, in reach of the thumb, with a way out of the search.
FocusScope {
    id: root
    default property alias view: host.data
    property string placeHolder
    property string title
    property alias searchShown: foot.visible
    signal search(string text)
    signal cancel

    ColumnLayout {
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.columnWidth)
        spacing: 0

        Words {
            visible: text !== ""
            text: root.title
            font.pixelSize: Theme.titleSize
            font.weight: Font.Bold
            Layout.fillWidth: true
            Layout.margins: Theme.margin
            Layout.topMargin: Theme.space5
            Layout.bottomMargin: Theme.space1
            Accessible.role: Accessible.Heading
        }
        FocusScope {
            id: host
            focus: true
            Layout.fillWidth: true
            Layout.fillHeight: true
        }
        RowLayout {
            id: foot
            spacing: Theme.space2
            Layout.fillWidth: true
            Layout.margins: Theme.space3
            Layout.leftMargin: Theme.margin
            Layout.rightMargin: Theme.margin

            SearchBar {
                id: field
                placeholderText: root.placeHolder
                onTextChanged: root.search(text)
                Layout.fillWidth: true
                Keys.onEscapePressed: event => {
                    event.accepted = text !== "" || activeFocus;
                    canceller.clicked();
                }
                Keys.onUpPressed: host.forceActiveFocus()
            }
            QuietButton {
                id: canceller
                visible: field.text !== ""
                text: "Cancel"
                onClicked: {
                    field.clear();
                    root.cancel();
                    host.forceActiveFocus();
                }
            }
        }
    }
}
