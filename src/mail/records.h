#pragma once

#include "platform/json.h"

#include <QList>
#include <QObject>
#include <QString>

#include <optional>

namespace orl {

/// Who wrote a mail.
struct Sender {
    Q_GADGET
    Q_PROPERTY(QString display_name MEMBER display_name CONSTANT)
    Q_PROPERTY(QString email MEMBER email CONSTANT)
public:
    QString id = {};
    QString display_name = {};
    QString email = {};

    static Sender decode(JsonDecoder &json);
    bool operator==(const Sender &) const = default;
};
size_t qHash(const Sender &sender, size_t seed = 0) noexcept;

/// A file that came with a mail.
struct MailAttachment {
    QString id = {};
    QString email_id = {};  ///< the mail that owns it
    QString file_name = {}; ///< as the sender gave it
    QString content_type = {};
    QString size_for_human = {}; ///< ready-made text
    double size_in_bytes = 0;

    static MailAttachment decode(JsonDecoder &json);
    bool operator==(const MailAttachment &) const = default;
};
size_t qHash(const MailAttachment &attachment, size_t seed = 0) noexcept;

/// One mail as the mail host lists it. `read` and `content` are overwritten with what is known here.
struct MailInfo {
    QString id = {}; ///< also the key of its read mark
    QString subject = {};
    QString created_at = {}; ///< time of arrival; see mailTime
    Sender sender = {};
    std::optional<QString> read = {}; ///< when the user opened it first
    bool has_html = false;
    bool has_text = false;
    std::optional<QString> content = {}; ///< the page to show; see mailPage
    std::optional<QList<MailAttachment>> attachments = {};

    static MailInfo decode(JsonDecoder &json);
    bool operator==(const MailInfo &) const = default;
};
size_t qHash(const MailInfo &mail, size_t seed = 0) noexcept;

/// What the mail host answers when it is asked for an inbox; newest mail first.
struct Mail {
    QList<MailInfo> data;

    static Mail decode(JsonDecoder &json);
    bool operator==(const Mail &) const = default;
};
size_t qHash(const Mail &mail, size_t seed = 0) noexcept;

} // namespace orl
