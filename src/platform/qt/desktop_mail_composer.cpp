#include "platform/qt/desktop_mail_composer.h"

namespace orl {

DesktopMailComposer::DesktopMailComposer(MainQueue &mainQueue, Opener opener, HandlerFolders folders)
    : mainQueue_(mainQueue), opener_(std::move(opener)), folders_(std::move(folders)) {}

bool DesktopMailComposer::canSendMail() const {
    return hasHandler(QStringLiteral("x-scheme-handler/mailto"), folders_);
}

void DesktopMailComposer::compose(const QString &address, std::function<void(int)> result) {
    QUrl mail;
    mail.setScheme(QStringLiteral("mailto"));
    mail.setPath(address); // whatever stands in the address stays address: no header can be slipped in
    const bool opened = !address.isEmpty() && opener_(mail);
    if (!result) return;
    const MailResult outcome = opened ? MailResult::Saved : MailResult::Failed;
    mainQueue_.post([result = std::move(result), outcome] { result(int(outcome)); });
}

} // namespace orl
