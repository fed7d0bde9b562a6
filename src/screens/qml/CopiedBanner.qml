import QtQuick
import QtQuick.Layouts

// Says that something was copied, above all screens. On a narrow one, give it less than its implicit width.
Rectangle {
    id: root
    required property bool copied

    implicitWidth: row.implicitWidth + 2 * Theme.space5
    implicitHeight: row.implicitHeight + 2 * Theme.space4
    radius: Theme.cardRadius
    color: Theme.text
    opacity: copied ? 1 : 0
    visible: opacity > 0
    scale: copied || Theme.reducedMotion ? 1 : 0.9
    Accessible.role: Accessible.AlertMessage
    Accessible.name: "Copied to clipboard!"

    Behavior on opacity { NumberAnimation { duration: Theme.announcement; easing.type: Easing.OutQuint } }
    Behavior on scale { NumberAnimation { duration: Theme.announcement; easing.type: Easing.OutBack } }

    RowLayout {
        id: row
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.margins: Theme.space5
        spacing: Theme.space3
        Symbol {
            name: "patch-check-fill"
            color: Theme.background
        }
        Words {
            text: "Copied to clipboard!"
            color: Theme.background
            font.weight: Font.DemiBold
            Layout.fillWidth: true
            Accessible.ignored: true
        }
    }
}
