import QtQuick
import QtQuick.Templates as T
import Orl.Screens

// The system's question whether ads may be chosen by what the user does. Only an answer closes it.
Sheet {
    required property StoredQuestion question
    required property string displayName

    visible: true
    closePolicy: T.Popup.NoAutoClose
    title: "Allow “" + displayName + "” to show ads that suit you?"
    message: "Your answer stays on this device. No application or website is told what you do here."
    yes: "Allow"
    no: "Don't allow"
    onAccepted: question.answer(true)
    onRejected: question.answer(false)
}
