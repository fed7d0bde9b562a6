#include "mail/records.h"

namespace orl {

namespace {

template<class T>
size_t hashOptional(const std::optional<T> &value, size_t seed) {
    return value ? qHashMulti(seed, true, *value) : qHashMulti(seed, false);
}

} // namespace

Sender Sender::decode(JsonDecoder &json) {
    return {
        .id = json.text("id"),
        .display_name = json.text("display_name"),
        .email = json.text("email"),
    };
}

size_t qHash(const Sender &sender, size_t seed) noexcept {
    return qHashMulti(seed, sender.id, sender.display_name, sender.email);
}

MailAttachment MailAttachment::decode(JsonDecoder &json) {
    return {
        .id = json.text("id"),
        .email_id = json.text("email_id"),
        .file_name = json.text("file_name"),
        .content_type = json.text("content_type"),
        .size_for_human = json.text("size_for_human"),
        .size_in_bytes = json.real("size_in_bytes"),
    };
}

size_t qHash(const MailAttachment &attachment, size_t seed) noexcept {
    return qHashMulti(seed, attachment.id, attachment.email_id, attachment.file_name, attachment.content_type,
                      attachment.size_for_human, attachment.size_in_bytes);
}

MailInfo MailInfo::decode(JsonDecoder &json) {
    return {
        .id = json.text("id"),
        .subject = json.text("subject"),
        .created_at = json.text("created_at"),
        .sender = json.object("sender", Sender::decode),
        .read = json.optionalText("read"),
        .has_html = json.boolean("has_html"),
        .has_text = json.boolean("has_text"),
        .content = json.optionalText("content"),
        .attachments = json.optionalList("attachments", MailAttachment::decode),
    };
}

size_t qHash(const MailInfo &mail, size_t seed) noexcept {
    seed =
        qHashMulti(seed, mail.id, mail.subject, mail.created_at, mail.sender, mail.has_html, mail.has_text);
    seed = hashOptional(mail.read, seed);
    seed = hashOptional(mail.content, seed);
    return hashOptional(mail.attachments, seed);
}

Mail Mail::decode(JsonDecoder &json) {
    return {.data = json.list("data", MailInfo::decode)};
}

size_t qHash(const Mail &mail, size_t seed) noexcept {
    return qHashMulti(seed, mail.data);
}

} // namespace orl
