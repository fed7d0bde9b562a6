// Components reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import QtQuick.Templates as T
import Orl.Screens

// The window: the root screen, above it the splash, over both of them a conversation, and what is said on every screen.
T.ApplicationWindow {
    id: root
    required property ContentView content
    property ReviewPrompt reviewPrompt: null
    property FullScreenAdView fullScreenAd: null
    property StoredQuestion trackingQuestion: null
    property StoredQuestion consentQuestion: null
    readonly property bool adIsUp: fullScreenAd !== null && fullScreenAd.isUp

    title: "orl"
    width: Theme.phoneWidth
    height: Theme.phoneHeight
    minimumWidth: Theme.leastWidth
    minimumHeight: Theme.leastHeight
    visible: true
    color: Theme.background
    LayoutMirroring.enabled: root.content.appearance.rightToLeft
    LayoutMirroring.childrenInherit: true

    Component.onCompleted: content.appear()

    Binding { target: Theme; property: "dark"; value: root.content.appearance.dark }
    Binding { target: Theme; property: "textScale"; value: root.content.appearance.textScale }
    Binding { target: Theme; property: "reducedMotion"; value: root.content.appearance.reducedMotion }
    Binding { target: Ads; property: "places"; value: root.content.adPlaces }
    Binding { target: Theme; property: "keyboardInUse"; value: root.content.appearance.keyboardInUse }

    FullSwipePop {
        anchors.fill: parent
        enabled: !root.adIsUp
        focus: !root.adIsUp
        helper: root.content.swipe
        content: Late {
            focus: true
            file: "ConversationScreen.qml"
            properties: ({ view: root.content.conversation })
        }

        RootScreen {
            anchors.fill: parent
            content: root.content
            filesRead: ahead.count
        }
        Loader {
            anchors.fill: parent
            active: root.content.splashIsPresented
            focus: active
            sourceComponent: SplashScreen { view: root.content.splash }
        }
    }
    // The first picture of the window waits for the splash only; the other files are read behind it.
    ReadAhead {
        id: ahead
        files: [root.content.hasCountry ? "MainScreen.qml" : "ChoosePhoneScreen.qml", "HomeScreen.qml"]
    }
    Connections {
        target: root
        enabled: !ahead.active
        function onFrameSwapped() { ahead.active = true; }
    }
    CopiedBanner {
        objectName: "copied"
        anchors.centerIn: parent
        width: Math.min(implicitWidth, parent.width - 2 * Theme.margin)
        copied: root.content.copyVM.copied
        z: 1
    }
    Late {
        due: root.reviewPrompt !== null && root.reviewPrompt.isPresented
        file: "ReviewSheet.qml"
        properties: ({ prompt: root.reviewPrompt })
    }
    Late {
        due: root.trackingQuestion !== null && root.trackingQuestion.isAsked
        file: "TrackingSheet.qml"
        properties: ({ question: root.trackingQuestion, displayName: root.content.splash.displayName })
    }
    Late {
        due: root.consentQuestion !== null && root.consentQuestion.isAsked
        file: "ConsentSheet.qml"
        properties: ({ question: root.consentQuestion })
    }
    Late {
        anchors.fill: parent
        z: 2
        due: root.adIsUp
        focus: due
        file: "FullScreenAd.qml"
        properties: ({ view: root.fullScreenAd })
    }
}
