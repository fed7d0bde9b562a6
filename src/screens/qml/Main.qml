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
        content: ConversationScreen { view: root.content.conversation }

        // Built behind the splash piece by piece, so that the first picture of the window does not wait for it.
        Loader {
            anchors.fill: parent
            asynchronous: root.content.splashIsPresented
            focus: !root.content.splashIsPresented
            enabled: !root.content.splashIsPresented
            sourceComponent: root.content.hasCountry ? mainScreen : chooser
        }
        Loader {
            anchors.fill: parent
            active: root.content.splashIsPresented
            focus: active
            sourceComponent: SplashScreen { view: root.content.splash }
        }
    }
    Component {
        id: mainScreen
        MainScreen { view: root.content.main }
    }
    Component {
        id: chooser
        ChoosePhoneScreen {
            view: root.content.chooser
            content: root.content
        }
    }
    CopiedBanner {
        anchors.centerIn: parent
        copyVM: root.content.copyVM
        z: 1
    }
    Loader {
        active: root.reviewPrompt !== null && root.reviewPrompt.isPresented
        sourceComponent: ReviewSheet { prompt: root.reviewPrompt }
    }
    Loader {
        active: root.trackingQuestion !== null && root.trackingQuestion.isAsked
        sourceComponent: TrackingSheet {
            question: root.trackingQuestion
            displayName: root.content.splash.displayName
        }
    }
    Loader {
        active: root.consentQuestion !== null && root.consentQuestion.isAsked
        sourceComponent: ConsentSheet { question: root.consentQuestion }
    }
    Loader {
        anchors.fill: parent
        z: 2
        active: root.adIsUp
        focus: active
        sourceComponent: FullScreenAd { view: root.fullScreenAd }
    }
}
