// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Screens

// An identity. Whatever stands here is copied by a tap.
ColumnLayout {
    id: root
    required property GeneratedResultsView view

    spacing: Theme.space3

    Words {
        text: "Your Randomly Generated Identity"
        font.pixelSize: Theme.headingSize
        font.weight: Font.Bold
        Layout.fillWidth: true
        Accessible.role: Accessible.Heading
    }
    Words {
        text: "Tap to copy!"
        color: Theme.secondary
        font.pixelSize: Theme.secondarySize
        Layout.fillWidth: true
    }
    Card {
        implicitHeight: head.implicitHeight + 2 * Theme.space3
        Layout.fillWidth: true

        ColumnLayout {
            id: head
            anchors.fill: parent
            anchors.margins: Theme.space3
            spacing: Theme.space1

            RowLayout {
                spacing: Theme.space3
                Layout.leftMargin: Theme.space2
                Layout.topMargin: Theme.space1
                GenderPicture {
                    picture: root.view.picture
                    gender: root.view.gender
                    side: Theme.large ? Theme.avatar : Math.round(1.6 * Theme.avatar)
                    Layout.alignment: Qt.AlignTop
                }
                Flow {
                    spacing: Theme.space1
                    Layout.fillWidth: true
                    Repeater {
                        model: root.view.conditions
                        ConditionLabel {
                            required property string modelData
                            text: modelData
                            mostWidth: parent ? parent.width : 0
                        }
                    }
                }
            }
            CopyLine {
                name: "Full name"
                content: root.view.fullName
                large: true
                copied: root.view.copiedTitle === "name"
                Layout.fillWidth: true
                onClicked: root.view.copyName()
            }
            CopyLine {
                name: "Address"
                content: root.view.address
                symbol: "mappin.and.ellipse"
                copied: root.view.copiedTitle === "address"
                Layout.fillWidth: true
                onClicked: root.view.copyAddress()
            }
        }
    }
    Repeater {
        model: root.view.rows
        ColumnLayout {
            id: entry
            required property int index
            required property string section
            required property string icon
            required property string title
            required property string content
            required property bool first
            required property bool last

            spacing: Theme.space2
            Layout.fillWidth: true
            Layout.topMargin: first ? 0 : -root.spacing

            SectionTitle {
                visible: entry.first && entry.section !== ""
                text: entry.section
                symbol: entry.icon
                Layout.fillWidth: true
                Layout.topMargin: Theme.space2
            }
            IDExtraInfoCardView {
                title: entry.title
                content: entry.content
                first: entry.first
                last: entry.last
                copied: root.view.copiedTitle === entry.title
                Layout.fillWidth: true
                onClicked: root.view.tap(entry.index)
            }
        }
    }
}
