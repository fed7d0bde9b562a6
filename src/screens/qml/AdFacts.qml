import QtQuick
import Orl.Screens

// Stars, store and price of an ad, as far as it has them.
Flow {
    id: root
    required property adFace face

    spacing: Theme.space3
    visible: face.stars !== "" || face.store !== "" || face.price !== ""

    Image {
        source: root.face.stars === "" ? "" : "qrc:/orl/drawings/" + root.face.stars + ".svg"
        visible: root.face.stars !== ""
        sourceSize.height: Theme.smallSymbol
        Accessible.ignored: true
    }
    Words {
        text: root.face.store
        color: Theme.secondary
        font.pixelSize: Theme.secondarySize
        visible: text !== ""
    }
    Words {
        text: root.face.price
        color: Theme.secondary
        font.pixelSize: Theme.secondarySize
        visible: text !== ""
    }
}
