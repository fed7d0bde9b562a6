import QtQuick
import QtQuick.Layouts

// A text of its own that is copied by a tap; says so with a tick.
Pressable {
    id: root
    required property string name
    required property string content
    property string symbol
    property bool large: false
    property bool copied: false

    text: name
    leftPadding: Theme.space2
    rightPadding: Theme.space2
    topPadding: Theme.space1
    bottomPadding: Theme.space1
    Accessible.description: copied ? content + ", copied" : content
    background: Rectangle {
        radius: Theme.controlRadius
        color: root.down ? Theme.tint : Theme.clear
    }
    contentItem: RowLayout {
        spacing: Theme.space2
        Symbol {
            visible: name !== ""
            name: root.symbol
            color: Theme.secondary
            Layout.alignment: Qt.AlignTop
        }
        Words {
            text: root.content
            font.pixelSize: root.large ? Theme.headingSize : Theme.textSize
            font.weight: root.large ? Font.Bold : Font.Normal
            wrapMode: Text.WrapAtWordBoundaryOrAnywhere
            Layout.fillWidth: true
            Accessible.ignored: true
        }
        Symbol {
            visible: root.copied
            name: "check-lg"
            color: Theme.good
        }
    }
}
