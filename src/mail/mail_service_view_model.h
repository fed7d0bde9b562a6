#pragma once

#include "mail/mail_session.h"
#include "mail/records.h"
#include "platform/process.h"
#include "platform/url_reader.h"

#include <QList>
#include <QObject>

#include <deque>
#include <optional>

namespace orl {

/// The inbox of the current address as the mail host tells it, polled every ten seconds. One is made at start
/// and lives as long as the program; it belongs to the main thread, which never waits for the host.
///
/// The user is told of no failure: a poll that fails is one line on the console, and the list stays.
class MailServiceViewModel : public QObject {
    Q_OBJECT
public:
    static constexpr std::chrono::seconds pollInterval{10};

    /// Bodies that are read at once; the others wait for their turn, so that the inbox of a busy address
    /// leaves workers to everybody else.
    static constexpr int bodiesAtOnce = 24;

    /// Polls at once if an address is stored.
    explicit MailServiceViewModel(Process &process, QObject *parent = nullptr);

    /// Newest first, in the host's order.
    const QList<MailInfo> &mails() const { return mails_; }

    const std::optional<QString> &currentAddress() const { return session_.currentAddress; }
    void setCurrentAddress(const QString &address) { session_.currentAddress = address; }
    const std::optional<MailInfo> &openedMail() const { return session_.openedMail; }
    void setOpenedMail(const MailInfo &mail) { session_.openedMail = mail; }

    /// Reads the inbox and, ten seconds after the answer or failure, again: each call starts a chain of polls
    /// of its own. A chain ends without a word when the device is offline, without an address, and at an
    /// address that makes no URL.
    void fetchMails();

    /// Marks all mails of this id as opened now, here and in the store.
    void markRead(const QString &id);

Q_SIGNALS:
    /// `mails` was written, be it as a whole or one of them.
    void mailsChanged();
    void mailsReplaced();
    void mailChanged(int position);
    /// A chain of polls ended for want of a connection.
    void foundOffline();

private:
    struct Worker;
    struct BodyFetch {
        qsizetype position; ///< when the request was made; the list may be another one when the body comes
        QString id;
        UrlRequest request;
    };

    Worker worker();
    void apply(const QList<MailInfo> &list);
    void fetchBodies();
    void startBodies();
    void applyBody(const BodyFetch &fetch, const QString &page);
    void write(qsizetype position, const std::function<void(MailInfo &)> &change);

    Process &process_;
    MailSession &session_;
    QList<MailInfo> mails_;
    std::deque<BodyFetch> waiting_;
    int underWay_ = 0;
};

/// The request for an address's inbox; nothing where the address makes no URL.
std::optional<UrlRequest> inboxRequest(const Endpoints &endpoints, const QString &address);

/// The request for a mail's body, which the host gives in the form that it finds best.
std::optional<UrlRequest> bodyRequest(const Endpoints &endpoints, const QString &mailId);

/// Where an attachment is; a text that may make no URL.
QString attachmentUrl(const Endpoints &endpoints, const MailAttachment &attachment);

} // namespace orl
