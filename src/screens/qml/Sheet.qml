import QtQuick

// A question over the whole window. Escape and a tap beside it mean no.
SheetFrame {
    id: root
    property string title
    property string message
    property string yes
    property string no
    signal accepted
    signal rejected

    onClosed: root.rejected()

    SheetBody {
        width: parent ? parent.width : 0
        title: root.title
        message: root.message
        yes: root.yes
        no: root.no
        focus: true
        onAccepted: root.accepted()
        onRejected: root.close()
    }
}
