import QtQuick
import Orl.Screens

// What stands in place of the messages while there are none.
Item {
    id: root
    required property int shown ///< a state of HomeView
    required property bool nothingYet
    signal retried

    implicitHeight: offline.visible ? offline.implicitHeight : loading.implicitHeight
    visible: shown !== HomeView.Messages

    NoInternet {
        id: offline
        width: parent.width
        compact: true
        crowded: Theme.large
        visible: root.shown === HomeView.Offline
        onActed: root.retried()
    }
    StateMessage {
        id: loading
        width: parent.width
        visible: root.shown === HomeView.Loading
        typing: true
        title: root.nothingYet ? "No messages yet" : ""
        sentence: root.nothingYet ? "A new message appears here by itself." : "Fetching messages..."
    }
}
