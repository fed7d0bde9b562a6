// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Screens

// The mail tab: the card that makes an address, or the inbox of one. A mail slides in over it.
FocusScope {
    id: root
    required property TMailView view

    Item {
        id: tab
        anchors.fill: parent
        visible: !details.covers
        enabled: !root.view.showMailDetails

        RowLayout {
            id: bar
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(parent.width, Theme.columnWidth) - 2 * Theme.margin
            height: Math.max(implicitHeight, Theme.target) + Theme.space4

            Words {
                text: "Temp Mail"
                font.pixelSize: Theme.titleSize
                font.weight: Font.Bold
                wrapMode: Text.NoWrap
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: Theme.textSize
                Layout.fillWidth: true
                Accessible.role: Accessible.Heading
            }
            SymbolButton {
                visible: root.view.showShareButton
                symbol: "rectangle.and.pencil.and.ellipsis"
                ink: Theme.accent
                text: "Change address"
                onClicked: root.view.changeAddress()
            }
        }
        Loader {
            anchors.top: bar.bottom
            anchors.bottom: parent.bottom
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(parent.width, Theme.columnWidth) - 2 * Theme.margin
            visible: !root.view.isOffline
            focus: true
            sourceComponent: root.view.hasEmail ? inbox : builder
        }
        NoInternet {
            anchors.fill: parent
            anchors.topMargin: bar.height
            visible: root.view.isOffline
            onActed: root.view.retry()
        }
    }
    Component {
        id: builder
        MailAddressBuilder { view: root.view.builder }
    }
    Component {
        id: inbox
        ListView {
            id: list
            // Until the user scrolls, the top stays in sight whatever comes in.
            property bool atTop: true
            Timer {
                id: settle
                interval: 0
                onTriggered: if (list.atTop) list.positionViewAtBeginning()
            }
            onMovementStarted: atTop = false
            onMovementEnded: atTop = atYBeginning
            onCountChanged: settle.restart()
            onWidthChanged: settle.restart()
            // Tab goes from the head to the chosen row and on to the foot, the arrow keys from row to row.
            onCurrentItemChanged: {
                FocusOrder.putBefore(currentItem, footerItem);
                FocusOrder.putBefore(headerItem, currentItem);
            }
            focus: true
            keyNavigationEnabled: true
            clip: true
            cacheBuffer: Theme.phoneHeight
            boundsBehavior: Flickable.StopAtBounds
            model: root.view.mails
            header: MailAddressCard {
                width: list.width
                address: root.view.shownAddress
                onTapped: root.view.copyAddress()
                onHeightChanged: settle.restart()
            }
            footer: Column {
                width: list.width
                bottomPadding: Theme.margin
                MailEmpty {
                    width: parent.width
                    visible: list.count === 0
                    progress: root.view.progress
                }
                NativeAdSlot {
                    width: parent.width
                    slot: "tmail_results"
                }
            }
            Accessible.role: Accessible.List
            Accessible.name: "Mails"
            delegate: MailRow {
                required property int index
                width: ListView.view.width
                activeFocusOnTab: ListView.isCurrentItem || activeFocus
                focusPolicy: Qt.NoFocus
                onClicked: root.view.tapMail(index)
            }
        }
    }
    SlideOver {
        id: details
        anchors.fill: parent
        shown: root.view.showMailDetails
        kept: root.view.keepsReader
        onDismissed: root.view.closeMail()
        source: "MailDetailsScreen.qml"
        view: root.view.details
    }
    Sheet {
        visible: root.view.alert.shouldPresent
        title: root.view.alert.title
        message: root.view.alert.msg
        yes: "OK"
        onAccepted: root.view.dismissAlert()
        onRejected: root.view.dismissAlert()
    }
}
