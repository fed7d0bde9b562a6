#include "mail/mail_privacy.h"

#include "platform/defaults_store.h"

namespace orl {

namespace {

const QString key = QStringLiteral("mail_private_mode");

}

MailPrivacy::MailPrivacy(Process &process)
    : process_(process), isOn_(process.platform().store.boolean(key)) {}

void MailPrivacy::setOn(bool on) {
    if (on == isOn_) return;
    isOn_ = on;
    process_.platform().store.setValue(key, on);
    Q_EMIT isOnChanged();
}

} // namespace orl
