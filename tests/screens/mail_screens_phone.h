#pragma once

#include "../mail/mail_json.h"
#include "screens/mail/t_mail_view.h"
#include "screens_phone.h"

namespace orl {

/// The mail tab on a played phone whose mail host knows one inbox.
struct MailScreensTest : ScreensTest {
    void answerInbox(const QByteArray &document) { phone.urls.answer(inboxUrl, document); }

    /// Mails with bodies.
    void answerInbox(const QStringList &ids) {
        for (const QString &id : ids)
            phone.urls.answer(bodyUrl(id), "<p>body of " + id.toUtf8());
        answerInbox(test::inboxJson(ids));
    }

    QString bodyUrl(const QString &id) const { return phone.endpoints.mailHost + "/api/emails/" + id; }

    /// The mail tab as it was just selected.
    TMailView &openTab() {
        makeHome();
        content->main()->select(1);
        return mail();
    }

    /// The tab of an inbox with these mails, all of them there.
    TMailView &openInbox(const QStringList &ids) {
        phone.store.setValue("selected_email", address);
        answerInbox(ids);
        openTab();
        phone.advance(std::chrono::seconds(3));
        return mail();
    }

    /// Actions count towards a full-screen ad from here on.
    void setInterstitials() {
        AppConfiguration configuration;
        configuration.admob.interstitialAdEnabled = true;
        configuration.admob.showFullAdAfter = 100;
        process->shared<ValuesInForce>().currentConfiguration->set(configuration);
    }

    TMailView &mail() { return *content->main()->mail(); }
    MailServiceViewModel &service() { return content->mailServiceVM(); }

    const QString address = QStringLiteral("Me@x.example");
    const QString inboxUrl = phone.endpoints.mailHost + "/api/emails?inbox=" + address;
};

} // namespace orl
