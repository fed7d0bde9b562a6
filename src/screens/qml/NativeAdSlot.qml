// The card reaches its place by an id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import Orl.Screens

// The place of a native ad in a list.
Loader {
    id: root
    required property string slot

    active: Ads.places !== null
    sourceComponent: NativeAdCard { view: Ads.places.nativeCard(root, root.slot) }
}
