#include "identity/valid_ssn.h"

namespace orl {

QJsonObject ValidSSN::encoded() const {
    return {{QStringLiteral("ssn"), ssn},
            {QStringLiteral("issuance_location"), issuance_location},
            {QStringLiteral("first_year_issued"), first_year_issued},
            {QStringLiteral("last_year_issued"), last_year_issued},
            {QStringLiteral("estimated_age"), estimated_age},
            {QStringLiteral("valid"), valid}};
}

ValidSSN ValidSSN::decode(JsonDecoder &json) {
    return {json.text("ssn"),
            json.text("issuance_location"),
            json.text("first_year_issued"),
            json.text("last_year_issued"),
            json.text("estimated_age"),
            json.text("valid")};
}

} // namespace orl
