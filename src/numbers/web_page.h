#pragma once

#include "platform/platform.h"
#include "platform/result.h"

#include <QString>
#include <QUrl>
#include <orl/html/document.h>
#include <orl/html/exception.h>

#include <string>

namespace orl {

/// Reads a page as UTF-8 text and parses it. On a worker.
Result<html::Document> readPage(const Platform &platform, const QUrl &url);

inline QString toQString(const std::string &utf8) {
    return QString::fromStdString(utf8);
}
inline Error toError(const html::Exception::Error &error) {
    return {QString::fromUtf8(error.what())};
}

} // namespace orl
