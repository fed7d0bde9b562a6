#include "accessible.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QPoint>

#include <utility>

namespace orl {

namespace {

const QString accessibleInterface = QStringLiteral("org.a11y.atspi.Accessible");
constexpr unsigned checkedState = 4;
constexpr unsigned showingState = 25;

/// The (bus name, path) pairs in which AT-SPI names objects.
QList<std::pair<QString, QString>> references(const QVariant &value) {
    QList<std::pair<QString, QString>> list;
    const auto argument = value.value<QDBusArgument>();
    argument.beginArray();
    while (!argument.atEnd()) {
        QString service;
        QDBusObjectPath path;
        argument.beginStructure();
        argument >> service >> path;
        argument.endStructure();
        list.append({service, path.path()});
    }
    argument.endArray();
    return list;
}

} // namespace

QVariantList Accessible::call(const QString &interface, const QString &method,
                              const QVariantList &arguments) const {
    QDBusMessage message = QDBusMessage::createMethodCall(service_, path_, interface, method);
    message.setArguments(arguments);
    const QDBusMessage answer = bus_.call(message, QDBus::Block, 5000);
    return answer.type() == QDBusMessage::ReplyMessage ? answer.arguments() : QVariantList();
}

QVariant Accessible::property(const QString &interface, const QString &name) const {
    const QVariantList answer =
        call(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"), {interface, name});
    return answer.isEmpty() ? QVariant() : answer.first().value<QDBusVariant>().variant();
}

std::optional<Accessible> Accessible::program(const QDBusConnection &bus, const QString &name) {
    const Accessible registry(bus, QStringLiteral("org.a11y.atspi.Registry"),
                              QStringLiteral("/org/a11y/atspi/accessible/root"));
    for (const Accessible &program : registry.children())
        if (program.name() == name) return program;
    return std::nullopt;
}

QString Accessible::name() const {
    return property(accessibleInterface, QStringLiteral("Name")).toString();
}

QString Accessible::role() const {
    const QVariantList answer = call(accessibleInterface, QStringLiteral("GetRoleName"));
    return answer.isEmpty() ? QString() : answer.first().toString();
}

QString Accessible::description() const {
    return property(accessibleInterface, QStringLiteral("Description")).toString();
}

bool Accessible::isShowing() const {
    return hasState(showingState);
}

bool Accessible::isChecked() const {
    return hasState(checkedState);
}

bool Accessible::hasState(unsigned state) const {
    const QVariantList answer = call(accessibleInterface, QStringLiteral("GetState"));
    if (answer.isEmpty()) return false;
    QList<uint> words;
    answer.first().value<QDBusArgument>() >> words;
    return !words.isEmpty() && (words.first() >> state & 1U);
}

QList<Accessible> Accessible::children() const {
    const QVariantList answer = call(accessibleInterface, QStringLiteral("GetChildren"));
    QList<Accessible> list;
    if (answer.isEmpty()) return list;
    for (const auto &[service, path] : references(answer.first()))
        list.append(Accessible(bus_, service, path));
    return list;
}

QList<Accessible> Accessible::all(const std::function<bool(const Accessible &)> &fits) const {
    QList<Accessible> found;
    for (const Accessible &child : children()) {
        if (fits(child) && child.isShowing()) found.append(child);
        found.append(child.all(fits));
    }
    return found;
}

bool Accessible::press() const {
    const QString action = QStringLiteral("org.a11y.atspi.Action");
    const int count = property(action, QStringLiteral("NActions")).toInt();
    for (int i = 0; i < count; ++i) {
        if (call(action, QStringLiteral("GetName"), {i}).value(0).toString() != QStringLiteral("Press"))
            continue;
        return call(action, QStringLiteral("DoAction"), {i}).value(0).toBool();
    }
    return false;
}

QPoint Accessible::centre() const {
    const QVariantList answer = call(QStringLiteral("org.a11y.atspi.Component"), QStringLiteral("GetExtents"),
                                     {QVariant::fromValue(0U)});
    if (answer.isEmpty()) return {};
    int x = 0, y = 0, width = 0, height = 0;
    const auto argument = answer.first().value<QDBusArgument>();
    argument.beginStructure();
    argument >> x >> y >> width >> height;
    argument.endStructure();
    return {x + width / 2, y + height / 2};
}

} // namespace orl
