import QtQuick
import QtQuick.Layouts
import Orl.Screens

// What stands in a banner: the ad's icon and headline, and its picture where the banner is among other things.
Pressable {
    id: root
    required property adFace face
    property bool inlined: false

    text: "Ad: " + face.headline
    leftPadding: Theme.space3
    rightPadding: Theme.space3
    topPadding: Theme.space1
    bottomPadding: Theme.space1
    frameInside: true
    background: Card { down: root.down }
    contentItem: ColumnLayout {
        spacing: Theme.space2
        AdMedia {
            face: root.face
            visible: root.inlined && root.face.media !== ""
            Layout.fillWidth: true
            Layout.fillHeight: true
        }
        AdHeader {
            face: root.face
            compact: true
            Layout.fillWidth: true
        }
    }
}
