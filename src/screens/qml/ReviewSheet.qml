import QtQuick
import Orl.Screens

// Asks for a rating.
Sheet {
    id: root
    required property ReviewPrompt prompt

    visible: true
    title: "Enjoying Orl?"
    message: "A rating in the store helps other people to find it."
    yes: "Rate us"
    no: "Not now"
    onAccepted: root.prompt.rate()
    onRejected: root.prompt.dismiss()
}
