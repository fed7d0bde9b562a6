import QtQuick
import QtQuick.Layouts
import Orl.Screens

// What the layouts of native cards have in common: the whole card is the button that opens the ad.
Pressable {
    id: root
    required property NativeAdView view
    default property alias rows: column.data

    focus: true // a row of a list is given the focus as a whole
    text: "Ad: " + view.face.headline
    width: parent ? parent.width : implicitWidth
    cornerRadius: Theme.cardRadius
    frameInside: true
    padding: Theme.space4
    leftPadding: padding
    rightPadding: padding
    topPadding: padding
    bottomPadding: padding
    onClicked: view.tap()
    background: Card { down: root.down }
    contentItem: column

    ColumnLayout {
        id: column
        spacing: Theme.space3
    }
}
