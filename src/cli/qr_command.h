#pragma once

#include "cli/command_line.h"

#include <functional>

namespace orl {

/// `orl-cli qr TEXT [--png FILE]`: a text as a QR code, drawn with half blocks, or as a picture in a file. It
/// needs neither a phone nor an endpoint. `arguments` are those behind "qr"; a text that no code can hold,
/// and a file that cannot be written, are wrong use.
ExitCode runQrCommand(const QStringList &arguments, const std::function<void(const QString &)> &result,
                      const std::function<void(const QString &)> &notice);

} // namespace orl
