import QtQuick
import QtQuick.Layouts
import Orl.Screens

// The card on which an address is put together.
Flickable {
    id: root
    required property EmailBuilderCardView view

    contentHeight: column.implicitHeight + Theme.margin
    boundsBehavior: Flickable.StopAtBounds
    clip: true

    ColumnLayout {
        id: column
        width: root.width
        spacing: Theme.space3

        Card {
            implicitHeight: card.implicitHeight + 2 * Theme.space4
            Layout.fillWidth: true
            Layout.topMargin: Theme.space2

            TapHandler {
                onTapped: {
                    card.forceActiveFocus();
                    root.view.endEditing();
                }
            }
            ColumnLayout {
                id: card
                x: Theme.space4
                y: Theme.space4
                width: parent.width - 2 * Theme.space4
                spacing: Theme.space3

                Words {
                    text: "Create Your Temporary Email Address"
                    font.pixelSize: Theme.headingSize
                    font.weight: Font.DemiBold
                    Layout.fillWidth: true
                    Accessible.role: Accessible.Heading
                }
                MailSuggestions {
                    entries: root.view.loginSuggestions
                    chosen: root.view.login
                    mark: "arrowtriangle.down.fill"
                    label: "Names"
                    visible: opacity > 0
                    opacity: root.view.showLoginSuggestions ? 1 : 0
                    Layout.fillWidth: true
                    onTapped: entry => root.view.login = entry
                    Behavior on opacity { NumberAnimation { duration: Theme.motion } }
                }
                GridLayout {
                    // An address is read from left to right everywhere.
                    LayoutMirroring.enabled: false
                    LayoutMirroring.childrenInherit: true
                    columns: Theme.large ? 1 : 3
                    columnSpacing: Theme.space2
                    rowSpacing: Theme.space2
                    InputField {
                        id: login
                        objectName: "addressPart"
                        implicitWidth: 0
                        placeholderText: "name"
                        inputMethodHints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase | Qt.ImhEmailCharactersOnly
                        text: root.view.login
                        Accessible.name: "Name"
                        Layout.fillWidth: true
                        Layout.preferredWidth: 2
                        onTextEdited: root.view.login = text
                        onActiveFocusChanged: if (activeFocus) root.view.tapLogin()
                        onAccepted: root.view.create()
                        Connections {
                            target: root.view
                            function onAddressChanged() { if (login.text !== root.view.login) login.text = root.view.login; }
                        }
                    }
                    Words {
                        text: "@"
                        font.pixelSize: Theme.rowSize
                        Layout.alignment: Qt.AlignHCenter
                    }
                    InputField {
                        objectName: "addressPart"
                        implicitWidth: 0
                        enabled: false
                        opacity: 0.4
                        text: root.view.domain
                        Accessible.name: "Domain"
                        Layout.fillWidth: true
                        Layout.preferredWidth: 3
                        onTextChanged: ensureVisible(0)
                    }
                }
                MailSuggestions {
                    entries: root.view.domains
                    chosen: root.view.domain
                    mark: "arrowtriangle.up.fill"
                    label: "Domains"
                    Layout.fillWidth: true
                    onTapped: entry => root.view.domain = entry
                }
                MainButton {
                    text: "Create"
                    opacity: root.view.canCreate ? 1 : 0.4
                    Accessible.description: root.view.canCreate ? root.view.address : "A name is missing, or has letters that no address has"
                    Layout.fillWidth: true
                    onClicked: root.view.create()
                }
                QuietButton {
                    text: "Cancel"
                    Layout.fillWidth: true
                    onClicked: root.view.cancel()
                }
                BlackBannerPlace { Layout.fillWidth: true }
            }
        }
        NativeAdSlot {
            slot: "change_email_top"
            Layout.fillWidth: true
        }
    }
}
