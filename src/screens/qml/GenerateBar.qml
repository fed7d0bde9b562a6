import QtQuick
import QtQuick.Layouts

// The button under the thumb, and beside it, once there is an identity, what can be done with that.
RowLayout {
    id: root
    required property bool hasIdentity
    required property bool hasSaved ///< identities, of before
    required property bool canSave
    required property bool busy
    required property string title ///< of the button
    signal savedTapped
    signal generateTapped
    signal saveTapped

    spacing: Theme.space2

    RoundButton {
        objectName: "history_button_id"
        visible: root.hasIdentity
        enabled: root.hasSaved
        symbol: "checkmark"
        text: "Saved identities"
        onClicked: root.savedTapped()
    }
    GenerateButton {
        hasIdentity: root.hasIdentity
        busy: root.busy
        title: root.title
        focus: true
        Layout.fillWidth: true
        onClicked: root.generateTapped()
    }
    RoundButton {
        objectName: "save_button_id"
        visible: root.hasIdentity && root.canSave
        symbol: "plus"
        text: "Save this identity"
        onClicked: root.saveTapped()
    }
}
