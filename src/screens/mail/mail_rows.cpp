#include "screens/mail/mail_rows.h"

#include "mail/mail_times.h"

namespace orl {

namespace {

enum class Role { Unread, Sender, Time, Subject, Image };

}

QString shownMailTime(const Platform &platform, const MailInfo &mail) {
    const std::optional<QString> time = mailTime(mail.created_at);
    if (!time) platform.fatal.fatalError(QStringLiteral("A mail came at \"%1\"").arg(mail.created_at));
    return *time;
}

MailRows::MailRows(Process &process, MailServiceViewModel &service, QObject *parent)
    : KeyedRows({"unread", "sender", "time", "subject", "image"}, parent),
      process_(process),
      service_(service) {
    connect(&service_, &MailServiceViewModel::mailsReplaced, this, &MailRows::show);
    connect(&service_, &MailServiceViewModel::mailChanged, this, &MailRows::showOne);
    show();
}

void MailRows::show() {
    QStringList keys;
    for (const MailInfo &mail : service_.mails())
        keys << mail.id;
    keys = withOccurrence(keys);
    QHash<QString, MailInfo> mails;
    for (qsizetype i = 0; i < keys.size(); ++i)
        mails.insert(keys[i], service_.mails()[i]);
    mails_.insert(mails);
    arrange(keys);
    mails_ = mails;
    changed(roles());
}

void MailRows::showOne(int position) {
    if (position >= count()) return;
    MailInfo &known = mails_[key(position)];
    const MailInfo &mail = service_.mails()[position];
    const bool differs = known.read != mail.read;
    known = mail;
    if (differs) changedRow(position);
}

QVariant MailRows::shown(const QString &key, qsizetype role) const {
    const auto mail = mails_.constFind(key);
    if (mail == mails_.cend()) return {};
    switch (Role(role)) {
    case Role::Unread: return !mail->read;
    case Role::Sender: return mail->sender.display_name;
    case Role::Time: return shownMailTime(process_.platform(), *mail);
    case Role::Subject: return mail->subject;
    case Role::Image: return QLatin1String(mail->read ? "envelope.open.fill" : "envelope");
    }
    return {};
}

} // namespace orl
