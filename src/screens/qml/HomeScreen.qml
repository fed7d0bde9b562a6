// Delegates reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import Qt.labs.qmlmodels
import Orl.Screens

// The first tab: the number, its messages, and other numbers of the country.
Item {
    id: root
    required property HomeView view

    Component.onCompleted: view.appear()

    ListView {
        id: list
        readonly property bool bySender: root.view.bySender

        // In this order, as the rows of one layout do not fit the cards of the other.
        function layOut() {
            model = null;
            delegate = bySender ? senderCard : messageCard;
            model = bySender ? root.view.senders : root.view.messages;
        }
        onBySenderChanged: layOut()

        // Until the user scrolls, the top stays in sight whatever grows above it or comes in. Another number begins
        // there.
        property bool atTop: true
        readonly property string number: root.view.number
        onNumberChanged: {
            atTop = true;
            settle.restart();
        }
        Timer {
            id: settle
            interval: 0
            onTriggered: {
                if (list.atTop) list.positionViewAtBeginning();
                list.chooseCurrent();
            }
        }
        onMovementStarted: atTop = false
        onMovementEnded: {
            atTop = atYBeginning;
            settle.restart();
        }
        // A page that brings as many rows as it takes away leaves the count alone.
        onOriginYChanged: settle.restart()
        onContentHeightChanged: settle.restart()

        // The arrow keys go from row to row; Tab comes to the first one in sight, between the head and the foot.
        highlightFollowsCurrentItem: false
        onCurrentItemChanged: {
            FocusOrder.putBefore(currentItem, footerItem);
            FocusOrder.putBefore(headerItem, currentItem);
        }
        // Past rows without room, which are places of ads that have not come.
        function step(by) {
            const before = currentIndex;
            for (let next = before + by; next >= 0 && next < count; next += by) {
                currentIndex = next;
                if (currentItem && currentItem.height > 0) return;
            }
            currentIndex = before;
        }
        Keys.onDownPressed: step(1)
        Keys.onUpPressed: step(-1)
        function enterRows() {
            if (currentItem && currentItem.height === 0) step(1);
            if (currentItem && currentItem.height > 0) currentItem.forceActiveFocus(Qt.TabFocusReason);
        }
        function chooseCurrent() {
            if (!activeFocus || !Theme.keyboardInUse) currentIndex = count > 0 ? Math.max(indexAt(0, contentY), 0) : -1;
        }
        onWidthChanged: settle.restart()
        Component.onCompleted: layOut()
        anchors.top: parent.top
        anchors.bottom: banner.top
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(parent.width, Theme.columnWidth) - 2 * Theme.margin
        visible: !countries.covers
        enabled: !root.view.countriesPresented
        focus: true
        cacheBuffer: 4 * Theme.phoneHeight
        boundsBehavior: Flickable.StopAtBounds
        header: HomeHeader {
            width: list.width
            view: root.view
            onHeightChanged: settle.restart()
            Keys.onDownPressed: list.enterRows()
            Keys.onUpPressed: event => event.accepted = true
        }
        footer: Column {
            width: list.width
            bottomPadding: Theme.margin
            Keys.onUpPressed: list.enterRows()
            Keys.onDownPressed: event => event.accepted = true
            HomeState {
                width: parent.width
                shown: root.view.state
                nothingYet: root.view.nothingYet
                onRetried: root.view.retry()
            }
            SimilarNumbers {
                width: parent.width
                numbers: root.view.similar
                onTapped: index => root.view.tapSimilar(index)
            }
        }
        // Without transitions: a row that grows while it is in one is laid over by the next.
        Accessible.role: Accessible.List
        Accessible.name: "Messages"
    }
    KeepInSight {
        list: list
        onReachedChanged: list.atTop = list.atYBeginning
    }
    DelegateChooser {
        id: messageCard
        role: "slot"
        DelegateChoice {
            roleValue: ""
            MessageCard {
                required property int index
                width: ListView.view.width
                gap: Theme.space2
                onActiveFocusChanged: if (activeFocus) list.currentIndex = index
                onExportTapped: entry => root.view.tapExport(entry)
            }
        }
        DelegateChoice { NativeAdSlot { width: ListView.view.width } }
    }
    DelegateChooser {
        id: senderCard
        role: "slot"
        DelegateChoice {
            roleValue: ""
            SenderCard {
                required property int index
                width: ListView.view.width
                gap: Theme.space2
                onActiveFocusChanged: if (activeFocus) list.currentIndex = index
                onClicked: root.view.tapSender(index)
            }
        }
        DelegateChoice { NativeAdSlot { width: ListView.view.width } }
    }
    AnchoredBanner {
        id: banner
        anchors.bottom: parent.bottom
        width: parent.width
        visible: list.visible
    }
    NumberChoiceDialogs {
        anchors.fill: parent
        choice: root.view.choice
    }
    Sheet {
        visible: root.view.isOffline
        title: "No internet connection"
        message: "Please check your internet and try again"
        yes: "OK"
        onAccepted: root.view.dismissOffline()
        onRejected: root.view.dismissOffline()
    }
    SlideOver {
        id: countries
        anchors.fill: parent
        shown: root.view.countriesPresented
        onDismissed: root.view.closeCountries()
        source: "CountriesScreen.qml"
        view: root.view.countries
    }
}
