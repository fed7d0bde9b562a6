// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Screens

// The chat with one sender.
FocusScope {
    id: root
    required property ConversationView view

    ConversationBar {
        id: bar
        width: parent.width
        name: root.view.name
        face: root.view.face
        z: 1
        onBackTapped: root.view.back()
    }
    ListView {
        id: list
        anchors.top: bar.bottom
        anchors.bottom: input.top
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.columnWidth) - 2 * Theme.margin
        visible: count > 0
        focus: true
        topMargin: Theme.space4
        spacing: Theme.space4
        cacheBuffer: Theme.phoneHeight
        boundsBehavior: Flickable.StopAtBounds
        model: root.view.cards
        highlightFollowsCurrentItem: false
        onCountChanged: if (!activeFocus) currentIndex = count - 1
        Accessible.role: Accessible.List
        Accessible.name: "Messages"
        delegate: ChatMessageCard {
            width: ListView.view.width
            onExportTapped: entry => root.view.tapExport(entry)
        }
        footer: Column {
            width: list.width
            topPadding: chatBanner.height > 0 ? Theme.space4 : 0
            Loader {
                id: chatBanner
                width: parent.width * 0.75
                active: Ads.places !== null
                sourceComponent: AdBanner { banner: Ads.places.chatBanner(chatBanner) }
            }
            Item {
                objectName: "lastItem"
                width: 1
                height: Theme.space4
            }
        }

        NumberAnimation {
            id: toLastItem
            target: list
            property: "contentY"
            duration: Theme.travel
            easing.type: Easing.OutCubic
            onFinished: list.positionViewAtEnd()
        }
        Connections {
            target: root.view
            function onScrollToLastItem() {
                const from = list.contentY;
                list.positionViewAtEnd();
                toLastItem.from = from;
                toLastItem.to = list.contentY;
                toLastItem.restart();
            }
        }
    }
    KeepInSight { list: list }
    StateMessage {
        anchors.top: bar.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.columnWidth)
        height: root.view.emptyHeight(root.height)
        visible: list.count === 0
        title: "No messages here yet..."
        sentence: "Please wait a couple of minutes!"
    }
    AnchoredBanner {
        id: banner
        anchors.bottom: parent.bottom
        width: parent.width
    }
    Rectangle {
        id: input
        anchors.bottom: banner.top
        width: parent.width
        height: row.implicitHeight + 2 * Theme.space2
        color: Theme.bar

        Rectangle {
            width: parent.width
            height: Theme.hairline
            color: Theme.separator
        }
        RowLayout {
            id: row
            anchors.verticalCenter: parent.verticalCenter
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(parent.width, Theme.columnWidth) - 2 * Theme.margin
            spacing: Theme.space2

            InputField {
                text: root.view.messageText
                placeholderText: "Aa..."
                Layout.fillWidth: true
                onTextChanged: root.view.messageText = text
            }
            SymbolButton {
                symbol: "send"
                ink: Theme.accent
                mirrorsWithLayout: true
                text: "Send"
                onClicked: root.view.send()
            }
        }
    }
}
