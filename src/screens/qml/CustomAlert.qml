import QtQuick
import QtQuick.Layouts
import Orl.Screens

// An alert of our own, in the middle of the window. Escape means its second button.
SheetFrame {
    id: root
    required property CustomAlertView alert
    readonly property alertItem item: alert.item

    centred: true
    onClosed: root.alert.cancel()

    FocusScope {
        focus: true
        width: parent ? parent.width : 0
        implicitHeight: Math.max(column.implicitHeight, Theme.alertHeight - root.alert.rediuceHeightBy - 2 * root.padding)
        Accessible.role: Accessible.AlertMessage
        Accessible.name: root.item.title + ". " + root.item.subtitle.replace("\n", " ")

        ColumnLayout {
            id: column
            width: parent.width
            height: parent.height
            spacing: Theme.space3

            Rectangle {
                visible: root.item.image !== ""
                implicitWidth: 2 * root.alert.iconHeight
                implicitHeight: 2 * root.alert.iconHeight
                radius: height / 2
                color: Theme.tint
                Layout.alignment: Qt.AlignHCenter

                Image {
                    anchors.centerIn: parent
                    source: root.item.image === "" ? "" : "qrc:/orl/drawings/" + root.item.image + ".svg"
                    sourceSize { width: root.alert.iconHeight; height: root.alert.iconHeight }
                    Accessible.ignored: true
                }
            }
            Words {
                visible: text !== ""
                text: root.item.title
                font.pixelSize: Theme.headingSize
                font.weight: Font.DemiBold
                horizontalAlignment: Text.AlignHCenter
                Layout.fillWidth: true
            }
            Words {
                text: root.item.subtitle
                color: Theme.secondary
                horizontalAlignment: Text.AlignHCenter
                Layout.fillWidth: true
            }
            Words {
                visible: text !== ""
                text: root.item.title2
                font.pixelSize: Theme.rowSize
                font.weight: Font.DemiBold
                horizontalAlignment: Text.AlignHCenter
                Layout.fillWidth: true
            }
            Words {
                visible: text !== ""
                text: root.item.subtitle2
                color: Theme.secondary
                horizontalAlignment: Text.AlignHCenter
                Layout.fillWidth: true
            }
            QuietButton {
                visible: root.item.showsLegalLinks
                text: "Terms of Service"
                Layout.fillWidth: true
                onClicked: root.alert.openTermsOfService()
            }
            QuietButton {
                visible: root.item.showsLegalLinks
                text: "Privacy Policy"
                Layout.fillWidth: true
                onClicked: root.alert.openPrivacyPolicy()
            }
            Item { Layout.fillHeight: true }
            MainButton {
                text: root.item.mainButtonTitle
                focus: true
                Layout.fillWidth: true
                onClicked: root.alert.tapped()
            }
            QuietButton {
                visible: text !== ""
                text: root.item.cancelButtonTitle
                Layout.fillWidth: true
                onClicked: root.alert.cancel()
            }
        }
    }
}
