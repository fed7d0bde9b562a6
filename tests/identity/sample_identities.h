#pragma once

#include "identity/fake_identity.h"

#include <QJsonDocument>

namespace orl::test {

/// What the identity host answers for one person.
inline QJsonObject wireIdentity() {
    return QJsonDocument::fromJson(R"({
        "name": "Ada Ferris", "maiden_name": "Holt", "address": "12 Mill Lane\nLeeds LS1 4AB",
        "latitude": 12.5, "longitude": -3, "birth_data": "1990-05-17",
        "phone_h": "0113 496 0001", "phone_w": "0113 496 0002", "email_u": "ada", "email_d": "example.com",
        "username": "ferris", "useragent": "Browser/1.0", "company": "Tide & Sons",
        "height": 180, "weight": 71.25, "blood": "O+", "eye": "Green", "hair": "Long, black",
        "sport": "Fencing"})")
        .object();
}

/// Another person each time.
inline FakeIdentity identity(const QString &name, FakeGender gender = FakeGender::Female) {
    const auto rows = [&name](std::initializer_list<const char *> titles) {
        QList<ExtraInfo> list;
        for (const char *title : titles)
            list.append({QLatin1String(title), QLatin1String(title) + QStringLiteral(" of ") + name});
        return list;
    };
    return {uuidText(QUuid::createUuid()),
            name,
            QStringLiteral("1 Lane\nof ") + name,
            gender,
            rows({"Geo coordinates", "Mother's maiden name", "Date of birth", "Age"}),
            rows({"Home phone", "Work phone"}),
            rows({"Email address", "Username", "Browser user agent"}),
            rows({"Height", "Weight", "Eye color", "Blood type", "Hair"}),
            rows({"Company", "Favorite sport"})};
}

} // namespace orl::test
