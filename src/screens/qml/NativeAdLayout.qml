import QtQuick
import Orl.Screens

// The layout that a native card asks for.
Loader {
    id: root
    required property NativeAdView view

    function show() {
        if (view) setSource(view.layout + ".qml", { view: view });
        else source = "";
    }
    onViewChanged: show()
    Component.onCompleted: show()
}
