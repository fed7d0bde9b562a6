#include "client.h"

#include <QDateTime>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QStringDecoder>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

struct MailboxesTest : testing::Test {
    PlayedHost played;

    QJsonArray inbox(const QString &address) const { return inboxOf(played, address); }
    static QJsonArray inboxOf(const PlayedHost &host, const QString &address) {
        const Answer answer = host.get(u"/mail/api/emails?inbox="_s + address);
        EXPECT_EQ(answer.headers.value("content-type"), "application/json");
        return QJsonDocument::fromJson(answer.body).object()[u"data"_s].toArray();
    }
    Answer body(const QString &id, const QByteArray &accept) const {
        return fetch(played.host.port(), u"/mail/api/emails/"_s + id, "GET",
                     accept.isEmpty() ? QByteArray() : "Accept: " + accept + "\r\n");
    }
    /// The inbox once its first mails of each kind are there.
    QJsonArray filled(const QString &address = u"a@x.example"_s) {
        inbox(address);
        played.advance(80);
        return inbox(address);
    }
};

QStringList ids(const QJsonArray &mails) {
    QStringList all;
    for (const QJsonValue &mail : mails)
        all << mail[u"id"_s].toString();
    return all;
}

} // namespace

TEST_F(MailboxesTest, AnInboxBeginsWithAWelcomeAndFillsWhileItIsWatched) {
    const QJsonArray first = inbox(u"a@x.example"_s);
    ASSERT_EQ(first.size(), 1);
    EXPECT_EQ(first[0][u"subject"_s].toString(), u"Welcome to your inbox"_s);
    EXPECT_EQ(first[0][u"created_at"_s].toString(),
              QDateTime::fromSecsSinceEpoch(qint64(played.now.load()), Qt::UTC)
                  .toString(u"yyyy-MM-dd'T'HH:mm:ss'+0000'"_s));
    qsizetype before = 1;
    for (int i = 0; i < 4; ++i) {
        played.advance(36);
        const QJsonArray now = inbox(u"a@x.example"_s);
        EXPECT_GT(now.size(), before) << "after half a minute and a bit";
        EXPECT_EQ(ids(now).last(), ids(first).first()) << "newest first";
        before = now.size();
    }
    played.advance(24 * 3600);
    EXPECT_EQ(inbox(u"a@x.example"_s).size(), 40);
    EXPECT_EQ(inbox(u"b@x.example"_s).size(), 1) << "each address has an inbox of its own";
    EXPECT_EQ(ids(inbox(u"A@X.example"_s)), ids(inbox(u"a@x.example"_s))) << "whatever its case";
    EXPECT_TRUE(inbox(u"noreply@x.example"_s).isEmpty());
}

TEST_F(MailboxesTest, ARestartedHostSendsTheSameMailsUnderTheSameIds) {
    const QJsonArray before = filled();
    const PlayedHost again;
    EXPECT_EQ(ids(inboxOf(again, u"a@x.example"_s)), QStringList{ids(before).last()});
    for (const QString &id : ids(before)) {
        // What they refer to has the host's port in it.
        QByteArray expected = body(id, "text/html,text/plain").body;
        expected.replace(QByteArray::number(played.host.port()), QByteArray::number(again.host.port()));
        EXPECT_EQ(fetch(again.host.port(), u"/mail/api/emails/"_s + id).body, expected);
    }
}

TEST_F(MailboxesTest, TheFirstFormOfTheAcceptHeaderThatAMailHasIsServed) {
    const QJsonArray mails = filled();
    QString html, text;
    for (const QJsonValue &mail : mails) {
        if (!mail[u"has_text"_s].toBool()) html = mail[u"id"_s].toString();
        if (!mail[u"has_html"_s].toBool()) text = mail[u"id"_s].toString();
    }
    struct Case {
        QString id;
        const char *accept;
        const char *type;
    };
    const Case cases[] = {
        {html, "text/html,text/plain,application/json", "text/html; charset=utf-8"},
        {text, "text/html,text/plain,application/json", "text/plain; charset=utf-8"},
        {html, "text/plain, application/json;q=0.5", "application/json"},
        {html, "application/vnd.fleiklal.v1+json", "application/vnd.fleiklal.v1+json"},
        {text, "message/rfc2822,text/plain", "message/rfc2822"},
        {text, "", "text/plain; charset=utf-8"},
        {html, "*/*", "text/html; charset=utf-8"},
        {html, "image/png", "text/plain"},
    };
    for (const Case &row : cases) {
        const Answer answer = body(row.id, row.accept);
        EXPECT_EQ(answer.headers.value("content-type"), row.type) << row.accept;
        EXPECT_EQ(answer.status, QByteArray(row.accept) == "image/png" ? 406 : 200);
        EXPECT_FALSE(answer.body.isEmpty());
    }
}

