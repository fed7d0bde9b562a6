import QtQuick

// What the generate button says: words, a spinner while it is busy, or the sign of a new beginning.
Item {
    id: root
    required property bool hasIdentity
    required property bool busy
    required property string title

    implicitHeight: Math.max(Theme.symbol, root.hasIdentity || root.busy ? 0 : label.implicitHeight)
    implicitWidth: label.implicitWidth

    Symbol {
        anchors.centerIn: parent
        visible: root.hasIdentity
        name: "arrow.triangle.2.circlepath"
        color: Theme.accentText
    }
    Spinner {
        anchors.centerIn: parent
        visible: root.busy && !root.hasIdentity
        color: Theme.accentText
    }
    Text {
        id: label
        anchors.centerIn: parent
        width: parent.width
        visible: !root.hasIdentity && !root.busy
        text: root.title
        color: Theme.accentText
        font.pixelSize: Theme.rowSize
        font.weight: Font.Bold
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        Accessible.ignored: true
    }
}
