#include "mail_phone.h"

#include <QJsonDocument>

namespace orl {
namespace {

const char *const whole = R"({"data": [{
    "id": "m1", "subject": "Hello", "created_at": "2026-01-01T09:05:00+0000", "read": "then",
    "sender": {"id": "s1", "display_name": "Shop", "email": "shop@example.com"},
    "has_html": true, "has_text": false, "content": "<p>x",
    "attachments": [{"id": "a1", "email_id": "m1", "file_name": "Photo.PNG", "content_type": "image/png",
                     "size_for_human": "1.5 KB", "size_in_bytes": 1536.5, "other": []}],
    "camelKey": 1}]})";

TEST(MailRecords, AnInboxIsDecodedWhole) {
    const Result<Mail> mail = decodeJson(whole, Mail::decode);
    ASSERT_TRUE(mail) << mail.error().description.toStdString();
    const MailAttachment attachment{"a1", "m1", "Photo.PNG", "image/png", "1.5 KB", 1536.5};
    const MailInfo expected{.id = "m1",
                            .subject = "Hello",
                            .created_at = "2026-01-01T09:05:00+0000",
                            .sender = {"s1", "Shop", "shop@example.com"},
                            .read = "then",
                            .has_html = true,
                            .has_text = false,
                            .content = "<p>x",
                            .attachments = QList{attachment}};
    EXPECT_EQ(mail.value(), Mail{{expected}});
    EXPECT_EQ(qHash(mail.value()), qHash(Mail{{expected}}));
    MailInfo other = expected;
    other.attachments->first().size_in_bytes = 2;
    EXPECT_NE(mail.value(), Mail{{other}});
}

TEST(MailRecords, WhatMayBeAbsentMayBeNull) {
    const Result<Mail> mail = decodeJson(test::inboxJson({"a"}), Mail::decode);
    ASSERT_TRUE(mail);
    const MailInfo &info = mail.value().data.first();
    EXPECT_FALSE(info.read || info.content || info.attachments);
    const QByteArray nulls = test::inboxJson({"a"}).replace(
        "\"has_html\"", R"("read":null,"content":null,"attachments":null,"has_html")");
    EXPECT_EQ(decodeJson(nulls, Mail::decode).value(), mail.value());
}

TEST(MailRecords, OneFaultyValueRejectsTheInbox) {
    struct Case {
        const char *from, *to, *error;
    };
    const Case cases[] = {
        {R"("data":)", R"("mails":)", "data: a list is expected, but the key is missing"},
        {R"("id": "m1", "subject")", R"("subject")",
         "data[0].id: a text is expected, but the key is missing"},
        {R"("Hello")", "7", "data[0].subject: a text is expected"},
        {R"("has_text": false)", R"("has_text": "no")", "data[0].has_text: a boolean is expected"},
        {R"("read": "then")", R"("read": true)", "data[0].read: a text is expected"},
        {R"("email": "shop@example.com")", R"("mail": "")",
         "data[0].sender.email: a text is expected, but the key is missing"},
        {"1536.5", R"("1536")", "data[0].attachments[0].size_in_bytes: a number is expected"},
        {R"("email_id": "m1",)", "",
         "data[0].attachments[0].email_id: a text is expected, but the key is missing"},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.from);
        const QByteArray document = QByteArray(whole).replace(row.from, row.to);
        ASSERT_NE(document, whole);
        const Result<Mail> mail = decodeJson(document, Mail::decode);
        ASSERT_FALSE(mail);
        EXPECT_EQ(mail.error().description, row.error);
    }
}

} // namespace
} // namespace orl
