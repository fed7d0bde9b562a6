import QtQuick
import Orl.Screens

// A native card within a list: no room until there is an ad, which then comes in by a spring.
Item {
    id: root
    required property NativeAdCardView view

    implicitHeight: view.isLoaded ? layout.height + 2 * padding : 0
    opacity: view.isLoaded ? 1 : 0
    clip: true
    readonly property int padding: 10 // points

    Behavior on implicitHeight {
        enabled: !Theme.reducedMotion
        NumberAnimation { duration: 700; easing.type: Easing.OutQuart }
    }
    Behavior on opacity { NumberAnimation { duration: Theme.motion } }

    NativeAdLayout {
        id: layout
        focus: true
        y: root.padding
        width: root.width
        view: root.view.nativeAdView
    }
}
