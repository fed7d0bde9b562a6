// Components reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Screens

// The program's name while it starts.
FocusScope {
    id: root
    required property SplashView view

    opacity: view.hideContent ? 0 : 1
    Behavior on opacity { NumberAnimation { duration: root.view.fadeTime; easing.type: Easing.InOutQuad } }

    // Nothing behind it can be touched yet.
    MouseArea { anchors.fill: parent }
    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }
    ColumnLayout {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.margin, Theme.phoneWidth)
        spacing: Theme.space2

        Image {
            source: "qrc:/orl/drawings/app_png_icon.svg"
            sourceSize { width: Theme.appIcon; height: Theme.appIcon }
            Layout.alignment: Qt.AlignHCenter
            Layout.bottomMargin: Theme.space4
            Accessible.ignored: true
        }
        Words {
            text: root.view.displayName
            font.pixelSize: Theme.titleSize
            font.weight: Font.Bold
            horizontalAlignment: Text.AlignHCenter
            Layout.fillWidth: true
            Accessible.role: Accessible.Heading
        }
        Words {
            text: root.view.subtitle
            color: Theme.secondary
            font.pixelSize: Theme.rowSize
            horizontalAlignment: Text.AlignHCenter
            Layout.fillWidth: true
        }
    }
    Late {
        id: tracking
        anchors.fill: parent
        due: root.view.showIDFAAlert || opacity > 0
        focus: true
        opacity: root.view.showIDFAAlert ? 1 : 0
        file: "IDFAScreen.qml"
        properties: ({ displayName: root.view.displayName })
        Behavior on opacity { NumberAnimation { duration: Theme.motion } }
    }
    Connections {
        target: tracking.item
        ignoreUnknownSignals: true
        function onAction() { root.view.continueTapped(); }
    }
}
