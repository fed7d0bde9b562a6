import QtQuick
import Orl.Screens

// The picture of an ad, or its film, played once.
Item {
    id: root
    required property adFace face
    property real frame: Theme.reducedMotion ? face.frames - 1 : 0
    signal filmEnded

    implicitHeight: Math.round(width * 9 / 16)
    visible: face.media !== ""
    clip: true

    AdPicture {
        id: strip
        // A frame covers the place; what is too much of it is cut off on both sides.
        readonly property real aspect: implicitHeight > 0 ? implicitWidth / root.face.frames / implicitHeight : 16 / 9
        readonly property real frameWidth: Math.max(root.width, root.height * aspect)

        key: root.face.media
        x: (root.width - frameWidth) / 2 - Math.floor(root.frame) * frameWidth
        y: (root.height - height) / 2
        width: frameWidth * root.face.frames
        height: frameWidth / aspect
        fillMode: Image.Stretch
    }
    NumberAnimation on frame {
        running: root.visible && root.face.hasVideoContent && !Theme.reducedMotion
        from: 0
        to: root.face.frames - 0.01
        duration: root.face.frames * root.face.frameMilliseconds
        onFinished: root.filmEnded()
    }
}
