#pragma once

#include "identity/identity_tables.h"
#include "platform/json.h"
#include "platform/result.h"

#include <QByteArray>
#include <QHashFunctions>
#include <QList>
#include <QMetaType>

namespace orl {

/// One row of a section: a label and its value.
struct ExtraInfo {
    QString title;
    QString content;

    bool operator==(const ExtraInfo &) const = default;
};

/// A made-up person, as shown and saved. The sections keep the order of their rows.
struct FakeIdentity {
    QString id; ///< a UUID of this generation, in upper case
    QString full_name;
    QString address; ///< with line breaks where the host sent some
    FakeGender gender = FakeGender::Male;
    QList<ExtraInfo> more_section;
    QList<ExtraInfo> phone_section;
    QList<ExtraInfo> internet_section;
    QList<ExtraInfo> body_section;
    QList<ExtraInfo> other_section;

    bool operator==(const FakeIdentity &) const = default;

    QJsonObject encoded() const;
    static FakeIdentity decode(JsonDecoder &json);
};

/// An identity that the user kept under a name of their own.
struct IdentityHistory {
    QString name;
    double time = 0; ///< when it was saved; seconds since 1970
    FakeIdentity identity;

    bool operator==(const IdentityHistory &) const = default;

    QJsonObject encoded() const;
    static IdentityHistory decode(JsonDecoder &json);
};

size_t qHash(const ExtraInfo &info, size_t seed = 0);
size_t qHash(const FakeIdentity &identity, size_t seed = 0);

/// What the identity host answers. Every key is required.
struct FakeIdentity2 {
    QString name;
    QString maiden_name;
    QString address;
    double latitude = 0;
    double longitude = 0;
    QString birth_data; ///< yyyy-MM-dd
    QString phone_h;
    QString phone_w;
    QString email_u; ///< what stands in front of the "@"
    QString email_d; ///< and behind it
    QString username;
    QString useragent;
    QString company;
    double height = 0;
    double weight = 0;
    QString blood;
    QString eye;
    QString hair;
    QString sport;

    static FakeIdentity2 decode(JsonDecoder &json);
};

} // namespace orl

Q_DECLARE_METATYPE(orl::IdentityHistory)
