import QtQuick
import Orl.Screens

// What stands in place of the messages while there are none.
Item {
    id: root
    required property HomeView view

    implicitHeight: offline.visible ? offline.implicitHeight : loading.implicitHeight
    visible: view.state !== HomeView.Messages

    NoInternet {
        id: offline
        width: parent.width
        compact: true
        visible: root.view.state === HomeView.Offline
        onActed: root.view.retry()
    }
    StateMessage {
        id: loading
        width: parent.width
        visible: root.view.state === HomeView.Loading
        typing: true
        title: root.view.nothingYet ? "No messages yet" : ""
        sentence: root.view.nothingYet ? "A new message appears here by itself." : "Fetching messages..."
    }
}
