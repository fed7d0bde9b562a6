#pragma once

#include <functional>

namespace orl {

/// Lets events run until `reached` holds; false when that takes longer than any machine needs. It looks after
/// each event and never pauses: what passes many messages from process to process loses nothing here.
bool waitUntil(const std::function<bool()> &reached);

} // namespace orl
