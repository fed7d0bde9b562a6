import QtQuick

// Text as it stands, beginning where lines of the layout begin.
Text {
    color: Theme.text
    font.pixelSize: Theme.textSize
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    horizontalAlignment: Text.AlignLeft
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
