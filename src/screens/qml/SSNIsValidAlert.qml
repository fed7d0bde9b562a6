// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Templates as T
import Orl.Screens

// The result of a check of a social security number. Its button is the only way out.
SheetFrame {
    id: root
    required property SSNIsValidAlertView alert

    visible: alert.isPresented
    centred: true
    closePolicy: T.Popup.NoAutoClose

    SSNCard {
        width: parent ? parent.width : 0
        alert: root.alert
        focus: true
    }
}
