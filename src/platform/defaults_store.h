#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <utility>
#include <variant>
#include <vector>

namespace orl {

/// What a key may hold. A read of another type than was written gives nothing.
using StoredValue = std::variant<QByteArray, qint64, bool, QString, double>;

/// The keyed values that survive a restart. Usable from any thread. A value is the old one or the new one
/// after a kill at any moment.
class DefaultsStore {
public:
    virtual ~DefaultsStore() = default;

    virtual std::optional<StoredValue> value(const QString &key) const = 0;
    virtual void setValue(const QString &key, const StoredValue &value) = 0;
    virtual void remove(const QString &key) = 0;

    /// Stores several values so that after a kill either all of them are new or none is.
    virtual void setValues(const std::vector<std::pair<QString, StoredValue>> &values) = 0;

    std::optional<QByteArray> data(const QString &key) const { return as<QByteArray>(key); }
    std::optional<QString> text(const QString &key) const { return as<QString>(key); }
    qint64 integer(const QString &key) const { return as<qint64>(key).value_or(0); }
    bool boolean(const QString &key) const { return as<bool>(key).value_or(false); }
    double real(const QString &key) const { return as<double>(key).value_or(0.0); }

private:
    template<class T>
    std::optional<T> as(const QString &key) const {
        const std::optional<StoredValue> stored = value(key);
        if (!stored || !std::holds_alternative<T>(*stored)) return std::nullopt;
        return std::get<T>(*stored);
    }
};

} // namespace orl
