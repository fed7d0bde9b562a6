import QtQuick

// A small label: something that was asked for.
Rectangle {
    id: root
    required property string text
    required property real mostWidth

    implicitWidth: Math.min(words.implicitWidth + Theme.space4, mostWidth)
    implicitHeight: words.implicitHeight + Theme.space2
    radius: Theme.chipRadius
    color: Theme.tint

    Words {
        id: words
        anchors.centerIn: parent
        width: root.mostWidth > 0 ? Math.min(implicitWidth, root.mostWidth - Theme.space4) : implicitWidth
        text: root.text
        font.pixelSize: Theme.secondarySize
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
    }
}
