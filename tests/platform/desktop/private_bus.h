#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QTemporaryDir>

namespace orl {

/// A message bus of the test's own, on which nothing can be started: what answers, the test put there.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

    /// A connection of its own for each part that is to look like a program of its own.
    QDBusConnection connection(const QString &name);

    const QString &address() const { return address_; }

private:
    QTemporaryDir folder_;
    QProcess daemon_;
    QString address_;
    QStringList names_;
};

/// Lets all messages that are under way from and to the owner of the name `service` arrive at `bus`: the
/// owner's answer to one more call comes behind them. (The daemon's own answer would not do: it may overtake
/// what the owner has sent.)
void settle(const QDBusConnection &bus, const QString &service);

} // namespace orl
