import QtQuick

// The name of a continent; sticks to the top while its countries pass below.
Rectangle {
    id: root
    required property string section

    implicitHeight: label.implicitHeight + Theme.space4
    width: ListView.view ? ListView.view.width : implicitWidth
    color: Theme.bar

    Words {
        id: label
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Theme.margin
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.space1
        text: root.section
        color: Theme.secondary
        font.pixelSize: Theme.secondarySize
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }
}
