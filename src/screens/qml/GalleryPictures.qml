import QtQuick
import QtQuick.Layouts
import Orl.Screens

// What is only looked at.
ColumnLayout {
    id: root
    required property Gallery gallery

    spacing: 0
    Layout.fillWidth: true

    GallerySection {
        title: "Signs"
        Layout.fillWidth: true
        Flow {
            spacing: Theme.space3
            Layout.fillWidth: true
            Flag { code: "no" }
            Flag { code: "unknown" }
            Avatar { face: root.gallery.face }
            SignalBars { bars: 2 }
            SignalBars { bars: 5 }
            Badge { text: "3" }
            Badge { text: "128" }
            AdChip {}
        }
    }
    GallerySection {
        title: "Bars"
        Layout.fillWidth: true
        TopBar { title: "A screen over another one"; Layout.fillWidth: true }
        TopBar { title: "Norway"; flag: "no"; Layout.fillWidth: true }
        TabBar {
            id: tabs
            tabs: root.gallery.tabs
            selectedIndex: 1
            Layout.fillWidth: true
            onSelected: index => {
                root.gallery.chooseTab(index);
                tabs.selectedIndex = index;
            }
        }
        CopiedBanner { copied: true; Layout.fillWidth: true; Layout.maximumWidth: implicitWidth; Layout.alignment: Qt.AlignHCenter }
    }
    GallerySection {
        title: "Waiting"
        Layout.fillWidth: true
        Flow {
            spacing: Theme.space5
            Layout.fillWidth: true
            Spinner {}
            Progress {}
            MessageLoader {}
        }
        NumberSkeleton { Layout.fillWidth: true }
    }
    GallerySection {
        title: "States"
        Layout.fillWidth: true
        NoInternet { Layout.fillWidth: true }
        Error404 { subtitle: "The numbers could not be read."; btnTitle: "Try Again"; Layout.fillWidth: true }
        StateMessage { drawing: "no_history"; title: "No numbers yet"; sentence: "The numbers that you choose are kept here, so that you find them again."; Layout.fillWidth: true }
        StateMessage { busy: true; sentence: "Fetching..."; Layout.fillWidth: true }
    }
}
