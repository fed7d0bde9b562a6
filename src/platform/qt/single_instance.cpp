#include "platform/qt/single_instance.h"

#include "platform/qt/application_object.h"

#include <QCryptographicHash>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDir>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace orl {

namespace {

const QString ownName = QStringLiteral("com.tarvo.Orl");
const QString objectPath = QStringLiteral("/com/tarvo/Orl");
const QString interface = QStringLiteral("org.freedesktop.Application");

constexpr int patienceMs = int(std::chrono::milliseconds(SingleInstance::patience).count());
constexpr qint64 longestToken = 4096;

} // namespace

SingleInstance::SingleInstance(const QString &dataFolder, const QDBusConnection &bus,
                               const QString &runtimeFolder)
    : name_(nameFor(dataFolder)), runtimeFolder_(runtimeFolder), bus_(bus) {}

SingleInstance::~SingleInstance() {
    server_.reset(); // ahead of the lock: who holds it next makes a socket of the same name
    if (lock_ >= 0) ::close(lock_);
    if (!bus_.isConnected()) return;
    bus_.unregisterObject(objectPath);
    bus_.unregisterService(name_);
}

QString SingleInstance::nameFor(const QString &dataFolder) {
    if (dataFolder.isEmpty()) return ownName;
    const QByteArray path = QDir::cleanPath(QDir(dataFolder).absolutePath()).toUtf8();
    const QByteArray hash = QCryptographicHash::hash(path, QCryptographicHash::Sha256).toHex().left(16);
    return ownName + QStringLiteral(".data_") + QString::fromLatin1(hash);
}

SingleInstance::Start SingleInstance::start(const QString &activationToken) {
    return bus_.isConnected() ? startOnBus(activationToken) : startOnSocket(activationToken);
}

SingleInstance::Start SingleInstance::startOnBus(const QString &activationToken) {
    // The object is there before the name is, so that whoever sees the name can call.
    new ApplicationObject(*this);
    bus_.registerObject(objectPath, this);
    if (bus_.registerService(name_)) return Start::First;
    bus_.unregisterObject(objectPath);
    auto call = QDBusMessage::createMethodCall(name_, objectPath, interface, QStringLiteral("Activate"));
    call << QVariantMap{{QStringLiteral("activation-token"), activationToken}};
    call.setAutoStartService(false);
    const QDBusMessage answer = bus_.call(call, QDBus::Block, patienceMs);
    return answer.type() == QDBusMessage::ReplyMessage ? Start::Second : Start::NoAnswer;
}

SingleInstance::Start SingleInstance::startOnSocket(const QString &activationToken) {
    const QString socket = QDir(runtimeFolder_).filePath(name_);
    if (holdLock(socket + QStringLiteral(".lock"))) {
        listen(socket);
        return Start::First;
    }
    QLocalSocket first;
    first.connectToServer(socket);
    if (!first.waitForConnected(patienceMs)) return Start::NoAnswer;
    first.write(activationToken.toUtf8().left(longestToken) + '\n');
    const bool answered = first.waitForReadyRead(patienceMs) && first.readAll().startsWith("ok");
    return answered ? Start::Second : Start::NoAnswer;
}

/// The lock goes with its process, however that ends; its file and the socket's stay. What the file holds
/// does not matter, so that nobody waits for a disk. Where there is no place for it, every start is the first
/// one.
bool SingleInstance::holdLock(const QString &path) {
    lock_ = ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    return lock_ < 0 || ::flock(lock_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

bool SingleInstance::listen(const QString &socket) {
    QLocalServer::removeServer(socket);
    server_ = std::make_unique<QLocalServer>();
    server_->setSocketOptions(QLocalServer::UserAccessOption);
    connect(server_.get(), &QLocalServer::newConnection, this, &SingleInstance::answerSocket);
    return server_->listen(socket);
}

void SingleInstance::answerSocket() {
    while (QLocalSocket *caller = server_->nextPendingConnection()) {
        connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        connect(caller, &QLocalSocket::readyRead, this, [this, caller] {
            if (!caller->canReadLine() && caller->bytesAvailable() <= longestToken) return;
            const QString token = QString::fromUtf8(caller->readLine(longestToken)).trimmed();
            caller->write("ok\n");
            caller->disconnectFromServer();
            Q_EMIT activated(token);
        });
    }
}

} // namespace orl
