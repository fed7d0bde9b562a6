#include "config/values_in_force.h"
#include "numbers/choice_allowance.h"
#include "numbers/moments.h"
#include "numbers/notification_manager.h"
#include "numbers/number_worker.h"
#include "numbers/sender_look.h"
#include "numbers/web_page.h"
#include "platform/clock.h"
#include "platform/console.h"
#include "platform/defaults_store.h"
#include "platform/url_reader.h"

#include <QHash>

#include <algorithm>

namespace orl {

namespace {

constexpr qsizetype fullPage = 8; // a page of so many messages is the sign that there may be a next one
constexpr qsizetype sendersPerAd = 5;

std::optional<QString> firstContent(const QList<Message> &list) {
    return list.isEmpty() ? std::nullopt : std::optional(list.first().content);
}

std::optional<QString> firstTime(const QList<Message> &list) {
    return list.isEmpty() ? std::nullopt : list.first().time;
}

std::optional<double> moment(const std::optional<Message> &message) {
    return message && message->time ? messageMoment(*message->time) : std::nullopt;
}

QString seenKey(const Message &message) {
    return message.sender.name + QLatin1Char('_') + message.time.value_or(QString());
}

Message adMessage() {
    Message ad;
    ad.id = freshUuidText();
    ad.content = QStringLiteral("NativeAd");
    ad.sender.id = ad.sender.name = ad.content;
    return ad;
}

SMSSender adSender(qsizetype sendersSoFar) {
    SMSSender ad;
    ad.id = QStringLiteral("inside_chat_%1").arg(sendersSoFar);
    ad.name = QStringLiteral("native_ad");
    return ad;
}

} // namespace

/// One fetch of the first website's messages, kept alive by the tasks that are under way. Its box holds the
/// messages of all pages once all have arrived, and is touched on the main thread only.
class RequestViewModel::MessageFetch : public std::enable_shared_from_this<MessageFetch> {
public:
    MessageFetch(const Worker &worker, const QString &number, bool force)
        : worker_(worker), number_(number), force_(force) {}

    void start() {
        fetchPage(1, [self = shared_from_this()](RequestViewModel &object, const QList<Message> &list) {
            self->firstPageArrived(object, list);
        });
    }

private:
    using Arrived = std::function<void(RequestViewModel &, const QList<Message> &)>;

    std::optional<QUrl> url(int page) const {
        QString digits = number_;
        digits.remove(QLatin1Char('+')).remove(QLatin1Char(' '));
        QString path =
            QStringLiteral("/en/numbers/{phone_number}").replace(QLatin1String("{phone_number}"), digits);
        if (page > 1) path += QStringLiteral("/%1").arg(page);
        return worker_.firstWebsiteUrl(path);
    }

    void fetchPage(int page, const Arrived &arrived) {
        const std::optional<QUrl> pageUrl = url(page);
        if (!pageUrl) return worker_.onMain([arrived](RequestViewModel &object) { arrived(object, {}); });
        worker_.onWorker([self = shared_from_this(), arrived, pageUrl = *pageUrl](const Worker &) {
            self->readPage(pageUrl, arrived);
        });
    }

    void readPage(const QUrl &pageUrl, const Arrived &arrived) {
        const Result<QList<Message>> list = worker_.parseMessagesPage(pageUrl);
        if (!list) {
            worker_.platform.console.print(
                QStringLiteral("Failed to fetch messages for this number %1: %2 %3")
                    .arg(number_, list.error().description, pageUrl.toString(QUrl::FullyEncoded)));
            return worker_.onMain(
                [self = shared_from_this()](RequestViewModel &object) { self->complete(object); });
        }
        worker_.onMain([arrived, list = list.value()](RequestViewModel &object) {
            object.fetchSucceeded();
            arrived(object, list);
        });
    }

