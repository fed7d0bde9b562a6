// What a loader loads reaches the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import Orl.Screens

// A native card, or the banner that stands in for it, over the whole screen. While there is none, touches go
// to the screens below.
FocusScope {
    id: root
    required property NativeAdView_XMARK view

    Keys.onEscapePressed: if (view.showXMark) view.close()
    Keys.onBackPressed: if (view.showXMark) view.close()

    visible: opacity > 0
    opacity: 0
    states: State {
        name: "presented"
        when: root.view.isPresented
        PropertyChanges { root.opacity: 1 }
    }
    transitions: [
        Transition {
            to: "presented"
            NumberAnimation { property: "opacity"; duration: Theme.reducedMotion ? Theme.motion : root.arrival }
        },
        Transition { NumberAnimation { property: "opacity"; duration: Theme.motion } }
    ]
    readonly property int arrival: 1500

    Rectangle {
        anchors.fill: parent
        color: Theme.dim
        TapHandler { gesturePolicy: TapHandler.ReleaseWithinBounds }
        WheelHandler {}
        Accessible.ignored: true
    }
    Column {
        anchors.centerIn: parent
        width: root.view.cardWidth(root.width)
        spacing: Theme.space3

        Flickable {
            width: parent.width
            height: Math.min(contentHeight, root.height - close.height - parent.spacing - 2 * Theme.margin)
            contentHeight: card.height + banner.height
            boundsBehavior: Flickable.StopAtBounds
            clip: contentHeight > height

            NativeAdLayout {
                id: card
                width: parent.width
                view: root.view.nativeAdView
            }
            Loader {
                id: banner
                width: parent.width
                active: root.view.banner !== null
                sourceComponent: AdBanner { banner: root.view.banner }
            }
        }
        QuietAdButton {
            id: close
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.view.closeTitle
            symbol: "x-lg"
            opacity: root.view.showXMark ? 1 : 0
            enabled: root.view.showXMark
            focus: true
            onClicked: root.view.close()
        }
    }
}
