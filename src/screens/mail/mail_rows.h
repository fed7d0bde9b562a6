#pragma once

#include "mail/mail_service_view_model.h"
#include "platform/process.h"
#include "screens/keyed_rows.h"

#include <QHash>

namespace orl {

/// The rows of the inbox. A mail that is still there keeps its row, and what a row shows is worked out when a
/// view asks for it, so that a long inbox costs little.
class MailRows : public orl::KeyedRows {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by TMailView")
public:
    MailRows(Process &process, MailServiceViewModel &service, QObject *parent = nullptr);

protected:
    /// A `created_at` of another form is a fatal error.
    QVariant shown(const QString &key, qsizetype role) const override;

private:
    void show();
    void showOne(int position);

    Process &process_;
    MailServiceViewModel &service_;
    QHash<QString, MailInfo> mails_;
};

/// The time of a mail as rows and headers show it.
QString shownMailTime(const Platform &platform, const MailInfo &mail);

} // namespace orl
