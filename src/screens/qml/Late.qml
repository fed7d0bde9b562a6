import QtQuick

// A screen whose file is read when it is due, and not with the file that names it.
Loader {
    id: root
    required property string file
    property var properties: ({})
    property bool due: true

    onDueChanged: settle()
    Component.onCompleted: settle()
    function settle() {
        if (!due) setSource("");
        else if (status === Loader.Null) setSource(file, properties);
    }
}
