#pragma once

#include "numbers/link_detector.h"

#include <QString>
#include <QStringList>

namespace orl {

/// A number written in a country's format: in `format` every character but `placeholder` is put in at its own
/// place, and digits beyond the format follow as they are. Only the digits of `number` count.
QString formattedNumber(const QString &number, const QString &format, QChar placeholder = u'X');

/// The codes in a message: the runs of at least `minimumLength` decimal digits once blanks and hyphens are
/// gone, so that "123-456" is one code. A run whose first two digits follow a plus sign in the text gets that
/// sign back.
QStringList extractNumbers(qsizetype minimumLength, const QString &text);

} // namespace orl