    void firstPageArrived(RequestViewModel &object, const QList<Message> &first) {
        if (first.size() >= fullPage) {
            fetchPage(
                2, [self = shared_from_this(), first](RequestViewModel &later, const QList<Message> &second) {
                    self->deliver(later, first + second);
                });
        } else {
            deliver(object, first);
        }
        checkWhenPermitted();
    }

    void deliver(RequestViewModel &object, const QList<Message> &list) {
        box_ = list;
        complete(object);
        object.groupMessages(box_);
    }

    // An empty list leaves the messages alone: the website may be gone for a moment.
    void complete(RequestViewModel &object) {
        if (box_.isEmpty()) return;
        if (!force_ && firstContent(box_) == firstContent(object.messages())) return;
        worker_.onMain([list = box_](RequestViewModel &later) { later.applyMessages(list); });
    }

    // The box is looked at when the permission is there; it is empty while the second page is under way.
    void checkWhenPermitted() {
        worker_.platform.notifications.requestPermission([self = shared_from_this()](bool granted) {
            if (!granted) return;
            self->worker_.onMain([self](RequestViewModel &object) { object.checkNewMessages(self->box_); });
        });
    }

    const Worker worker_;
    const QString number_;
    const bool force_;
    QList<Message> box_;
};

void RequestViewModel::fetchMessages(bool force) {
    worker().onWorker([force](const Worker &worker) { worker.fetchMessages(force); });
}

void RequestViewModel::Worker::fetchMessages(bool force) const {
    const std::optional<PhoneNumber> number = *state->currentNumber.get();
    const std::optional<Country> country = *state->currentCountry.get();
    if (!number || !country) return;
    if (number->website == WebsiteService::SMS24) {
        return std::make_shared<MessageFetch>(*this, number->number, force)->start();
    }
    const std::optional<Country> entry = tpnCountry(country->name);
    if (!entry) return;
    tpn.fetchMessages(entry->domain, *number, [object = self, force](const QList<Message> &list, bool whole) {
        if (object) object->applySecondWebsite(list, whole, force);
    });
}

// Unlike for the first website, an empty list does clear the messages.
void RequestViewModel::applySecondWebsite(const QList<Message> &list, bool whole, bool force) {
    if (whole) fetchSucceeded();
    groupMessages(list);
    if (!force && firstContent(list) == firstContent(messages_)) return;
    worker().onMain([list](RequestViewModel &object) { object.applyMessages(list); });
}

void RequestViewModel::fetchSucceeded() {
    lastFetchSucceededAt_ = process_.platform().clock.now();
    Q_EMIT lastFetchSucceededAtChanged();
}

Result<QList<Message>> RequestViewModel::Worker::parseMessagesPage(const QUrl &url) const {
    const Result<html::Document> page = readPage(platform, url);
    if (!page) return page.error();
    const std::vector<html::Element> elements = scraping.messageElements(page.value());
    const std::vector<html::Element> times = scraping.messageTimeElements(page.value());
    QList<Message> list;
    for (size_t i = 0; i < elements.size(); ++i) {
        Message message;
        message.id = freshUuidText();
        message.sender.id = freshUuidText();
        message.sender.name = scraping.messageSender(elements[i]);
        message.sender = senderLook(std::move(message.sender));
        if (i < times.size()) message.time = scraping.messageTime(toQString(times[i].outerHtml()));
        message.content = withoutLeadingBlank(scraping.messageContent(elements[i]));
        list.append(message);
    }
    return list;
}

// A picture if there is one for the name, a gradient with letters otherwise.
SMSSender RequestViewModel::Worker::senderLook(SMSSender sender) const {
    sender.icon = senderIcon(platform.endpoints, *state->icons.get(), sender.name);
    if (!sender.icon) return withGradient(std::move(sender), state->gradientColorIndex);
    sender.iconText.reset();
    return sender;
}

SMSSender RequestViewModel::assignGradient(SMSSender sender) {
    return withGradient(std::move(sender), state_->gradientColorIndex);
}

void RequestViewModel::applyMessages(const QList<Message> &list) {
    QList<Message> shown = list;
    if (!list.isEmpty() && nativeAdEnabled()) shown.insert(1, adMessage());
    setMessages(shown);
}

bool RequestViewModel::nativeAdEnabled() const {
    return process_.shared<ValuesInForce>().currentConfiguration->get()->admob.nativeAdEnabled;
}

void RequestViewModel::groupMessages(const QList<Message> &list) {
    if (list.isEmpty()) return;
    const bool ads = nativeAdEnabled();
    const Worker look = worker();
    state_->gradientColorIndex = 0;
    QList<SMSSender> rows;
    QHash<QString, qsizetype> rowOf;
    const auto append = [&](SMSSender sender) {
        if (!rowOf.contains(sender.name)) rowOf.insert(sender.name, rows.size());
        rows.append(std::move(sender));
    };
    for (const Message &message : list) {
        const auto row = rowOf.constFind(message.sender.name);
        if (row != rowOf.cend()) {
            rows[*row].messages.append(message);
            continue;
        }
        SMSSender sender;
        sender.id = freshUuidText();
        sender.name = message.sender.name;
        sender.messages = {message};
        sender.iconText = message.sender.iconText; // of the same name, and a worker took its time over it
        sender = look.senderLook(std::move(sender));
        if (ads && rows.size() % sendersPerAd == 0) append(adSender(rows.size()));
        append(std::move(sender));
    }
    setSenders(rows);
}

void RequestViewModel::setSenders(const QList<SMSSender> &senders) {
    senders_ = senders;
    Q_EMIT sendersChanged();
}

void RequestViewModel::checkNewMessages(const QList<Message> &list) {
    // Nothing is remembered either: once switched on again, the next check compares with the old state.
    if (!process_.shared<MessageSound>().messageSoundEnabled()) return;
    const std::optional<double> last = moment(lastMessageChecked_);
    if (allowNotifications_ && last && firstTime(list) != lastMessageChecked_->time)
        announceLaterThan(*last, list);
    allowNotifications_ = true;
    lastMessageChecked_ = list.isEmpty() ? std::nullopt : std::optional(list.first());
}

void RequestViewModel::announceLaterThan(double last, const QList<Message> &list) {
    const Platform &platform = process_.platform();
    for (const Message &message : list) {
        const std::optional<double> time = moment(message);
        if (!time || *time <= last) continue;
        platform.haptics.impact(Impact::Medium);
        platform.notifications.requestPermission([](bool) {});
        process_.shared<NotificationManager>().scheduleNotification(freshUuidText(), message.sender.name,
                                                                    QStringLiteral("New message...!"));
    }
}

void RequestViewModel::markSeen(const QList<Message> &list) {
    const Platform &platform = process_.platform();
    std::vector<std::pair<QString, StoredValue>> marks; // in one go: each write waits for the disk
    for (const Message &message : list)
        marks.emplace_back(seenKey(message), true);
    if (!marks.empty()) platform.store.setValues(marks);
    if (!selectedConversation_) return;
    const auto open = std::find_if(senders_.begin(), senders_.end(), [&](const SMSSender &sender) {
        return sender.name == selectedConversation_->name;
    });
    if (open == senders_.end()) return;
    if (open->messages.isEmpty()) {
        platform.fatal.fatalError(QStringLiteral("The open conversation has no messages"));
    }
    open->messages.first().seen = true;
    Q_EMIT sendersChanged();
}

std::optional<int> RequestViewModel::unseenCount(const SMSSender &sender) const {
    const DefaultsStore &store = process_.platform().store;
    const auto unseen =
        std::count_if(sender.messages.cbegin(), sender.messages.cend(), [&](const Message &message) {
            return message.seen ? !*message.seen : !store.boolean(seenKey(message));
        });
    return unseen == 0 ? std::nullopt : std::optional(static_cast<int>(unseen));
}

} // namespace orl
