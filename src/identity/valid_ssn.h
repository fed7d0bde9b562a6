#pragma once

#include "platform/json.h"

#include <QUuid>

namespace orl {

/// What is known about a social security number. Texts all of them, the years too. Whoever can tell puts it
/// into FakeGeneratorView::validSSNItem; nothing in the program does so far.
struct ValidSSN {
    QString ssn;
    QString issuance_location;
    QString first_year_issued;
    QString last_year_issued;
    QString estimated_age;
    QString valid; ///< the verdict, in words

    bool operator==(const ValidSSN &) const = default;

    /// New at each asking, so that a presenting screen never takes two results for the same one.
    QUuid id() const { return QUuid::createUuid(); }

    QJsonObject encoded() const;
    static ValidSSN decode(JsonDecoder &json);
};

} // namespace orl
