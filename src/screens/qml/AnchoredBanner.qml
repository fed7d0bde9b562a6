// The banner reaches its place by an id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import Orl.Screens

// The banner at the foot of a screen. Give it a width; it takes no height until an ad is there.
Loader {
    id: root
    active: Ads.places !== null
    sourceComponent: AdBanner { banner: Ads.places.anchoredBanner(root) }
}
