import QtQuick
import QtQuick.Layouts
import Orl.Screens

// Says that something was copied, above all screens.
Rectangle {
    id: root
    required property CopyViewModel copyVM

    implicitWidth: row.implicitWidth + 2 * Theme.space5
    implicitHeight: row.implicitHeight + 2 * Theme.space4
    radius: Theme.cardRadius
    color: Theme.text
    opacity: copyVM.copied ? 1 : 0
    visible: opacity > 0
    scale: copyVM.copied || Theme.reducedMotion ? 1 : 0.9
    Accessible.role: Accessible.AlertMessage
    Accessible.name: "Copied to clipboard!"

    Behavior on opacity { NumberAnimation { duration: Theme.announcement; easing.type: Easing.OutQuint } }
    Behavior on scale { NumberAnimation { duration: Theme.announcement; easing.type: Easing.OutBack } }

    RowLayout {
        id: row
        anchors.centerIn: parent
        spacing: Theme.space3
        Symbol {
            name: "patch-check-fill"
            color: Theme.background
        }
        Words {
            text: "Copied to clipboard!"
            color: Theme.background
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }
    }
}
