#include "private_bus.h"

#include "support/wait_until.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QFile>

#include <gtest/gtest.h>

namespace orl {

namespace {

constexpr int patience = 30'000; // milliseconds; only a broken bus makes a test wait as long

constexpr const char *configuration =
    R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:dir=@FOLDER@</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

} // namespace

PrivateBus::PrivateBus() {
    const QString file = folder_.filePath(QStringLiteral("bus.conf"));
    QFile config(file);
    EXPECT_TRUE(config.open(QIODevice::WriteOnly));
    config.write(QByteArray(configuration).replace("@FOLDER@", folder_.path().toUtf8()));
    config.close();
    daemon_.setStandardErrorFile(QProcess::nullDevice()); // it complains of limits that it may not set
    daemon_.start(QStringLiteral("dbus-daemon"),
                  {QStringLiteral("--config-file=") + file, QStringLiteral("--nofork"),
                   QStringLiteral("--print-address")});
    EXPECT_TRUE(daemon_.waitForReadyRead(patience)) << "no dbus-daemon";
    address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
}

PrivateBus::~PrivateBus() {
    for (const QString &name : names_)
        QDBusConnection::disconnectFromBus(name);
    daemon_.kill();
    daemon_.waitForFinished(patience);
}

QDBusConnection PrivateBus::connection(const QString &name) {
    // Qt keeps connections by name for the whole process.
    static int count = 0;
    names_ << QStringLiteral("%1 %2").arg(name).arg(++count);
    QDBusConnection bus = QDBusConnection::connectToBus(address_, names_.back());
    EXPECT_TRUE(bus.isConnected());
    return bus;
}

void settle(const QDBusConnection &bus, const QString &service) {
    auto ping = QDBusMessage::createMethodCall(
        service, QStringLiteral("/"), QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping"));
    const QDBusPendingCallWatcher answer(bus.asyncCall(ping));
    EXPECT_TRUE(waitUntil([&] { return answer.isFinished(); }));
    QCoreApplication::processEvents();
}

} // namespace orl
