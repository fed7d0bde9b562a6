import QtQuick
import QtQuick.Layouts

// The title of a screen that lies over another one, with the way back. Lists scroll under it.
Rectangle {
    id: root
    property string title
    property string flag
    property int mostLines: 3
    signal backTapped

    implicitHeight: row.implicitHeight + Theme.space2
    color: Theme.bar

    // On a wide window the title stands above the column, and the way back beside it.
    RowLayout {
        id: row
        anchors.centerIn: parent
        width: Math.min(parent.width, Theme.columnWidth + 2 * Theme.target) - 2 * Theme.space1
        spacing: Theme.space2

        SymbolButton {
            symbol: "chevron-left"
            mirrorsWithLayout: true
            text: "Back"
            onClicked: root.backTapped()
        }
        Flag {
            visible: root.flag !== ""
            code: root.flag
        }
        Words {
            text: root.title
            font.pixelSize: Theme.headingSize
            font.weight: Font.DemiBold
            maximumLineCount: root.mostLines
            elide: Text.ElideRight
            Layout.fillWidth: true
            Accessible.role: Accessible.Heading
        }
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Theme.hairline
        color: Theme.separator
    }
}
