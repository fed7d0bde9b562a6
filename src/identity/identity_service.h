#pragma once

#include "identity/fake_identity.h"
#include "platform/platform.h"

#include <QDate>
#include <QUrl>

#include <functional>
#include <optional>

namespace orl {

/// What a generation asks the identity host for.
struct IdentityPath {
    FakeGender gender = FakeGender::Male; ///< never Random
    std::optional<QUrl> url;              ///< nothing where the host's address makes none
};

/// 64 bits of the system's secure source of chance. Any thread.
quint64 secureWord();

/// Draws the gender where it is left open, each with the same odds. A name set and a country are joined as
/// they are, also where no picker offers the pair. Any thread.
IdentityPath identityPath(const Platform &platform, FakeGender gender, FakeNameSet nameSet,
                          FakeCountry country, const std::function<quint64()> &word = secureWord);

using IdentityCompletion = std::function<void(const std::optional<FakeIdentity> &)>;

/// Makes one identity, for a worker: blocks as long as the request lasts and calls `completion` once, on the
/// same thread, with nothing where the answer cannot be had or is no identity. Without a URL nothing happens
/// at all. A birth date in another form than yyyy-MM-dd is a fatal error.
void fetchIdentity(const Platform &platform, const std::optional<QUrl> &url, FakeGender gender,
                   const IdentityCompletion &completion);

/// The shortest decimal text that reads back as the same number; a whole number keeps ".0".
QString numberText(double number);

/// Whole years of the Gregorian calendar from one day to another; nothing where a day is none. Who was born
/// on 29 February is a year older on the 28th of other years.
std::optional<int> wholeYears(QDate from, QDate to);

} // namespace orl
