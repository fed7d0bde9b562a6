#pragma once

#include "mail/mail_service_view_model.h"
#include "mail_json.h"
#include "support/played_platform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

namespace orl {

namespace test {

inline QStringList ids(const QList<MailInfo> &mails) {
    QStringList all;
    for (const MailInfo &mail : mails)
        all << mail.id;
    return all;
}

} // namespace test

/// A played phone with a mail host that knows the inbox of one address. Bodies of the mails "a" to "d" are
/// there.
struct MailTest : testing::Test {
    MailTest() {
        for (const char *id : {"a", "b", "c", "d"})
            phone.urls.answer(bodyUrl(id), QByteArray("<p>body of ") + id);
        restart();
    }

    /// A new run of the program on the same store.
    void restart() {
        phone.endProcess();
        service.reset();
        process = std::make_unique<Process>(phone.platform());
    }

    MailServiceViewModel &make() {
        service = std::make_unique<MailServiceViewModel>(*process);
        return *service;
    }

    /// As make, with the first poll of an address done.
    MailServiceViewModel &makeWith(const QStringList &ids) {
        answerInbox(ids);
        make().setCurrentAddress(address);
        service->fetchMails();
        phone.settle();
        return *service;
    }

    void answerInbox(const QStringList &ids) { phone.urls.answer(inboxUrl, test::inboxJson(ids)); }

    /// The next poll of the chain, and what follows at once.
    void poll() { phone.advance(MailServiceViewModel::pollInterval); }

    QString bodyUrl(const QString &id) const { return phone.endpoints.mailHost + "/api/emails/" + id; }
    QString content(qsizetype position) const { return service->mails()[position].content.value_or("none"); }

    PlayedPlatform phone;
    const QString address = QStringLiteral("Me@x.example");
    const QString inboxUrl = phone.endpoints.mailHost + "/api/emails?inbox=" + address;
    std::unique_ptr<Process> process;
    std::unique_ptr<MailServiceViewModel> service;
};

} // namespace orl
