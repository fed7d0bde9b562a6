pragma Singleton
import QtQuick
import Orl.Screens

// Where screens get their ads from. The window hands it in; without it there are none.
QtObject {
    property AdPlaces places: null
}
