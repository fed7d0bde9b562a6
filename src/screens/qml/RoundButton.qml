import QtQuick

// A small round button beside a large one. Where it can do nothing it is faint.
SymbolButton {
    id: root
    ink: Theme.accent
    opacity: enabled ? 1 : 0.4
    background: Rectangle {
        radius: Theme.target / 2
        color: root.down ? Theme.tint : Theme.raised
        border.color: Theme.separator
        border.width: Theme.hairline
    }
}
