import QtQuick
import QtQuick.Layouts
import Orl.Screens

// The button under the thumb, and beside it, once there is an identity, what can be done with that.
RowLayout {
    id: root
    required property FakeGeneratorView view

    spacing: Theme.space2

    RoundButton {
        objectName: "history_button_id"
        visible: root.view.hasIdentity
        enabled: root.view.hasSavedIdentities
        symbol: "checkmark"
        text: "Saved identities"
        onClicked: root.view.openSaved()
    }
    GenerateButton {
        hasIdentity: root.view.hasIdentity
        busy: root.view.disableGenerating
        title: root.view.generateButtonTitle
        focus: true
        Layout.fillWidth: true
        onClicked: root.view.tapGenerate()
    }
    RoundButton {
        objectName: "save_button_id"
        visible: root.view.hasIdentity && root.view.showSaveButton
        symbol: "plus"
        text: "Save this identity"
        onClicked: root.view.openSaveDialog()
    }
}
