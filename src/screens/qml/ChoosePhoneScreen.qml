import QtQuick
import QtQuick.Layouts
import Orl.Screens

// First run: a country, then a number.
Item {
    id: root
    required property ChoosePhoneView view

    CountryList {
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.columnWidth)
        visible: !numbers.covers
        enabled: !root.view.isPresented
        focus: true
        view: root.view
        listHeader: ColumnLayout {
            width: ListView.view ? ListView.view.width : 0
            spacing: Theme.space1
            Words {
                text: "Select Country"
                font.pixelSize: Theme.titleSize
                font.weight: Font.Bold
                Layout.fillWidth: true
                Layout.margins: Theme.margin
                Layout.bottomMargin: 0
                Layout.topMargin: Theme.space5
                Accessible.role: Accessible.Heading
            }
            Words {
                text: "No wories, you can change it later."
                color: Theme.secondary
                Layout.fillWidth: true
                Layout.leftMargin: Theme.margin
                Layout.rightMargin: Theme.margin
                Layout.bottomMargin: Theme.space2
            }
        }
    }
    SlideOver {
        id: numbers
        anchors.fill: parent
        shown: root.view.isPresented
        onDismissed: root.view.isPresented = false
        source: "PhoneNumberScreen.qml"
        view: root.view.numbers
    }
}
