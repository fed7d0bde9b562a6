import QtQuick
import Orl.Screens

// The confirmation and the limit alert of a list of numbers.
Item {
    id: root
    required property NumberChoice choice

    Sheet {
        visible: root.choice.confirmationSheet
        title: root.choice.title
        message: root.choice.message
        yes: root.choice.confirmTitle
        no: "Cancel"
        onAccepted: root.choice.confirm()
        onRejected: root.choice.cancel()
    }
    CustomAlert {
        visible: root.choice.showLimitAlert
        alert: root.choice.limitAlert
    }
}
