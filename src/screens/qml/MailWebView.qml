// The page reaches its frame by an id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Orl.Web

// A mail's page, and at its foot where a link leads. This file brings the web engine into the program.
ColumnLayout {
    id: root
    property string page
    property bool withheld: false
    readonly property bool usable: WebSupport.usable
    readonly property string destination: mail.view ? mail.view.destination : ""

    spacing: 0

    Loader {
        id: mail
        readonly property MailPage view: item as MailPage
        active: root.usable
        Layout.fillWidth: true
        Layout.fillHeight: true
        sourceComponent: MailPage {
            withheld: root.withheld
            page: root.page
        }
    }
    RowLayout {
        visible: root.destination !== ""
        spacing: Theme.space2
        Layout.fillWidth: true
        Layout.margins: Theme.space2
        Symbol {
            name: "link-45deg"
            color: Theme.mailSecondary
            side: Theme.smallSymbol
        }
        Words {
            text: root.destination
            color: Theme.mailText
            font.pixelSize: Theme.secondarySize
            wrapMode: Text.NoWrap
            elide: Text.ElideRight
            Layout.fillWidth: true
            Accessible.name: "Leads to " + text
        }
    }
}
