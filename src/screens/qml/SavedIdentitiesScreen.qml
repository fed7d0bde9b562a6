// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import Orl.Screens

// The identities that were kept, newest first.
FocusScope {
    id: root
    required property FakeGeneratorView view

    Words {
        id: heading
        anchors.top: parent.top
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.columnWidth) - 2 * Theme.margin
        topPadding: Theme.space5
        bottomPadding: Theme.space3
        text: "Your Saved Identities"
        font.pixelSize: Theme.headingSize
        font.weight: Font.Bold
        Accessible.role: Accessible.Heading
    }
    ListView {
        id: list
        anchors.top: heading.bottom
        anchors.bottom: ok.top
        anchors.bottomMargin: Theme.space2
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.columnWidth) - 2 * Theme.margin
        focus: true
        activeFocusOnTab: true
        keyNavigationEnabled: true
        spacing: Theme.space2
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: root.view.saved
        Accessible.role: Accessible.List
        Accessible.name: "Your Saved Identities"
        delegate: SavedIdentityMenuItem {
            required property int index
            width: ListView.view.width
            activeFocusOnTab: false
            focusPolicy: Qt.NoFocus
            onClicked: root.view.reopen(index)
        }
    }
    MainButton {
        id: ok
        anchors.bottom: banner.top
        anchors.bottomMargin: Theme.space2
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.columnWidth) - 2 * Theme.margin
        text: "OK"
        onClicked: root.view.closeSaved()
    }
    AnchoredBanner {
        id: banner
        anchors.bottom: parent.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        width: ok.width
    }
}
