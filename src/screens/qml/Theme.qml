pragma Singleton
import QtQuick

// The one scale of colours, sizes and times. Nothing else writes a colour or a size.
QtObject {
    id: theme

    // What the user asked the desktop for; the window hands it in.
    property bool dark: false
    property real textScale: 1
    property bool reducedMotion: false
    property bool keyboardInUse: false

    readonly property color background: dark ? "#0E1013" : "#F4F5F7"
    readonly property color card: dark ? "#191C21" : "#FFFFFF"
    readonly property color raised: dark ? "#22262D" : "#FFFFFF"
    readonly property color text: dark ? "#F2F4F7" : "#14171C"
    readonly property color secondary: dark ? "#A3ABB8" : "#5A6270"
    readonly property color separator: dark ? "#2B3038" : "#E3E6EB"
    readonly property color accent: dark ? "#93A0FF" : "#4656D6"
    readonly property color accentText: dark ? "#0E1013" : "#FFFFFF"
    readonly property color good: dark ? "#4CC38A" : "#17794B"
    readonly property color bad: dark ? "#FF7680" : "#BC2533"

    readonly property color bar: Qt.alpha(background, 0.9)
    readonly property color tint: Qt.alpha(accent, dark ? 0.16 : 0.1)
    // A mail's page is written for a dark ground in both schemes.
    readonly property color mailGround: "#191C21"
    readonly property color mailText: "#F2F4F7"
    readonly property color mailSecondary: "#A3ABB8"
    // Its letters begin larger than ours and grow once ours have reached them.
    readonly property real mailScale: Math.max(1, textScale * 15 / 20)
    readonly property color off: dark ? "#4A515C" : "#8A93A3"
    readonly property color dim: Qt.alpha("black", dark ? 0.6 : 0.4)
    readonly property color clear: "transparent"
    // Round a ring, which ends as it begins.
    readonly property list<color> ring: [accent, between(accent, good), good, between(good, bad), bad, between(bad, accent), accent]
    function between(one: color, other: color): color { return Qt.tint(one, Qt.alpha(other, 0.5)); }

    readonly property bool large: textScale > 1.3

    readonly property int titleSize: Math.round(28 * textScale)
    readonly property int headingSize: Math.round(22 * textScale)
    readonly property int rowSize: Math.round(17 * textScale)
    readonly property int textSize: Math.round(15 * textScale)
    readonly property int secondarySize: Math.round(13 * textScale)
    readonly property int labelSize: Math.round(18 * textScale)
    readonly property int detailSize: Math.round(12 * textScale)
    readonly property int captionSize: Math.round(11 * textScale)
    readonly property real numberSpacing: 0.6

    readonly property int space1: 4
    readonly property int space2: 8
    readonly property int space3: 12
    readonly property int space4: 16
    readonly property int space5: 24
    readonly property int space6: 32
    readonly property int margin: 16

    readonly property int cardRadius: 18
    readonly property int controlRadius: 12
    readonly property int chipRadius: 10
    readonly property int target: 48
    readonly property int hairline: 1
    readonly property int focusRing: 2

    readonly property int avatar: Math.round(40 * Math.min(textScale, 1.4))
    readonly property int flagWidth: Math.round(36 * Math.min(textScale, 1.4))
    readonly property int flagHeight: Math.round(flagWidth * 3 / 4)
    readonly property int symbol: Math.round(20 * Math.min(textScale, 1.6))
    readonly property int smallSymbol: Math.round(14 * Math.min(textScale, 1.6))
    readonly property int chip: Math.round(32 * Math.min(textScale, 1.6))
    readonly property int toggle: Math.round(30 * Math.min(textScale, 1.3))
    readonly property int drawing: 160
    readonly property int smallDrawing: 96
    readonly property int appIcon: 96
    readonly property int alertHeight: 400

    readonly property int phoneWidth: 390
    readonly property int phoneHeight: 844
    readonly property int leastWidth: 360
    readonly property int leastHeight: 480
    readonly property int columnWidth: 640
    readonly property int pageHeight: 300

    readonly property int motion: 180
    readonly property int travel: reducedMotion ? 0 : motion
    readonly property real pressedScale: reducedMotion ? 1 : 0.98
    readonly property int announcement: 700
    readonly property int wait: 1400
}
