import QtQuick

// The page of a tab whose service this build does not have.
StateMessage {
    drawing: "unavailable"
}
