import QtQuick

// A picture that came with a mail. While it loads, and where it cannot be had, something moves in its place.
Item {
    id: root
    required property string link

    implicitHeight: picture.status === Image.Ready ? picture.height : Theme.drawing
    Accessible.role: Accessible.Graphic
    Accessible.name: picture.status === Image.Ready ? "Attached picture" : "Loading picture"

    Image {
        id: picture
        width: parent.width
        height: implicitWidth > 0 ? width * implicitHeight / implicitWidth : 0
        fillMode: Image.PreserveAspectFit
        cache: false // the provider keeps the last ones
        source: root.link === "" ? "" : "image://attachment/" + encodeURIComponent(root.link)
    }
    Progress {
        anchors.centerIn: parent
        visible: picture.status !== Image.Ready
    }
}
