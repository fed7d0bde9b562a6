import QtQuick
import Orl.Screens

// A banner: no room where it is off; where it is on, it slides in from below once an ad has loaded.
Item {
    id: root
    required property BannerBase banner

    implicitHeight: banner.isShown && banner.isLoaded ? Math.max(banner.height, strip.implicitHeight) : 0
    visible: implicitHeight > 0
    clip: true

    AdStrip {
        id: strip
        width: root.width
        height: root.height
        y: root.banner.isLoaded ? 0 : 100
        opacity: root.banner.isLoaded ? 1 : 0
        face: root.banner.face
        inlined: root.banner.height > Theme.drawing
        visible: root.banner.hasFace
        onClicked: root.banner.tap()

        Behavior on y {
            enabled: !Theme.reducedMotion
            NumberAnimation { duration: 1200; easing.type: Easing.OutBack; easing.overshoot: 0.6 }
        }
        Behavior on opacity { NumberAnimation { duration: Theme.motion } }
    }
}
