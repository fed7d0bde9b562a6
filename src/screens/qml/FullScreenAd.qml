// Rows reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import Orl.Screens

// The ad over everything else. The whole picture opens it; the button above closes it, and so does Escape.
FocusScope {
    id: root
    required property FullScreenAdView view

    Accessible.role: Accessible.Dialog
    Accessible.name: "Ad: " + view.face.headline
    Keys.onEscapePressed: view.close()
    Keys.onBackPressed: view.close()

    Rectangle {
        anchors.fill: parent
        color: Theme.background
        TapHandler { gesturePolicy: TapHandler.ReleaseWithinBounds }
        WheelHandler {}
        Accessible.ignored: true
    }
    Item {
        id: bar
        width: parent.width
        height: Math.max(close.height, reward.implicitHeight) + 2 * Theme.space2

        Words {
            id: reward
            anchors.left: parent.left
            anchors.right: close.left
            anchors.margins: Theme.margin
            anchors.verticalCenter: parent.verticalCenter
            text: root.view.reward
            color: Theme.secondary
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        QuietAdButton {
            id: close
            anchors.right: parent.right
            anchors.margins: Theme.margin
            anchors.verticalCenter: parent.verticalCenter
            text: root.view.closeTitle
            symbol: "x-lg"
            focus: true
            onClicked: root.view.close()
        }
    }
    Flickable {
        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.columnWidth) - 2 * Theme.margin
        contentHeight: Math.max(card.implicitHeight, height)
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Pressable {
            id: card
            readonly property adFace face: root.view.face
            width: parent.width
            y: Math.max(0, (parent.height - height) / 2)
            text: "Ad: " + face.headline
            cornerRadius: Theme.cardRadius
            frameInside: true
            padding: Theme.space4
            leftPadding: padding
            rightPadding: padding
            topPadding: padding
            bottomPadding: padding
            background: Card { down: card.down }
            onClicked: root.view.tap()
            contentItem: Column {
                spacing: Theme.space3
                AdMedia {
                    // As high as its ad likes it, as far as the window has room.
                    width: parent.width
                    height: Math.min(width * 4 / 3, Math.max(root.height - bar.height - 4 * Theme.target, Theme.drawing))
                    face: card.face
                }
                AdHeader {
                    width: parent.width
                    face: card.face
                }
                Words {
                    width: parent.width
                    text: card.face.body
                    visible: text !== ""
                }
                AdFacts {
                    width: parent.width
                    face: card.face
                }
                AdAction {
                    width: parent.width
                    implicitHeight: Theme.target
                    face: card.face
                }
            }
        }
    }
}
