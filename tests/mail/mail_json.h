#pragma once

#include "platform/json.h"

namespace orl::test {

inline QJsonObject mailJson(const QString &id) {
    return {
        {"id", id},
        {"subject", "Subject of " + id},
        {"created_at", "2026-01-01T09:05:00+0000"},
        {"sender", QJsonObject{{"id", "s"}, {"display_name", "Shop"}, {"email", "shop@example.com"}}},
        {"has_html", true},
        {"has_text", false},
    };
}

inline QByteArray inboxJson(const QStringList &ids) {
    QJsonArray list;
    for (const QString &id : ids)
        list.append(mailJson(id));
    return encodeJson(QJsonObject{{"data", list}});
}

} // namespace orl::test
