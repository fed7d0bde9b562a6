import QtQuick
import QtQuick.Layouts
import Orl.Screens

// A banner: no room where it is off; where it is on, it slides in from below once an ad has loaded.
Item {
    id: root
    required property BannerBase banner
    readonly property bool inlined: banner.height > Theme.drawing

    implicitHeight: banner.isShown && banner.isLoaded ? Math.max(banner.height, ground.implicitHeight) : 0
    visible: implicitHeight > 0
    clip: true

    Pressable {
        id: ground
        readonly property adFace face: root.banner.face

        width: root.width
        height: root.height
        y: root.banner.isLoaded ? 0 : 100
        opacity: root.banner.isLoaded ? 1 : 0
        text: "Ad: " + face.headline
        leftPadding: Theme.space3
        rightPadding: Theme.space3
        topPadding: Theme.space1
        bottomPadding: Theme.space1
        visible: root.banner.hasFace
        onClicked: root.banner.tap()

        Behavior on y {
            enabled: !Theme.reducedMotion
            NumberAnimation { duration: 1200; easing.type: Easing.OutBack; easing.overshoot: 0.6 }
        }
        Behavior on opacity { NumberAnimation { duration: Theme.motion } }

        background: Card { down: ground.down }
        contentItem: ColumnLayout {
            spacing: Theme.space2
            AdMedia {
                face: ground.face
                visible: root.inlined && ground.face.media !== ""
                Layout.fillWidth: true
                Layout.fillHeight: true
            }
            AdHeader {
                face: ground.face
                compact: true
                Layout.fillWidth: true
            }
        }
    }
}
