import QtQuick
import QtQuick.Layouts

// One country of the catalogue.
Pressable {
    id: root
    required property string name
    required property string prefix
    required property string flag

    text: name
    padding: Theme.space3
    leftPadding: Theme.margin
    rightPadding: Theme.margin
    cornerRadius: Theme.cardRadius
    implicitHeight: Math.max(Theme.target + Theme.space2, implicitContentHeight + topPadding + bottomPadding)
    Accessible.description: prefix
    background: Card { down: root.down }
    contentItem: RowLayout {
        spacing: Theme.space3
        Flag { code: root.flag }
        Words {
            text: root.name
            font.pixelSize: Theme.rowSize
            Layout.fillWidth: true
            Accessible.ignored: true
        }
        Words {
            text: root.prefix
            color: Theme.secondary
            Accessible.ignored: true
        }
    }
}
