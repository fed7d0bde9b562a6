import QtQml

// Reads the files of screens before they are asked for, one after the other, on the engine's own thread.
QtObject {
    id: root
    required property list<string> files
    property bool active: false
    property int count: 0 ///< how many have been read
    property var kept: []

    onActiveChanged: next()

    function next() {
        if (!active || kept.length === files.length) return;
        const screen = Qt.createComponent(files[kept.length], Component.Asynchronous);
        kept.push(screen);
        if (screen.status === Component.Loading) screen.statusChanged.connect(root.settle);
        else settle();
    }
    function settle() {
        count = kept.length;
        next();
    }
}
