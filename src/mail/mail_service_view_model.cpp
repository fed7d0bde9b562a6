#include "mail/mail_service_view_model.h"

#include "config/internet_view_model.h"
#include "mail/mail_page.h"
#include "mail/mail_times.h"
#include "platform/clock.h"
#include "platform/console.h"
#include "platform/defaults_store.h"
#include "platform/queues.h"

#include <QPointer>

#include <algorithm>

namespace orl {

namespace {

constexpr std::chrono::seconds bodyTimeout{60};
constexpr char accepted[] =
    "text/html,text/plain,application/json,message/rfc2822,application/vnd.fleiklal.v1+json";

QString readMarkKey(const QString &mailId) {
    return mailId + QLatin1String("_read_at");
}

/// Nothing is encoded on the way: what cannot stand in a URL as it is makes none.
std::optional<QUrl> urlOf(const QString &text) {
    const bool plain = std::ranges::all_of(text, [](QChar c) { return c > u' ' && c < u'\x7f'; });
    return plain ? makeUrl(text) : std::nullopt;
}

QString firstId(const QList<MailInfo> &list, const QString &otherwise) {
    return list.isEmpty() ? otherwise : list.first().id;
}

} // namespace

std::optional<UrlRequest> inboxRequest(const Endpoints &endpoints, const QString &address) {
    const auto url = urlOf(endpoints.mailHost + QLatin1String("/api/emails?inbox=") + address);
    return url ? std::optional(UrlRequest{.url = *url}) : std::nullopt;
}

std::optional<UrlRequest> bodyRequest(const Endpoints &endpoints, const QString &mailId) {
    const auto url = urlOf(endpoints.mailHost + QLatin1String("/api/emails/") + mailId);
    if (!url) return std::nullopt;
    return UrlRequest{
        .url = *url, .ignoreCache = true, .timeout = bodyTimeout, .headers = {{"Accept", accepted}}};
}

QString attachmentUrl(const Endpoints &endpoints, const MailAttachment &attachment) {
    return endpoints.mailHost + QLatin1String("/api/emails/") + attachment.email_id +
           QLatin1String("/attachments/") + attachment.id;
}

/// What a work item takes along: everything but the object itself, which may be gone when the item ends.
struct MailServiceViewModel::Worker {
    Platform platform;
    QPointer<MailServiceViewModel> self; ///< looked at on the main thread only

    /// Runs the task on the main queue if the object still exists then.
    void onMain(std::function<void(MailServiceViewModel &)> task,
                std::chrono::milliseconds delay = {}) const {
        platform.mainQueue.postAfter(delay, [object = self, task = std::move(task)] {
            if (object) task(*object);
        });
    }

    void poll(const UrlRequest &request) const {
        const Result<UrlResponse> answer = platform.urlReader.read(request);
        const Result<Mail> mail = answer ? decodeJson(answer.value().body, Mail::decode) : answer.error();
        if (mail) {
            onMain([list = mail.value().data](MailServiceViewModel &object) { object.apply(list); });
        } else {
            platform.console.print(QLatin1String("Failed to fetch mails: ") + mail.error().description);
        }
        onMain([](MailServiceViewModel &object) { object.fetchMails(); }, pollInterval);
    }

    void readBody(const BodyFetch &fetch) const {
        const Result<UrlResponse> answer = platform.urlReader.read(fetch.request);
        if (!answer) platform.console.print(answer.error().description);
        // What is no UTF-8 becomes replacement characters.
        const QString page = answer ? mailPage(QString::fromUtf8(answer.value().body)) : QString();
        onMain([fetch, page, came = answer.ok()](MailServiceViewModel &object) {
            --object.underWay_;
            object.startBodies();
            if (came) object.applyBody(fetch, page);
        });
    }
};

MailServiceViewModel::Worker MailServiceViewModel::worker() {
    return {process_.platform(), this};
}

MailServiceViewModel::MailServiceViewModel(Process &process, QObject *parent)
    : QObject(parent), process_(process), session_(process.shared<MailSession>()) {
    if (session_.currentAddress) fetchMails();
}

void MailServiceViewModel::fetchMails() {
    if (!process_.shared<InternetViewModel>().isReachableNow()) return Q_EMIT foundOffline();
    if (!session_.currentAddress) return;
    const auto request = inboxRequest(process_.platform().endpoints, *session_.currentAddress);
    if (!request) return;
    process_.platform().globalQueue.post([worker = worker(), request = *request] { worker.poll(request); });
}

/// Only the first mail decides: whatever changed behind it is seen when it changes.
void MailServiceViewModel::apply(const QList<MailInfo> &list) {
    if (firstId(mails_, QStringLiteral("id")) == firstId(list, QStringLiteral("old_id"))) return;
    mails_ = list;
    Q_EMIT mailsReplaced();
    Q_EMIT mailsChanged();
    fetchBodies();
}

void MailServiceViewModel::fetchBodies() {
    for (qsizetype i = 0; i < mails_.size(); ++i) {
        const auto request = bodyRequest(process_.platform().endpoints, mails_[i].id);
        if (!request) break; // the mails behind it get no body either
        waiting_.push_back({i, mails_[i].id, *request});
    }
    startBodies();
}

void MailServiceViewModel::startBodies() {
    for (; underWay_ < bodiesAtOnce && !waiting_.empty(); ++underWay_) {
        process_.platform().globalQueue.post(
            [worker = worker(), fetch = std::move(waiting_.front())] { worker.readBody(fetch); });
        waiting_.pop_front();
    }
}

/// A body goes to the place that its mail had when it was asked for, whatever stands there now.
void MailServiceViewModel::applyBody(const BodyFetch &fetch, const QString &page) {
    if (fetch.position >= mails_.size()) {
        process_.platform().fatal.fatalError(QStringLiteral("A body came for mail %1 of an inbox of %2")
                                                 .arg(fetch.position + 1)
                                                 .arg(mails_.size()));
    }
    write(fetch.position, [&](MailInfo &mail) {
        mail.content = page;
        mail.read = process_.platform().store.text(readMarkKey(fetch.id));
    });
}

void MailServiceViewModel::markRead(const QString &id) {
    const Platform &platform = process_.platform();
    for (qsizetype i = 0; i < mails_.size(); ++i) {
        if (mails_[i].id != id) continue;
        write(i, [&](MailInfo &mail) { mail.read = readMark(platform.clock.now()); });
        platform.store.setValue(readMarkKey(id), readMark(platform.clock.now()));
    }
}

void MailServiceViewModel::write(qsizetype position, const std::function<void(MailInfo &)> &change) {
    change(mails_[position]);
    Q_EMIT mailChanged(int(position));
    Q_EMIT mailsChanged();
}

} // namespace orl
