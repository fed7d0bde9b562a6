#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>

#include <chrono>
#include <memory>

class QLocalServer;

namespace orl {

/// Keeps a second start of the program from running beside the first one: it calls the first to the front
/// and ends.
///
/// On a session bus the program owns the name "com.tarvo.Orl" and answers org.freedesktop.Application, so
/// that a desktop can activate it too. Where no bus runs, a socket in the user's runtime folder does the
/// same. Programs on other data folders are others: each has a name of its own.
class SingleInstance : public QObject {
    Q_OBJECT
public:
    enum class Start {
        First,   ///< go on
        Second,  ///< the first one has come to the front: end
        NoAnswer ///< there is a first one, but it does not answer
    };

    /// How long the first one may take to answer.
    static constexpr std::chrono::seconds patience{5};

    /// `dataFolder` empty: the user's own one.
    SingleInstance(const QString &dataFolder, const QDBusConnection &bus, const QString &runtimeFolder);
    ~SingleInstance() override;

    /// Blocks, at most for `patience`, and only where there is a first one. The activation token, which may
    /// be empty, is what the desktop gave this start so that a window may come to the front.
    Start start(const QString &activationToken);

    /// The bus name of a program on this data folder.
    static QString nameFor(const QString &dataFolder);

Q_SIGNALS:
    /// Somebody wants to see the program.
    void activated(const QString &activationToken);

private:
    Start startOnBus(const QString &activationToken);
    Start startOnSocket(const QString &activationToken);
    bool holdLock(const QString &path);
    bool listen(const QString &socket);
    void answerSocket();

    const QString name_;
    const QString runtimeFolder_;
    QDBusConnection bus_;
    int lock_ = -1; ///< the open lock file
    std::unique_ptr<QLocalServer> server_;
};

} // namespace orl
