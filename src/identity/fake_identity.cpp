#include "identity/fake_identity.h"

namespace orl {

namespace {

QJsonArray encodedRows(const QList<ExtraInfo> &rows) {
    QJsonArray list;
    for (const ExtraInfo &row : rows)
        list.append(
            QJsonObject{{QStringLiteral("title"), row.title}, {QStringLiteral("content"), row.content}});
    return list;
}

ExtraInfo decodeRow(JsonDecoder &json) {
    return {json.text("title"), json.text("content")};
}

FakeGender decodeGender(JsonDecoder &json) {
    const std::optional<FakeGender> gender = genderOf(json.text("gender"));
    if (!gender) json.fail("gender", QStringLiteral("none of the genders"));
    return gender.value_or(FakeGender::Male);
}

} // namespace

QJsonObject FakeIdentity::encoded() const {
    return {{QStringLiteral("id"), id},
            {QStringLiteral("full_name"), full_name},
            {QStringLiteral("address"), address},
            {QStringLiteral("gender"), rawValue(gender)},
            {QStringLiteral("more_section"), encodedRows(more_section)},
            {QStringLiteral("phone_section"), encodedRows(phone_section)},
            {QStringLiteral("internet_section"), encodedRows(internet_section)},
            {QStringLiteral("body_section"), encodedRows(body_section)},
            {QStringLiteral("other_section"), encodedRows(other_section)}};
}

FakeIdentity FakeIdentity::decode(JsonDecoder &json) {
    return {json.text("id"),
            json.text("full_name"),
            json.text("address"),
            decodeGender(json),
            json.list("more_section", decodeRow),
            json.list("phone_section", decodeRow),
            json.list("internet_section", decodeRow),
            json.list("body_section", decodeRow),
            json.list("other_section", decodeRow)};
}

QJsonObject IdentityHistory::encoded() const {
    return {{QStringLiteral("name"), name},
            {QStringLiteral("time"), time},
            {QStringLiteral("identity"), identity.encoded()}};
}

IdentityHistory IdentityHistory::decode(JsonDecoder &json) {
    return {json.text("name"), json.real("time"), json.object("identity", FakeIdentity::decode)};
}

size_t qHash(const ExtraInfo &info, size_t seed) {
    return qHashMulti(seed, info.title, info.content);
}

size_t qHash(const FakeIdentity &identity, size_t seed) {
    return qHashMulti(seed, identity.id, identity.full_name, identity.address, int(identity.gender),
                      identity.more_section, identity.phone_section, identity.internet_section,
                      identity.body_section, identity.other_section);
}

FakeIdentity2 FakeIdentity2::decode(JsonDecoder &json) {
    return {json.text("name"),      json.text("maiden_name"), json.text("address"),  json.real("latitude"),
            json.real("longitude"), json.text("birth_data"),  json.text("phone_h"),  json.text("phone_w"),
            json.text("email_u"),   json.text("email_d"),     json.text("username"), json.text("useragent"),
            json.text("company"),   json.real("height"),      json.real("weight"),   json.text("blood"),
            json.text("eye"),       json.text("hair"),        json.text("sport")};
}

} // namespace orl
