#pragma once

#include "platform/process.h"

#include <QObject>

namespace orl {

/// The user's wish that reading a mail tells nobody: mails are then shown cleaned, and pictures from the web
/// only when asked for. Off at first, kept in the store. Main thread; one shared instance per Process.
class MailPrivacy : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isOn READ isOn WRITE setOn NOTIFY isOnChanged)
public:
    explicit MailPrivacy(Process &process);

    bool isOn() const { return isOn_; }
    void setOn(bool on);

Q_SIGNALS:
    void isOnChanged();

private:
    Process &process_;
    bool isOn_;
};

} // namespace orl
