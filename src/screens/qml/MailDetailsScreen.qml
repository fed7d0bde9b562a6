// Components reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Screens

// One mail. Its page scrolls in itself; what is around it scrolls where the window is small.
FocusScope {
    id: root
    required property MailDetailsView view
    signal backTapped

    Flickable {
        id: scroll
        anchors.top: bar.bottom
        anchors.bottom: banner.top
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.columnWidth)
        contentHeight: Math.max(height, column.implicitHeight)
        // The picture that was tapped comes into sight with its whole height.
        readonly property bool showsPicture: root.view.imageToShowLink !== ""
        onContentHeightChanged: if (showsPicture) contentY = contentHeight - height
        onShowsPictureChanged: if (!showsPicture) contentY = 0
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        ColumnLayout {
            id: column
            width: scroll.width
            height: scroll.contentHeight
            spacing: Theme.space2

            MailHeader {
                sender: root.view.sender
                senderAddress: root.view.senderAddress
                time: root.view.time
                subject: root.view.subject
                Layout.fillWidth: true
                Layout.leftMargin: Theme.margin
                Layout.rightMargin: Theme.margin
                Layout.topMargin: Theme.space3
            }
            MailPrivacyRow {
                on: root.view.isPrivate
                withheldPictures: root.view.withheldPictures
                onToggled: root.view.togglePrivate()
                onPicturesWanted: root.view.showPictures()
                Layout.fillWidth: true
                Layout.leftMargin: Theme.margin
                Layout.rightMargin: Theme.margin
            }
            Rectangle {
                id: card
                color: Theme.mailGround
                radius: Theme.cardRadius
                implicitHeight: Theme.pageHeight
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.minimumHeight: Theme.pageHeight
                Layout.leftMargin: Theme.space2
                Layout.rightMargin: Theme.space2

                ColumnLayout {
                    anchors.centerIn: parent
                    spacing: Theme.space3
                    visible: !root.view.hasContent
                    Progress {
                        color: Theme.mailText
                        Layout.alignment: Qt.AlignHCenter
                    }
                    Words {
                        text: "Loading"
                        color: Theme.mailText
                        Layout.alignment: Qt.AlignHCenter
                    }
                }
                Loader {
                    id: web
                    property bool wanted: false
                    // Not by its type: that would bring the web engine in with this file.
                    readonly property var shown: item
                    readonly property bool failed: status === Loader.Error || (shown !== null && !shown.usable)
                    anchors.fill: parent
                    anchors.margins: Theme.space2
                    active: wanted
                    visible: root.view.hasContent && !failed
                    source: "MailWebView.qml"
                    Binding {
                        target: web.item
                        property: "withheld"
                        value: root.view.withheld
                        when: web.status === Loader.Ready
                    }
                    Binding {
                        target: web.item
                        property: "page"
                        value: root.view.page
                        when: web.status === Loader.Ready
                    }
                    Binding {
                        target: web.item
                        property: "below"
                        value: Math.max(0, card.y + web.y + web.height - scroll.contentY - scroll.height)
                        when: web.status === Loader.Ready
                    }
                    Connections {
                        target: root.view
                        function onMailChanged() { web.wanted = web.wanted || root.view.hasContent; }
                    }
                    Component.onCompleted: wanted = root.view.hasContent
                }
                // Where the web engine is not there, or cannot run, its words, and why it is words alone.
                Flickable {
                    anchors.fill: parent
                    anchors.margins: Theme.margin
                    visible: web.failed && root.view.hasContent
                    contentHeight: words.implicitHeight
                    clip: true
                    Column {
                        id: words
                        width: parent.width
                        spacing: Theme.space3
                        Words {
                            width: parent.width
                            text: web.status === Loader.Error ? "Words only: the web view that shows the page is not installed." : "Words only: the web view does not run as root. Start Orl as another user to see the page."
                            color: Theme.mailSecondary
                            font.pixelSize: Theme.secondarySize
                        }
                        Words {
                            width: parent.width
                            text: web.failed ? root.view.text : ""
                            color: Theme.mailText
                            horizontalAlignment: undefined // as the mail is written, not as the program is
                        }
                    }
                }
            }
            MailAttachments {
                attachments: root.view.attachments
                pictureLink: root.view.imageToShowLink
                onTapped: index => root.view.tapAttachment(index)
                Layout.fillWidth: true
                Layout.leftMargin: Theme.margin
                Layout.rightMargin: Theme.margin
                Layout.bottomMargin: Theme.space3
            }
        }
    }
    AnchoredBanner {
        id: banner
        anchors.bottom: parent.bottom
        width: parent.width
    }
    TopBar {
        id: bar
        width: parent.width
        title: root.view.subject
        mostLines: 1 // it stands below in full
        onBackTapped: root.backTapped()
    }
}
