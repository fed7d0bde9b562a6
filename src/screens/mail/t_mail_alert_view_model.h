#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace orl {

/// What the mail screen has to say, if anything.
class TMailAlertViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by ContentView")
    Q_PROPERTY(bool shouldPresent READ shouldPresent NOTIFY shouldPresentChanged)
    Q_PROPERTY(QString title READ title NOTIFY titleChanged)
    Q_PROPERTY(QString msg READ msg NOTIFY msgChanged)
public:
    bool shouldPresent() const { return shouldPresent_; }
    const QString &title() const { return title_; }
    const QString &msg() const { return msg_; }

    Q_INVOKABLE void present(const QString &title, const QString &msg) {
        say(title, msg);
        setShouldPresent(true);
    }
    Q_INVOKABLE void dismiss() {
        setShouldPresent(false);
        say({}, {});
    }

Q_SIGNALS:
    void shouldPresentChanged();
    void titleChanged();
    void msgChanged();

private:
    void setShouldPresent(bool present) {
        shouldPresent_ = present;
        Q_EMIT shouldPresentChanged();
    }
    void say(const QString &title, const QString &msg) {
        title_ = title;
        Q_EMIT titleChanged();
        msg_ = msg;
        Q_EMIT msgChanged();
    }

    bool shouldPresent_ = false;
    QString title_;
    QString msg_;
};

} // namespace orl
