import QtQuick

// A small count.
Rectangle {
    property alias text: label.text

    implicitHeight: label.implicitHeight + Theme.space1
    implicitWidth: Math.max(implicitHeight, label.implicitWidth + Theme.space3)
    radius: height / 2
    color: Theme.accent
    Accessible.ignored: true

    Text {
        id: label
        anchors.centerIn: parent
        color: Theme.accentText
        font.pixelSize: Theme.secondarySize
        font.weight: Font.DemiBold
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
}
