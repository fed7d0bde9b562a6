#pragma once

#include "numbers/records.h"
#include "platform/process.h"

namespace orl {

class CopyViewModel;

/// A message's text as cards show it: line separator characters become blanks.
QString shownContent(const Message &message);

/// When a message came, in seconds since 1970; nothing where the page does not say so readably.
std::optional<double> momentOf(const Message &message);

/// A moment on the clock of the device, "HH:mm"; empty for none.
QString clockTime(const std::optional<double> &moment);

/// What can be lifted out of a text: its codes in their order, then its first link.
QStringList messageExports(const QString &content);

/// A tap on something that was lifted out: opens a link, copies anything else. What cannot be made into a URL
/// is ignored.
void tapExport(const QString &entry, Process &process, CopyViewModel &copy);

/// Rows of `messages` and `senders` that hold the place of an ad.
bool isAd(const Message &message);
bool isAd(const SMSSender &sender);

} // namespace orl
