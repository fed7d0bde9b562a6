import QtQuick
import Orl.Screens

// A native card that holds the button back until its seconds have passed.
Column {
    id: root
    required property NativeWithGenerateButton ad

    spacing: Theme.space2

    NativeAdCard {
        width: parent.width
        view: root.ad.card
    }
    CountDownView {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: !root.ad.showGenerateBtn
        seconds: root.ad.seconds
    }
    MainButton {
        width: parent.width
        visible: root.ad.showGenerateBtn
        text: "Generate"
        onClicked: root.ad.tapGenerate()
    }
}
