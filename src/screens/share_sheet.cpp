#include "screens/share_sheet.h"

#include "screens/copy_view_model.h"

#include <QUrlQuery>

namespace orl {

ShareSheet::ShareSheet(Process &process, CopyViewModel &copy, QObject *parent)
    : QObject(parent), process_(process), copy_(copy) {}

bool ShareSheet::canMail() const {
    return process_.platform().mailComposer.canSendMail();
}

void ShareSheet::present(const QString &text, const QUrl &link) {
    text_ = text;
    link_ = link;
    setIsPresented(true);
}

void ShareSheet::copyText() {
    copy_.copy(text_);
    dismiss();
}

/// To nobody yet, which the port for mails to somebody cannot say: the mail program asks for whom it is.
void ShareSheet::mailText() {
    QUrl mail(QStringLiteral("mailto:"));
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("body"), QString::fromLatin1(QUrl::toPercentEncoding(text_)));
    mail.setQuery(query);
    process_.platform().browser.open(mail);
    dismiss();
}

void ShareSheet::openLink() {
    process_.platform().browser.open(link_);
    dismiss();
}

void ShareSheet::setIsPresented(bool presented) {
    isPresented_ = presented;
    Q_EMIT isPresentedChanged();
}

} // namespace orl
