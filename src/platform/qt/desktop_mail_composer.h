#pragma once

#include "platform/mail_composer.h"
#include "platform/qt/mail_handler.h"
#include "platform/queues.h"

#include <QUrl>

#include <functional>

namespace orl {

/// Whatever the desktop writes mail with.
class DesktopMailComposer : public MailComposer {
public:
    /// Opens a URL in the program that the desktop has for it; false when there is none.
    using Opener = std::function<bool(const QUrl &)>;

    DesktopMailComposer(MainQueue &mainQueue, Opener opener,
                        HandlerFolders folders = HandlerFolders::ofTheDesktop());

    bool canSendMail() const override;
    void compose(const QString &address, std::function<void(int)> result) override;

private:
    MainQueue &mainQueue_;
    const Opener opener_;
    const HandlerFolders folders_;
};

} // namespace orl
