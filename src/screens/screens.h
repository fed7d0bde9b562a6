#pragma once

#include "platform/platform.h"

class QQmlEngine;

namespace orl {

/// Where the window is in the resources of the program; it needs a `content` of type ContentView.
inline constexpr char mainWindow[] = "qrc:/Orl/Screens/Main.qml";

/// Makes the screens known to an engine, once before anything is loaded: their types, their pictures and
/// where their files are. The platform must outlive what the engine loads.
void prepareScreens(QQmlEngine &engine, const Platform &platform);

} // namespace orl
