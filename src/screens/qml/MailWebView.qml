// The page reaches its frame by an id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Web

// A mail's page, and at its foot where a link leads. This file brings the web engine into the program.
Item {
    id: root
    property string page
    property bool withheld: false
    property real below: 0 // how much of its foot is out of sight
    readonly property bool usable: WebSupport.usable
    readonly property string destination: mail.view ? mail.view.destination : ""

    Loader {
        id: mail
        readonly property MailPage view: item as MailPage
        anchors.fill: parent
        active: root.usable
        sourceComponent: MailPage {
            withheld: root.withheld
            page: root.page
            textScale: Theme.mailScale
        }
    }
    // Over the page: one that made room for it would draw the link away from under the pointer.
    Rectangle {
        anchors.bottom: parent.bottom
        anchors.bottomMargin: root.below
        width: parent.width
        height: line.implicitHeight + 2 * Theme.space2
        visible: root.destination !== ""
        color: Theme.mailGround
        RowLayout {
            id: line
            anchors.centerIn: parent
            width: parent.width - 2 * Theme.space2
            spacing: Theme.space2
            Symbol {
                name: "link-45deg"
                color: Theme.mailSecondary
                side: Theme.smallSymbol
            }
            // As many lines as a host needs to be seen to its end, which is what tells a false one.
            Words {
                text: root.destination
                color: Theme.mailText
                font.pixelSize: Theme.secondarySize
                wrapMode: Text.WrapAnywhere
                maximumLineCount: Theme.large ? 6 : 3
                elide: Text.ElideRight
                Layout.fillWidth: true
                Accessible.name: "Leads to " + text
            }
        }
    }
}
