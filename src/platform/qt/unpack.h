#pragma once

#include "platform/result.h"

#include <QByteArray>

namespace orl {

/// Unpacks a body that was compressed as "gzip" or "deflate". One that breaks off, is damaged, or would be
/// larger than `limit` bytes is an error.
Result<QByteArray> unpack(const QByteArray &packed, qint64 limit);

} // namespace orl
