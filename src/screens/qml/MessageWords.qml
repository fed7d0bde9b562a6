import QtQuick

// Text that somebody sent: never markup, and beginning where lines of its own language begin.
Text {
    color: Theme.text
    font.pixelSize: Theme.textSize
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
