import QtQuick
import Orl.Screens

// What stands below everything: the tabs, or without a country the chooser. While the splash hides it, it is made piece by
// piece once its file has been read; what is still missing when the splash has gone is made at once.
Loader {
    id: root
    required property ContentView content
    required property int filesRead ///< of the files that are read ahead, of which the first is the one wanted
    readonly property bool hidden: content.splashIsPresented
    readonly property bool due: filesRead > 0 || !hidden
    readonly property string file: content.hasCountry ? "MainScreen.qml" : "ChoosePhoneScreen.qml"
    property string brought

    focus: !hidden
    enabled: !hidden
    onHiddenChanged: asynchronous = hidden
    onDueChanged: bring()
    onFileChanged: bring()
    Component.onCompleted: bring()

    function bring() {
        if (!due || brought === file) return;
        // A file that is still being read when the splash goes would lose the properties that it is given here.
        asynchronous = hidden && brought === "";
        brought = file;
        setSource(file, content.hasCountry ? { view: content.main } : { view: content.chooser, content: content });
    }
}
