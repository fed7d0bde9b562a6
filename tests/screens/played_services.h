#pragma once

#include "platform/mail_composer.h"
#include "platform/store_review.h"

#include <QStringList>

#include <functional>

namespace orl {

class PlayedMail : public MailComposer {
public:
    bool installed = true;
    QStringList composedTo;
    std::function<void(int)> done;

    bool canSendMail() const override { return installed; }
    void compose(const QString &address, std::function<void(int)> result) override {
        composedTo << address;
        done = std::move(result);
    }
};

struct PlayedStoreReview : StoreReview {
    int requests = 0;
    void requestReview() override { ++requests; }
};

} // namespace orl
