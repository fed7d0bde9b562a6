#include "played_network.h"

#include <QDBusMessage>
#include <QStringList>
#include <QVariantMap>

namespace orl {

namespace {

const QString name = QStringLiteral("org.freedesktop.NetworkManager");
const QString path = QStringLiteral("/org/freedesktop/NetworkManager");

} // namespace

PlayedNetwork::PlayedNetwork(QDBusConnection bus) : bus_(std::move(bus)) {
    bus_.registerObject(path, this, QDBusConnection::ExportAllProperties);
    bus_.registerService(name);
}

void PlayedNetwork::setOnline(bool online) {
    online_ = online;
    QDBusMessage told = QDBusMessage::createSignal(path, QStringLiteral("org.freedesktop.DBus.Properties"),
                                                   QStringLiteral("PropertiesChanged"));
    told << name
         << QVariantMap{{QStringLiteral("State"), state()}, {QStringLiteral("Connectivity"), connectivity()}}
         << QStringList();
    bus_.send(told);
}

} // namespace orl
