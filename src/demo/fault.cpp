#include "fault.h"

#include "random.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>

using namespace Qt::StringLiterals;

namespace orl {

namespace {

using Kind = Fault::Kind;

constexpr std::array<std::pair<const char16_t *, Kind>, 12> names{{{u"None", Kind::None},
                                                                   {u"Slow", Kind::Slow},
                                                                   {u"CutOff", Kind::CutOff},
                                                                   {u"Garbage", Kind::Garbage},
                                                                   {u"InvalidUtf8", Kind::InvalidUtf8},
                                                                   {u"NotFound", Kind::NotFound},
                                                                   {u"Empty", Kind::Empty},
                                                                   {u"Huge", Kind::Huge},
                                                                   {u"WrongSite", Kind::WrongSite},
                                                                   {u"MissingKey", Kind::MissingKey},
                                                                   {u"WrongType", Kind::WrongType},
                                                                   {u"Dead", Kind::Dead}}};

} // namespace

Fault Fault::slow(int milliseconds) {
    Fault fault(Kind::Slow);
    fault.milliseconds = milliseconds;
    return fault;
}

std::optional<Fault> Fault::named(const QString &name, int milliseconds) {
    for (const auto &[text, kind] : names) {
        if (name.compare(QStringView(text), Qt::CaseInsensitive) == 0) {
            Fault fault(kind);
            fault.milliseconds = milliseconds;
            return fault;
        }
    }
    return std::nullopt;
}

namespace demo {

namespace {

QByteArray garbage(quint64 seed) {
    Random random(seed);
    QByteArray bytes(20'000 + random.below(20'000), Qt::Uninitialized);
    for (char &byte : bytes)
        byte = static_cast<char>(random.below(256));
    return bytes;
}

/// A lead byte without its rest, a bare continuation byte, an overlong form, a surrogate and bytes that never
/// occur.
QByteArray withInvalidUtf8(const QByteArray &body) {
    static const QByteArray broken = "\xc3(\x80\xc0\xaf\xed\xa0\x80\xff\xfe";
    QByteArray bytes;
    constexpr qsizetype step = 997;
    for (qsizetype at = 0; at < body.size() || at == 0; at += step)
        bytes += body.mid(at, step) + broken;
    return bytes;
}

QByteArray otherSite() {
    return "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\"><title>Harbour "
           "Bakery</title></head>\n"
           "<body><h1>Fresh bread every morning</h1><p>Open from 6 to 14, <a "
           "href=\"/prices\">prices</a>.</p>\n"
           "<ul><li>Rye</li><li>Spelt &amp; honey</li></ul></body></html>\n";
}

QJsonValue ofOtherType(const QJsonValue &value) {
    return value.isString() ? QJsonValue(7) : QJsonValue(u"wrong"_s);
}

QJsonObject damaged(QJsonObject object, Kind kind) {
    if (object.isEmpty()) return object;
    const QString first = object.keys().front();
    if (kind == Kind::MissingKey)
        object.remove(first);
    else
        object.insert(first, ofOtherType(object.value(first)));
    return object;
}

QByteArray damagedJson(const QByteArray &body, Kind kind) {
    const QJsonDocument document = QJsonDocument::fromJson(body);
    if (document.isObject()) return QJsonDocument(damaged(document.object(), kind)).toJson();
    QJsonArray list = document.array();
    if (list.isEmpty()) return body;
    if (list.first().isObject())
        list.replace(0, damaged(list.first().toObject(), kind));
    else if (kind == Kind::WrongType)
        list.replace(0, ofOtherType(list.first()));
    return QJsonDocument(list).toJson();
}

} // namespace

void FaultTable::set(const QString &prefix, Fault fault) {
    const std::scoped_lock lock(mutex_);
    faults_[prefix] = fault;
}

void FaultTable::clear() {
    const std::scoped_lock lock(mutex_);
    faults_.clear();
}

Fault FaultTable::find(const QString &path) const {
    const std::scoped_lock lock(mutex_);
    Fault found;
    qsizetype longest = -1;
    for (const auto &[prefix, fault] : faults_) {
        if (prefix.size() > longest && path.startsWith(prefix)) {
            longest = prefix.size();
            found = fault;
        }
    }
    return found;
}

Reply spoiled(Reply reply, Fault::Kind kind, quint64 seed) {
    switch (kind) {
    case Kind::Garbage: reply.body = garbage(seed); break;
    case Kind::InvalidUtf8: reply.body = withInvalidUtf8(reply.body); break;
    case Kind::NotFound: return notFoundPage();
    case Kind::Empty: reply.body.clear(); break;
    case Kind::WrongSite: reply = {200, "text/html; charset=utf-8", otherSite()}; break;
    case Kind::MissingKey:
    case Kind::WrongType:
        if (reply.type == "application/json") reply.body = damagedJson(reply.body, kind);
        break;
    case Kind::None:
    case Kind::Slow:
    case Kind::CutOff:
    case Kind::Huge:
    case Kind::Dead: break;
    }
    return reply;
}

} // namespace demo
} // namespace orl
