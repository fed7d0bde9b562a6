#include "desk.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QTest>

#include <csignal>
#include <sys/prctl.h>
#include <tuple>

namespace orl {

namespace {

const QString sessionName = QStringLiteral("walk-session");
const QString accessibilityName = QStringLiteral("walk-accessibility");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString colorScheme = QStringLiteral("color-scheme");
constexpr uint preferDark = 1, preferLight = 2;
constexpr qint64 firstDisplay = 1000, displays = 50000;

} // namespace

void PlayedPortal::setDark(bool dark) {
    dark_ = dark;
    QMetaObject::invokeMethod(this, [this, dark] {
        Q_EMIT SettingChanged(appearanceGroup, colorScheme, QDBusVariant(dark ? preferDark : preferLight));
    });
}

QDBusVariant PlayedPortal::Read(const QString &group, const QString &key) {
    if (group == appearanceGroup && key == colorScheme) return QDBusVariant(dark_ ? preferDark : preferLight);
    if (calledFromDBus()) sendErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"));
    return QDBusVariant(0U);
}

Desk::Desk() : environment_(QProcessEnvironment::systemEnvironment()) {
    for (const char *name : {"WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_QPA_PLATFORMTHEME", "ORL_ENDPOINTS"})
        environment_.remove(QLatin1String(name));
    environment_.insert(QStringLiteral("HOME"), home_.path());
    environment_.insert(QStringLiteral("XDG_RUNTIME_DIR"), home_.path());
    environment_.insert(QStringLiteral("XDG_DATA_HOME"), home_.filePath(QStringLiteral("data")));
    environment_.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));

    // A number of the walk's own: servers that look for a free one at the same time can take the same.
    const QString display =
        QStringLiteral(":%1").arg(firstDisplay + QCoreApplication::applicationPid() % displays);
    display_ = start(QStringLiteral("Xvfb"),
                     {display, QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-noreset"),
                      QStringLiteral("-screen"), QStringLiteral("0"), QStringLiteral("390x844x24"),
                      QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    firstLineOf(*display_);
    environment_.insert(QStringLiteral("DISPLAY"), display);
    bus_ = start(QStringLiteral("dbus-daemon"), {QStringLiteral("--session"), QStringLiteral("--nofork"),
                                                 QStringLiteral("--print-address=1")});
    const QString bus = QString::fromUtf8(firstLineOf(*bus_));
    environment_.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus);
    environment_.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), bus);
    if (problem_.isEmpty()) connectBuses();
}

Desk::~Desk() {
    QDBusConnection::disconnectFromBus(accessibilityName);
    QDBusConnection::disconnectFromBus(sessionName);
    services_.quit();
    services_.wait();
    for (QProcess *service : {bus_.get(), display_.get()}) {
        service->terminate();
        if (!service->waitForFinished(5000)) service->kill();
    }
}

QByteArray Desk::firstLineOf(QProcess &service) {
    std::ignore = QTest::qWaitFor(
        [&service] { return service.canReadLine() || service.state() == QProcess::NotRunning; }, 20000);
    const QByteArray line = service.readLine().trimmed();
    if (line.isEmpty())
        problem_ = service.program() + QStringLiteral(" did not start: ") + service.errorString();
    return line;
}

void Desk::connectBuses() {
    QDBusConnection session = QDBusConnection::connectToBus(
        environment_.value(QStringLiteral("DBUS_SESSION_BUS_ADDRESS")), sessionName);
    session.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), portal_,
                           QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
    notificationServer_ = new NotificationServer(session);
    network_ = new PlayedNetwork(session);
    for (QObject *service : std::initializer_list<QObject *>{portal_, notificationServer_, network_}) {
        service->moveToThread(&services_);
        QObject::connect(&services_, &QThread::finished, service, &QObject::deleteLater);
    }
    services_.start();
    session.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));

    const QDBusMessage ask =
        QDBusMessage::createMethodCall(QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                                       QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress"));
    const QDBusMessage answer = session.call(ask, QDBus::Block, 20000);
    const QString address = answer.arguments().value(0).toString();
    const QDBusConnection bus = QDBusConnection::connectToBus(address, accessibilityName);
    if (!bus.isConnected())
        problem_ =
            QStringLiteral("no accessibility bus: ") + answer.errorMessage() + bus.lastError().message();
}

std::vector<NotificationServer::Notification> Desk::notifications() const {
    std::vector<NotificationServer::Notification> shown;
    QMetaObject::invokeMethod(
        notificationServer_, [&] { shown = notificationServer_->shown; }, Qt::BlockingQueuedConnection);
    return shown;
}

QDBusConnection Desk::accessibilityBus() const {
    return QDBusConnection(accessibilityName);
}

std::unique_ptr<QProcess> Desk::start(const QString &program, const QStringList &arguments) const {
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment_);
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    process->start(program, arguments, QIODevice::ReadOnly);
    process->waitForStarted(20000);
    return process;
}

QString Desk::run(const QString &program, const QStringList &arguments) const {
    const std::unique_ptr<QProcess> process = start(program, arguments);
    std::ignore = QTest::qWaitFor([&process] { return process->state() == QProcess::NotRunning; }, 20000);
    return QString::fromUtf8(process->readAllStandardOutput());
}

} // namespace orl
