#include "mailboxes.h"

#include "../ad_picture.h"
#include "../random.h"
#include "letter_files.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

constexpr int kept = 40; ///< mails of an inbox
constexpr qsizetype mostInboxes = 10'000;

/// Seconds from the beginning of an inbox to the arrival of a mail.
double arrival(quint64 key, int number) {
    constexpr std::array<double, openingLetters> first{0, 6, 14, 24, 36, 48, 60, 75};
    if (number < openingLetters) return first[size_t(number)];
    Random random(mix(key + 1, quint64(number)));
    return first.back() + 25 * (number - openingLetters + 1) + random.below(10);
}

int lastNumber(quint64 key, double age) {
    int number = 0;
    while (arrival(key, number + 1) <= age)
        ++number;
    return number;
}

QString idOf(quint64 key, int number) {
    return u"%1-%2"_s.arg(key, 16, 16, QChar(u'0')).arg(number);
}

QString timeStamp(double seconds) {
    return QDateTime::fromSecsSinceEpoch(qint64(seconds), Qt::UTC)
        .toString(u"yyyy-MM-dd'T'HH:mm:ss'+0000'"_s);
}

/// Asked for at each poll; painting a picture takes some milliseconds. Server's thread.
qsizetype fileSize(const QString &name, quint64 key) {
    static QHash<std::pair<quint64, QString>, qsizetype> known;
    if (known.size() > mostInboxes) known.clear();
    qsizetype &size = known[{key, name}];
    if (size == 0) size = letterFile(name, key).size();
    return size;
}

QJsonArray filesJson(const Letter &letter, const QString &mailId, quint64 key) {
    QJsonArray files;
    for (qsizetype i = 0; i < letter.files.size(); ++i) {
        const LetterFile &file = letter.files[i];
        const qsizetype size = fileSize(file.name, key);
        files.append(QJsonObject{{u"id"_s, u"f%1"_s.arg(i)},
                                 {u"email_id"_s, mailId},
                                 {u"file_name"_s, file.name},
                                 {u"content_type"_s, QString::fromLatin1(file.type)},
                                 {u"size_for_human"_s, sizeInWords(size)},
                                 {u"size_in_bytes"_s, double(size)}});
    }
    return files;
}

QJsonObject mailJson(const Letter &letter, const QString &id, double time, quint64 key) {
    QJsonObject json{{u"id"_s, id},
                     {u"subject"_s, letter.subject},
                     {u"created_at"_s, timeStamp(time)},
                     {u"sender"_s, QJsonObject{{u"id"_s, QString::number(mix(5, letter.senderAddress), 16)},
                                               {u"display_name"_s, letter.senderName},
                                               {u"email"_s, letter.senderAddress}}},
                     {u"read"_s, QJsonValue::Null},
                     {u"has_html"_s, !letter.html.isEmpty()},
                     {u"has_text"_s, !letter.text.isEmpty()}};
    if (!letter.files.isEmpty()) json.insert(u"attachments"_s, filesJson(letter, id, key));
    return json;
}

/// The mail as it would have come over the wire.
QByteArray source(const Letter &letter, const QString &address) {
    const bool html = !letter.html.isEmpty();
    return "From: <" + letter.senderAddress.toUtf8() + ">\r\nTo: <" + address.toUtf8() +
           ">\r\nSubject: =?utf-8?B?" + letter.subject.toUtf8().toBase64() +
           "?=\r\nMIME-Version: 1.0\r\nContent-Type: " + (html ? "text/html" : "text/plain") +
           "; charset=utf-8\r\nContent-Transfer-Encoding: base64\r\n\r\n" +
           (html ? letter.html : letter.text).toBase64() + "\r\n";
}

QByteArray pageBehindALink() {
    return "<!DOCTYPE html>\n<html lang=en><head><meta charset=utf-8><meta name=viewport "
           "content=\"width=device-width\"><title>Thank you</title></head>\n<body><h1>Thank you</h1><p>This "
           "is "
           "where the link in the mail leads.</body></html>\n";
}

} // namespace

