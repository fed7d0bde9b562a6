#pragma once

#include "platform/process.h"

class QQmlEngine;

namespace orl {

/// Makes "image://ad/KEY" known to an engine: the picture of an ad by its key of AdPictures. The process must
/// outlive what the engine loads.
void prepareAds(QQmlEngine &engine, Process &process);

} // namespace orl
