import QtQuick

// Says of what it stands on that it is an ad.
Rectangle {
    implicitWidth: label.implicitWidth + 2 * Theme.space2
    implicitHeight: label.implicitHeight + Theme.space1
    radius: Theme.space1
    color: Theme.clear
    border.color: Theme.secondary
    border.width: Theme.hairline

    Words {
        id: label
        anchors.centerIn: parent
        text: "Ad"
        color: Theme.secondary
        font.pixelSize: Theme.captionSize
        font.weight: Font.DemiBold
        wrapMode: Text.NoWrap
    }
}