Reply Mailboxes::answer(const Request &request) const {
    static const QRegularExpression mails(
        u"^/api/emails/([0-9a-f]{16})-(\\d{1,6})(?:/attachments/([^/]+))?$"_s);
    static const QRegularExpression pictures(u"^/pictures/([a-z0-9-]+)-(icon|wide)\\.jpg$"_s);
    if (request.path == u"/api/emails"_s) {
        const QString address = request.query.queryItemValue(u"inbox"_s, QUrl::FullyDecoded);
        return list(request, address);
    }
    if (const auto match = mails.match(request.path); match.hasMatch()) {
        const Place place{match.captured(1).toULongLong(nullptr, 16), match.captured(2).toInt()};
        const QString id = match.captured(3);
        return id.isEmpty() ? body(request, place) : file(request, place, id);
    }
    if (const auto match = pictures.match(request.path); match.hasMatch())
        return {200, "image/jpeg", adPicture(match.captured(1), match.captured(2))};
    if (request.path.startsWith(u"/pages/"_s)) return {200, "text/html; charset=utf-8", pageBehindALink()};
    return notFoundPage();
}

const Mailboxes::Inbox &Mailboxes::inbox(quint64 key, const QString &address, double now) const {
    if (inboxes_.size() >= mostInboxes && !inboxes_.contains(key)) inboxes_.clear();
    const auto known = inboxes_.constFind(key);
    return known == inboxes_.cend() ? *inboxes_.insert(key, {address, now}) : *known;
}

QString Mailboxes::addressOf(quint64 key) const {
    const auto known = inboxes_.constFind(key);
    return known == inboxes_.cend() ? QString() : known->address;
}

Letter Mailboxes::written(const Request &request, const Place &place) const {
    return letter(place.key, place.number, request.host, addressOf(place.key));
}

Reply Mailboxes::list(const Request &request, const QString &address) const {
    QJsonArray data;
    const quint64 key = mix(seed_, address.toLower());
    if (!address.startsWith(u"noreply@"_s, Qt::CaseInsensitive)) {
        const double begun = inbox(key, address, request.now).begun;
        const int last = lastNumber(key, request.now - begun);
        for (int number = last; number > std::max(last - kept, -1); --number) {
            const Letter mail = written(request, {key, number});
            data.append(mailJson(mail, idOf(key, number), begun + arrival(key, number), key));
        }
    }
    return {200, "application/json",
            QJsonDocument(QJsonObject{{u"data"_s, data}}).toJson(QJsonDocument::Compact)};
}

Reply Mailboxes::body(const Request &request, const Place &place) const {
    const Letter mail = written(request, place);
    const QByteArray accept = request.accept.trimmed().isEmpty() ? QByteArray("*/*") : request.accept;
    for (const QByteArray &entry : accept.split(',')) {
        const QByteArray type = entry.split(';').first().trimmed().toLower();
        const bool any = type == "*/*" || type == "text/*";
        if (!mail.html.isEmpty() && (any || type == "text/html"))
            return {200, "text/html; charset=utf-8", mail.html};
        if (!mail.text.isEmpty() && (any || type == "text/plain"))
            return {200, "text/plain; charset=utf-8", mail.text};
        if (type == "message/rfc2822") return {200, type, source(mail, addressOf(place.key))};
        if (type == "application/json" || type == "application/vnd.fleiklal.v1+json") {
            const auto known = inboxes_.constFind(place.key);
            const double begun = known == inboxes_.cend() ? request.now : known->begun;
            const double time = begun + arrival(place.key, place.number);
            return {200, type,
                    QJsonDocument(mailJson(mail, idOf(place.key, place.number), time, place.key)).toJson()};
        }
    }
    return {406, "text/plain", "This mail has no such form.\n"};
}

Reply Mailboxes::file(const Request &request, const Place &place, const QString &id) const {
    const Letter mail = written(request, place);
    for (qsizetype i = 0; i < mail.files.size(); ++i) {
        if (id == u"f%1"_s.arg(i))
            return {200, mail.files[i].type, letterFile(mail.files[i].name, place.key)};
    }
    return notFoundPage();
}

} // namespace orl::demo
