#pragma once

#include <QString>

#include <optional>

namespace orl {

/// The first link of a text, as it stands there: an http, https or ftp address, a host that begins with
/// "www.", a bare domain whose last part is a public one ("example.com/x", not "notes.txt" or "v1.2"), or a
/// mail address.
///
/// The punctuation and brackets of the sentence around it do not belong to it; a bracket that the link opened
/// itself does. Where words are not set apart by blanks, the link ends where the script changes.
std::optional<QString> firstLink(const QString &text);

} // namespace orl
