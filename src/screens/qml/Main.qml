import QtQuick
import QtQuick.Templates as T
import Orl.Screens

// The window: the root screen, and above it what is said on every screen.
T.ApplicationWindow {
    id: root
    required property ContentView content

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
    Binding { target: Theme; property: "keyboardInUse"; value: root.content.appearance.keyboardInUse }

    Loader {
        id: screen
        anchors.fill: parent
        focus: true
        function show() {
            if (root.content.hasCountry) setSource("HomeScreen.qml", { view: root.content.home });
            else setSource("ChoosePhoneScreen.qml", { view: root.content.chooser });
        }
        Component.onCompleted: show()
    }
    Connections {
        target: root.content
        function onRootChanged() { screen.show(); }
    }
    CopiedBanner {
        anchors.centerIn: parent
        copyVM: root.content.copyVM
        z: 1
    }
}
