import QtQuick
import QtQuick.Layouts

// What stands where there is nothing to list: a drawing or something that moves, a title, a sentence, and what can be done.
Item {
    id: root
    property string drawing
    property string title
    property string sentence
    property string button
    property bool busy: false
    property bool typing: false
    property bool compact: Theme.large ///< where there is little room for what it says
    property bool crowded: false ///< hardly any: what can be done comes first, and nothing is drawn
    readonly property int side: compact ? Theme.smallDrawing : Theme.drawing
    signal acted

    implicitHeight: column.implicitHeight + 2 * (crowded ? 0 : compact ? Theme.space4 : Theme.space6)
    implicitWidth: Theme.leastWidth

    GridLayout {
        id: column
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.margin, Theme.leastWidth)
        columns: 1
        rowSpacing: root.crowded ? Theme.space1 : Theme.space3

        Image {
            visible: root.drawing !== "" && !root.crowded
            source: root.drawing === "" ? "" : "qrc:/orl/drawings/" + root.drawing + ".svg"
            sourceSize { width: root.side; height: root.side }
            Layout.alignment: Qt.AlignHCenter
            Accessible.ignored: true
        }
        MessageLoader {
            visible: root.typing
            Layout.alignment: Qt.AlignHCenter
        }
        Progress {
            visible: root.busy
            Layout.alignment: Qt.AlignHCenter
            Layout.bottomMargin: Theme.space2
        }
        Words {
            visible: text !== ""
            text: root.title
            font.pixelSize: Theme.headingSize
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignHCenter
            Layout.fillWidth: true
        }
        Words {
            visible: text !== ""
            text: root.sentence
            color: Theme.secondary
            horizontalAlignment: Text.AlignHCenter
            Layout.row: root.crowded ? 5 : 4
            Layout.column: 0
            Layout.fillWidth: true
        }
        MainButton {
            visible: text !== ""
            text: root.button
            Layout.row: root.crowded ? 4 : 5
            Layout.column: 0
            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: root.crowded ? 0 : Theme.space2
            onClicked: root.acted()
        }
    }
}