TEST_F(MailboxesTest, TheFirstMailsAreOfEveryKind) {
    int withTables = 0, withPictures = 0, invalid = 0, plain = 0, codes = 0;
    for (const QString &id : ids(filled())) {
        const Answer answer = body(id, "text/html,text/plain");
        QStringDecoder decoder(QStringDecoder::Utf8);
        const QString text = decoder(answer.body);
        invalid += decoder.hasError();
        withTables += text.contains(u"<table"_s) && text.contains(u"<img"_s);
        plain += answer.headers.value("content-type").startsWith("text/plain");
        codes += text.contains(u"code"_s);
        EXPECT_FALSE(text.contains(u"@SERVICE@"_s) || text.contains(u"@LINK@"_s) ||
                     text.contains(u"@HOST@"_s));
        for (qsizetype at = 0; (at = text.indexOf(u"src=\"http://"_s, at)) >= 0; ++at) {
            const QString path = text.mid(at + 5).section(u'"', 0, 0).section(u'/', 3);
            EXPECT_FALSE(QImage::fromData(played.get(u'/' + path).body).isNull()) << path.toStdString();
            ++withPictures;
        }
    }
    EXPECT_GE(withTables, 1);
    EXPECT_GE(withPictures, 3);
    EXPECT_GE(invalid, 1);
    EXPECT_GE(plain, 2);
    EXPECT_GE(codes, 2);
}

TEST_F(MailboxesTest, AttachmentsAreWhatTheirNamesSay) {
    QSet<QString> endings;
    const QJsonArray mails = filled();
    for (const QJsonValue &mail : mails) {
        for (const QJsonValue &file : mail[u"attachments"_s].toArray()) {
            EXPECT_EQ(file[u"email_id"_s], mail[u"id"_s]);
            const Answer answer = played.get(u"/mail/api/emails/%1/attachments/%2"_s.arg(
                file[u"email_id"_s].toString(), file[u"id"_s].toString()));
            EXPECT_EQ(answer.status, 200);
            EXPECT_EQ(answer.headers.value("content-type"), file[u"content_type"_s].toString().toLatin1());
            EXPECT_EQ(answer.body.size(), file[u"size_in_bytes"_s].toInt());
            const QString ending = file[u"file_name"_s].toString().section(u'.', -1).toLower();
            if (ending == u"png"_s || ending == u"jpg"_s) {
                EXPECT_FALSE(QImage::fromData(answer.body).isNull());
            }
            endings << ending;
        }
    }
    EXPECT_TRUE(endings.contains(QSet<QString>{u"jpg"_s, u"png"_s, u"pdf"_s}));
    const QString id = ids(mails).last();
    EXPECT_EQ(played.get(u"/mail/api/emails/%1/attachments/f9"_s.arg(id)).status, 404);
    EXPECT_EQ(played.get(u"/mail/api/emails/nobody"_s).status, 404);
}

TEST_F(MailboxesTest, FaultsSpoilAnInbox) {
    inbox(u"a@x.example"_s);
    played.host.setFault(u"/mail/api/emails"_s, Fault::Kind::WrongType);
    EXPECT_FALSE(QJsonDocument::fromJson(played.get(u"/mail/api/emails?inbox=a@x.example"_s).body)[u"data"_s]
                     .isArray());
    played.host.setFault(u"/mail/api/emails"_s, Fault::Kind::MissingKey);
    EXPECT_TRUE(inbox(u"a@x.example"_s).isEmpty());
}

} // namespace orl::demo
