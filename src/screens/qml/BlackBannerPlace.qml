// The banner reaches its place by an id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import Orl.Screens

// The banner that chance puts on a card: drawn once for each time that the card is built.
Loader {
    id: root
    property BlackBanner drawn: Ads.places ? Ads.places.blackBanner(root) : null

    active: drawn !== null && drawn.banner !== null
    visible: active
    sourceComponent: AdBanner { banner: root.drawn.banner }
}
