import QtQuick
import QtQuick.Templates as T

// Anything that can be tapped: shows the press at once and the keyboard's place. Return presses it like Space.
T.AbstractButton {
    id: root
    property int cornerRadius: Theme.controlRadius
    property alias frameInside: frame.inside

    // Whole, as a text that gets a part of a point less than it needs wraps, and is laid out with two lines.
    implicitWidth: Math.max(Theme.target, Math.ceil(implicitContentWidth) + leftPadding + rightPadding)
    implicitHeight: Math.max(Theme.target, implicitContentHeight + topPadding + bottomPadding)
    scale: down ? Theme.pressedScale : 1
    focusPolicy: Qt.StrongFocus
    font.pixelSize: Theme.textSize
    Accessible.name: text
    Accessible.onPressAction: root.clicked()
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    Behavior on scale { NumberAnimation { duration: Theme.motion / 2; easing.type: Easing.OutCubic } }

    FocusFrame {
        id: frame
        control: root
        cornerRadius: root.cornerRadius
        z: 1
    }
}
