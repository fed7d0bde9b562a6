#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUuid>

#include <optional>
#include <type_traits>
#include <utility>

namespace orl {

/// Reads the keys of one JSON object, strictly: a required key that is missing or null, or a value of another
/// type anywhere, rejects the whole document. Unknown keys are passed over; an optional key may be missing or
/// null, but not of another type.
///
/// The first error is kept with its place, such as "admob.banner_ad_enabled: a boolean is expected"; reads
/// after it give defaults, so that a record decodes in one breath:
///
///     Letter decodeLetter(JsonDecoder &json) { return {json.text("id"), json.optionalText("subject")}; }
///     Result<Letter> letter = decodeJson(bytes, decodeLetter);
///
/// Braces, as here, make the reads follow the order of the fields.
class JsonDecoder {
public:
    /// A document whose top is an object.
    explicit JsonDecoder(const QByteArray &document);
    JsonDecoder(const JsonDecoder &) = delete;
    JsonDecoder &operator=(const JsonDecoder &) = delete;

    QString text(const char *key);
    bool boolean(const char *key);
    /// A number without a fraction that fits 64 bits; 3.0 is one.
    qint64 integer(const char *key);
    double real(const char *key);
    /// A text of 36 characters in the canonical form, in upper or lower case.
    QUuid uuid(const char *key);
    QStringList textList(const char *key);
    QList<bool> booleanList(const char *key);

    std::optional<QString> optionalText(const char *key);
    std::optional<bool> optionalBoolean(const char *key);
    std::optional<qint64> optionalInteger(const char *key);
    std::optional<double> optionalReal(const char *key);

    /// `decode` is a function (JsonDecoder &) -> T here and below.
    template<class Decode>
    auto object(const char *key, Decode decode) {
        JsonDecoder child(*this, key, -1, take(key, QJsonValue::Object).toObject());
        return decode(child);
    }

    template<class Decode>
    auto optionalObject(const char *key, Decode decode)
        -> std::optional<std::invoke_result_t<Decode, JsonDecoder &>> {
        if (isAbsent(key)) return std::nullopt;
        return object(key, decode);
    }

    template<class Decode>
    auto list(const char *key, Decode decode) {
        return decodeElements(take(key, QJsonValue::Array).toArray(), key, decode);
    }

    template<class Decode>
    auto optionalList(const char *key, Decode decode)
        -> std::optional<QList<std::invoke_result_t<Decode, JsonDecoder &>>> {
        if (isAbsent(key)) return std::nullopt;
        return list(key, decode);
    }

    /// Rejects the document for a reason of the record's own, such as a text outside a closed vocabulary.
    void fail(const char *key, const QString &words);
    void fail(const QString &words);

    bool failed() const { return root_.failure_.has_value(); }

    /// The value, or the first error if there was one anywhere in the document.
    template<class T>
    Result<T> result(T value) const {
        if (failed()) return *root_.failure_;
        return value;
    }

private:
    template<class Decode>
    friend auto decodeJson(const QByteArray &document, Decode decode)
        -> Result<std::invoke_result_t<Decode, JsonDecoder &>>;
    template<class Decode>
    friend auto decodeJsonList(const QByteArray &document, Decode decode)
        -> Result<QList<std::invoke_result_t<Decode, JsonDecoder &>>>;
    friend Result<QStringList> decodeJsonTextList(const QByteArray &document);

    enum class Top { Object, List };

    JsonDecoder(const QByteArray &document, Top top);
    JsonDecoder(JsonDecoder &parent, const char *key, qsizetype index, QJsonObject object)
        : root_(parent.root_), parent_(&parent), key_(key), index_(index), object_(std::move(object)) {}

    template<class Decode>
    auto decodeElements(const QJsonArray &array, const char *key, Decode decode) {
        QList<std::invoke_result_t<Decode, JsonDecoder &>> records;
        for (qsizetype i = 0; i < array.size() && !failed(); ++i) {
            if (!expect(array.at(i), QJsonValue::Object, key, i)) break;
            JsonDecoder child(*this, key, i, array.at(i).toObject());
            records.append(decode(child));
        }
        return records;
    }

    void parse(const QByteArray &document, Top top);
    bool isAbsent(const char *key) const;
    QJsonValue take(const char *key, QJsonValue::Type type);
    bool expect(const QJsonValue &value, QJsonValue::Type type, const char *key, qsizetype index);
    QStringList texts(const QJsonArray &array, const char *key);
    void failAt(const char *key, qsizetype index, const QString &words);
    QString place(const char *key, qsizetype index) const;

    JsonDecoder &root_;
    const JsonDecoder *parent_ = nullptr;
    const char *key_ = nullptr;
    qsizetype index_ = -1;
    QJsonObject object_;
    QJsonArray list_;              // of the root, where the top is a list
    std::optional<Error> failure_; // of the root
};

/// A document whose top is an object.
template<class Decode>
auto decodeJson(const QByteArray &document, Decode decode)
    -> Result<std::invoke_result_t<Decode, JsonDecoder &>> {
    JsonDecoder json(document);
    return json.result(decode(json));
}

/// A document whose top is a list of objects. One bad element rejects all.
template<class Decode>
auto decodeJsonList(const QByteArray &document, Decode decode)
    -> Result<QList<std::invoke_result_t<Decode, JsonDecoder &>>> {
    JsonDecoder json(document, JsonDecoder::Top::List);
    return json.result(json.decodeElements(json.list_, nullptr, decode));
}

/// A document whose top is a list of texts.
Result<QStringList> decodeJsonTextList(const QByteArray &document);

/// The document without blanks, as it is stored. Doubles keep their full precision.
QByteArray encodeJson(const QJsonObject &object);
QByteArray encodeJson(const QJsonArray &list);

/// A UUID as documents and stored records hold it: upper case, no braces.
QString uuidText(const QUuid &uuid);

/// The UUID of a canonical text in upper or lower case; nothing for any other text.
std::optional<QUuid> uuidFromText(const QString &text);

} // namespace orl
