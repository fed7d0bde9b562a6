import QtQuick
import QtQuick.Layouts

// Components of one kind under a heading.
ColumnLayout {
    id: root
    required property string title
    default property alias components: column.data

    spacing: Theme.space3

    Words {
        text: root.title
        font.pixelSize: Theme.headingSize
        font.weight: Font.Bold
        Layout.fillWidth: true
        Layout.topMargin: Theme.space5
        Accessible.role: Accessible.Heading
    }
    ColumnLayout {
        id: column
        spacing: Theme.space3
        Layout.fillWidth: true
    }
}
