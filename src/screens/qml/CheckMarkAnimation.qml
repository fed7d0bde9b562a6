import QtQuick
import Qt.labs.lottieqt

// A file of its own, so that nothing of the player is loaded ahead of the first animation.
Item {
    id: root

    LottieAnimation {
        id: animation
        anchors.centerIn: parent
        scale: root.width / Math.max(1, width)
        source: "qrc:/orl/animations/check_mark.json"
        autoPlay: true
        loops: 1
    }
}
