// Components reach the screen by its id, which this lint takes for a name from nowhere.
// qmllint disable unqualified
import QtQuick
import Orl.Screens

// The third tab: what kind of identity, the button that makes one, and the one that was made.
FocusScope {
    id: root
    required property FakeGeneratorView view

    Item {
        id: page
        anchors.fill: parent
        visible: !root.view.isOffline && !saved.covers
        enabled: !root.view.showSavedIdentities

        Flickable {
            id: scroll
            anchors.top: parent.top
            anchors.bottom: footer.top
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(parent.width, Theme.columnWidth)
            contentWidth: width
            contentHeight: column.implicitHeight
            boundsBehavior: Flickable.StopAtBounds
            clip: true

            // Each of the two begins at its top.
            Connections {
                target: root.view
                function onFakeIdentityChanged() { scroll.contentY = 0; }
            }
            Column {
                id: column
                width: scroll.width
                topPadding: Theme.space5
                bottomPadding: Theme.space4
                spacing: Theme.space4

                Loader {
                    x: Theme.margin
                    width: parent.width - 2 * Theme.margin
                    sourceComponent: root.view.hasIdentity ? results : options
                    onLoaded: if (!Theme.reducedMotion) arrival.restart()
                    NumberAnimation {
                        id: arrival
                        target: column
                        property: "opacity"
                        from: 0
                        to: 1
                        duration: Theme.motion
                    }
                }
                NativeAdSlot {
                    x: Theme.margin
                    width: parent.width - 2 * Theme.margin
                    slot: "fake_generator"
                }
            }
        }
        KeepInSight { list: scroll }
        Column {
            id: footer
            anchors.bottom: parent.bottom
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(parent.width, Theme.columnWidth) - 2 * Theme.margin
            bottomPadding: Theme.space2
            spacing: Theme.space2

            Loader {
                width: parent.width
                active: root.view.nativeWithButton.showNativeBeforeGenerate
                sourceComponent: NativeBeforeGenerate { ad: root.view.nativeWithButton }
            }
            GenerateBar {
                width: parent.width
                visible: !root.view.nativeWithButton.showNativeBeforeGenerate
                hasIdentity: root.view.hasIdentity
                hasSaved: root.view.hasSavedIdentities
                canSave: root.view.showSaveButton
                busy: root.view.disableGenerating
                title: root.view.generateButtonTitle
                onSavedTapped: root.view.openSaved()
                onGenerateTapped: root.view.tapGenerate()
                onSaveTapped: root.view.openSaveDialog()
            }
            NativeAdSlot {
                width: parent.width
                slot: "identity_after_button"
            }
            AnchoredBanner { width: parent.width }
        }
    }
    Component {
        id: options
        GenerateOptions {
            genders: root.view.genders
            nameSets: root.view.nameSets
            nameSetIndex: root.view.nameSetIndex
            countries: root.view.countries
            countryIndex: root.view.countryIndex
            onGenderChosen: index => root.view.chooseGender(index)
            onNameSetChosen: index => root.view.chooseNameSet(index)
            onCountryChosen: index => root.view.chooseCountry(index)
        }
    }
    Component {
        id: results
        GeneratedResults { view: root.view.results }
    }
    Loader {
        anchors.fill: parent
        active: root.view.isOffline
        sourceComponent: NoInternet { onActed: root.view.retry() }
    }
    SlideOver {
        id: saved
        anchors.fill: parent
        shown: root.view.showSavedIdentities
        onDismissed: root.view.closeSaved()
        source: "SavedIdentitiesScreen.qml"
        view: root.view
    }
    SaveIdentityAlert {
        shown: root.view.saveDialog
        name: root.view.saveNameText
        onNameEdited: text => root.view.saveNameText = text
        onSaveTapped: root.view.save()
        onCancelTapped: root.view.cancelSave()
    }
    SavedCheckMark { playing: root.view.savedCheckMarkAnimation }
    SSNIsValidAlert { alert: root.view.ssnAlert }
}
