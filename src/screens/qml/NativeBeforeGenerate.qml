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
    MainButton {
        width: parent.width
        enabled: root.ad.showGenerateBtn
        opacity: enabled ? 1 : 0.4
        text: root.ad.showGenerateBtn ? "Generate" : Math.ceil(root.ad.seconds).toString()
        onClicked: root.ad.tapGenerate()
    }
}
