#pragma once

#include "numbers/records.h"
#include "platform/endpoints.h"

#include <QStringList>

#include <atomic>
#include <optional>

namespace orl {

/// The URL of a sender's picture: the first of the icons that equals the name in lower case.
std::optional<QString> senderIcon(const Endpoints &endpoints, const QStringList &icons,
                                  const QString &senderName);

/// The sender with the gradient pair at the index and its letters, which are worked out unless it has them;
/// moves the index on. Two fetches at once may take the same pair, which harms nobody.
SMSSender withGradient(SMSSender sender, std::atomic<int> &index);

} // namespace orl
