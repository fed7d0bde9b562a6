#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace orl {

/// What is installed with the program: its resource files and its info values.
class Bundle {
public:
    virtual ~Bundle() = default;

    /// The bytes of a resource such as "countries.json"; nothing when there is no such file.
    virtual std::optional<QByteArray> resource(const QString &name) const = 0;

    /// An info value such as "CFBundleShortVersionString" or "CFBundleDisplayName"; nothing when it is
    /// missing.
    virtual std::optional<QString> infoValue(const QString &key) const = 0;
};

} // namespace orl
