#include "platform/json.h"

#include <QJsonDocument>

namespace orl {

namespace {

QString expectation(QJsonValue::Type type) {
    switch (type) {
    case QJsonValue::Null: return QStringLiteral("null is expected");
    case QJsonValue::Bool: return QStringLiteral("a boolean is expected");
    case QJsonValue::Double: return QStringLiteral("a number is expected");
    case QJsonValue::String: return QStringLiteral("a text is expected");
    case QJsonValue::Array: return QStringLiteral("a list is expected");
    case QJsonValue::Object: return QStringLiteral("an object is expected");
    case QJsonValue::Undefined: break;
    }
    return QStringLiteral("nothing is expected");
}

// An escaped half of a surrogate pair is no text: it could not be written again.
bool isOfType(const QJsonValue &value, QJsonValue::Type type) {
    return value.type() == type && (!value.isString() || value.toString().isValidUtf16());
}

QString parseFailure(const QJsonParseError &error) {
    return QStringLiteral("no valid JSON: %1 at byte %2").arg(error.errorString()).arg(error.offset);
}

} // namespace

JsonDecoder::JsonDecoder(const QByteArray &document) : JsonDecoder(document, Top::Object) {}

JsonDecoder::JsonDecoder(const QByteArray &document, Top top) : root_(*this) {
    parse(document, top);
}

void JsonDecoder::parse(const QByteArray &document, Top top) {
    QJsonParseError error;
    const QJsonDocument parsed = QJsonDocument::fromJson(document, &error);
    if (error.error != QJsonParseError::NoError) return fail(parseFailure(error));
    const bool list = top == Top::List;
    if (parsed.isArray() != list) return fail(expectation(list ? QJsonValue::Array : QJsonValue::Object));
    object_ = parsed.object();
    list_ = parsed.array();
}

QString JsonDecoder::text(const char *key) {
    return take(key, QJsonValue::String).toString();
}

bool JsonDecoder::boolean(const char *key) {
    return take(key, QJsonValue::Bool).toBool();
}

double JsonDecoder::real(const char *key) {
    return take(key, QJsonValue::Double).toDouble();
}

qint64 JsonDecoder::integer(const char *key) {
    const QJsonValue value = take(key, QJsonValue::Double);
    // Only a value that is no integer gives back whatever default it is asked with.
    if (value.toInteger(0) != value.toInteger(1)) fail(key, QStringLiteral("an integer is expected"));
    return value.toInteger();
}

QUuid JsonDecoder::uuid(const char *key) {
    const std::optional<QUuid> uuid = uuidFromText(text(key));
    if (!uuid) fail(key, QStringLiteral("a UUID is expected"));
    return uuid.value_or(QUuid());
}

QStringList JsonDecoder::textList(const char *key) {
    return texts(take(key, QJsonValue::Array).toArray(), key);
}

QList<bool> JsonDecoder::booleanList(const char *key) {
    const QJsonArray array = take(key, QJsonValue::Array).toArray();
    QList<bool> list;
    for (qsizetype i = 0; i < array.size() && expect(array.at(i), QJsonValue::Bool, key, i); ++i) {
        list.append(array.at(i).toBool());
    }
    return list;
}

std::optional<QString> JsonDecoder::optionalText(const char *key) {
    if (isAbsent(key)) return std::nullopt;
    return text(key);
}

std::optional<bool> JsonDecoder::optionalBoolean(const char *key) {
    if (isAbsent(key)) return std::nullopt;
    return boolean(key);
}

std::optional<qint64> JsonDecoder::optionalInteger(const char *key) {
    if (isAbsent(key)) return std::nullopt;
    return integer(key);
}

std::optional<double> JsonDecoder::optionalReal(const char *key) {
    if (isAbsent(key)) return std::nullopt;
    return real(key);
}

void JsonDecoder::fail(const char *key, const QString &words) {
    failAt(key, -1, words);
}

void JsonDecoder::fail(const QString &words) {
    failAt(nullptr, -1, words);
}

bool JsonDecoder::isAbsent(const char *key) const {
    const QJsonValue value = object_.value(QLatin1String(key));
    return value.isUndefined() || value.isNull();
}

QJsonValue JsonDecoder::take(const char *key, QJsonValue::Type type) {
    const QJsonValue value = object_.value(QLatin1String(key));
    return expect(value, type, key, -1) ? value : QJsonValue();
}

bool JsonDecoder::expect(const QJsonValue &value, QJsonValue::Type type, const char *key, qsizetype index) {
    if (isOfType(value, type)) return true;
    const bool missing = value.isUndefined();
    failAt(key, index, expectation(type) + QLatin1String(missing ? ", but the key is missing" : ""));
    return false;
}

QStringList JsonDecoder::texts(const QJsonArray &array, const char *key) {
    QStringList list;
    for (qsizetype i = 0; i < array.size() && expect(array.at(i), QJsonValue::String, key, i); ++i) {
        list.append(array.at(i).toString());
    }
    return list;
}

void JsonDecoder::failAt(const char *key, qsizetype index, const QString &words) {
    if (failed()) return;
    const QString where = place(key, index);
    root_.failure_ = Error{where.isEmpty() ? words : where + QLatin1String(": ") + words};
}

QString JsonDecoder::place(const char *key, qsizetype index) const {
    QString place = parent_ ? parent_->place(key_, index_) : QString();
    if (key && !place.isEmpty()) place += QLatin1Char('.');
    if (key) place += QLatin1String(key);
    if (index >= 0) place += QStringLiteral("[%1]").arg(index);
    return place;
}

Result<QStringList> decodeJsonTextList(const QByteArray &document) {
    JsonDecoder json(document, JsonDecoder::Top::List);
    return json.result(json.texts(json.list_, nullptr));
}

QByteArray encodeJson(const QJsonObject &object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QByteArray encodeJson(const QJsonArray &list) {
    return QJsonDocument(list).toJson(QJsonDocument::Compact);
}

QString uuidText(const QUuid &uuid) {
    // By hand, as thousands are written in a row and the toolkit's way takes ten times as long.
    static constexpr char16_t digits[] = u"0123456789ABCDEF";
    QString text(36, u'-');
    QChar *place = text.data();
    const auto bytes = uuid.toRfc4122();
    for (int i = 0; i < bytes.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10) ++place;
        const auto byte = static_cast<quint8>(bytes[i]);
        *place++ = digits[byte >> 4];
        *place++ = digits[byte & 15];
    }
    return text;
}

std::optional<QUuid> uuidFromText(const QString &text) {
    const QUuid uuid = QUuid::fromString(text);
    if (uuid.toString(QUuid::WithoutBraces).compare(text, Qt::CaseInsensitive) != 0) return std::nullopt;
    return uuid;
}

} // namespace orl
