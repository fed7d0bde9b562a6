#pragma once

#include <QDBusConnection>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace orl {

/// A control of a running program as a screen reader meets it: an object on the accessibility bus (AT-SPI).
class Accessible {
public:
    Accessible(QDBusConnection bus, QString service, QString path)
        : bus_(std::move(bus)), service_(std::move(service)), path_(std::move(path)) {}

    /// The program of this name, once it has said that it is there.
    static std::optional<Accessible> program(const QDBusConnection &bus, const QString &name);

    QString name() const;
    QString description() const;
    QString role() const; ///< such as "push button"
    bool isShowing() const;
    bool isChecked() const;
    QList<Accessible> children() const;

    /// All that is shown below this one and fits, in the order of the tree.
    QList<Accessible> all(const std::function<bool(const Accessible &)> &fits) const;

    /// Does what a tap does; false where the control cannot be pressed.
    bool press() const;
    /// The middle of the control on the screen.
    QPoint centre() const;

private:
    bool hasState(unsigned state) const;
    QVariant property(const QString &interface, const QString &name) const;
    QVariantList call(const QString &interface, const QString &method,
                      const QVariantList &arguments = {}) const;

    QDBusConnection bus_;
    QString service_, path_;
};

} // namespace orl
