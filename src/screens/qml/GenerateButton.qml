import QtQuick

// The one button of the identity tab: makes an identity, is busy, or clears the one that was made.
Pressable {
    id: root
    required property bool hasIdentity
    required property bool busy
    required property string title

    text: hasIdentity ? "Start over" : busy ? "Generating" : title
    enabled: !busy
    implicitHeight: Math.max(Theme.target + Theme.space2, implicitContentHeight + topPadding + bottomPadding)
    leftPadding: Theme.space4
    rightPadding: Theme.space4
    topPadding: Theme.space3
    bottomPadding: Theme.space3
    background: Rectangle {
        radius: Theme.controlRadius
        color: root.down ? Qt.darker(Theme.accent, 1.15) : Theme.accent
    }
    contentItem: GenerateFace {
        hasIdentity: root.hasIdentity
        busy: root.busy
        title: root.title
    }
}
