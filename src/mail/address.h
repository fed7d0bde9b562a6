#pragma once

#include <QString>
#include <QStringList>

namespace orl {

/// What an address may be put together from.
namespace Constants {

/// Names that users like; taps put them into the field.
QStringList loginSuggestions();

/// The domains of the build, in their fixed order; the first one is the default.
QStringList domains();

} // namespace Constants

/// `login`@`domain` with a hyphen for every space.
QString composedAddress(const QString &login, const QString &domain);

/// Whether the whole text has the form of an address that an inbox can have.
bool isWellFormedAddress(const QString &address);

} // namespace orl
