import QtQuick
import QtQuick.Layouts

// Says why the platform is about to ask about tracking. Its button is the only way out.
FocusScope {
    id: root
    required property string displayName
    signal action

    Accessible.role: Accessible.Dialog
    Accessible.name: heading.text

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }
    Flickable {
        anchors.top: parent.top
        anchors.bottom: foot.top
        anchors.bottomMargin: Theme.space3
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.phoneWidth)
        contentHeight: Math.max(column.implicitHeight + 2 * Theme.space6, height)
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        ColumnLayout {
            id: column
            x: Theme.space5
            y: (parent.height - height) / 2
            width: parent.width - 2 * Theme.space5
            spacing: Theme.space4

            Image {
                source: "qrc:/orl/drawings/app_png_icon.svg"
                sourceSize { width: Theme.appIcon; height: Theme.appIcon }
                Layout.alignment: Qt.AlignHCenter
                Layout.bottomMargin: Theme.space3
                Accessible.ignored: true
            }
            Words {
                id: heading
                text: "'" + root.displayName + "' wants to stay free for you"
                font.pixelSize: Theme.titleSize
                font.weight: Font.Bold
                horizontalAlignment: Text.AlignHCenter
                Layout.fillWidth: true
                Accessible.role: Accessible.Heading
            }
            Words {
                text: "Ads help support our business. Tap “Allow” on the next screen to give permission to show ads that are more relevant to you."
                color: Theme.secondary
                font.pixelSize: Theme.rowSize
                horizontalAlignment: Text.AlignHCenter
                Layout.fillWidth: true
            }
        }
    }
    MainButton {
        id: foot
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.space5
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.phoneWidth) - 2 * Theme.space5
        text: "Continue"
        focus: true
        onClicked: root.action()
    }
}
