import QtQuick

// A picture of an ad, by its key; it has no accessible name, as the ad's words say what it is about.
Image {
    property string key

    source: key === "" ? "" : "image://ad/" + key
    asynchronous: true
    cache: false
    fillMode: Image.PreserveAspectCrop
    Accessible.ignored: true
}
