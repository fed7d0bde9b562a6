import QtQuick
import QtQuick.Templates as T
import Orl.Screens

// The consent to advertising, where the law of the region wants it. Only an answer closes it.
Sheet {
    required property StoredQuestion question

    visible: true
    closePolicy: T.Popup.NoAutoClose
    title: "Your choice about advertising"
    message: "Ads pay for this application. They come from a server of ours, which is asked for the next ad and told nothing about you. The law of your region wants your consent all the same; the ads are the same whatever you answer."
    yes: "I consent"
    no: "I do not consent"
    onAccepted: question.answer(true)
    onRejected: question.answer(false)
}
