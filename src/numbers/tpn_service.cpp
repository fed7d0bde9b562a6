#include "numbers/tpn_service.h"

#include "numbers/scraping_utils.h"
#include "numbers/sender_look.h"
#include "numbers/web_page.h"
#include "platform/clock.h"
#include "platform/console.h"
#include "platform/queues.h"
#include "platform/url_reader.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <limits>

namespace orl {

namespace {

constexpr auto numberCellClass = "col-sm-6 col-md-4 col-lg-3 col-xs-12";
constexpr auto numberClass = "info-box-number";
constexpr auto messageClass = "direct-chat-msg left";
constexpr auto senderClass = "direct-chat-name";
constexpr auto secondSenderClass = "pull-right";
constexpr auto timeClass = "timeago direct-chat-timestamp pull-left";
constexpr auto bodyClass = "direct-chat-text";
constexpr auto lastSegment = "/page1";

QString textOf(const html::Element &root, const char *className) {
    return toQString(root.getElementsByClass(className).text());
}

struct Unit {
    const char *word;
    qint64 seconds;
};

constexpr qint64 minute = 60;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;
constexpr qint64 month = 30 * day;

// In the order in which they are tried; "second" and "minute" hold the short words.
constexpr std::array units{Unit{"sec", 1},          Unit{"min", minute},   Unit{"hour", hour},
                           Unit{"day", day},        Unit{"week", 7 * day}, Unit{"month", month},
                           Unit{"year", 12 * month}};

qint64 secondsPerUnit(const QString &phrase) {
    for (const Unit &unit : units) {
        if (phrase.contains(QLatin1String(unit.word))) return unit.seconds;
    }
    return 0;
}

// The first run of decimal digits, as an integer; 0 where it cannot be read.
qint64 firstCount(QString phrase) {
    phrase.remove(QLatin1Char(' ')).remove(QLatin1Char('-'));
    const auto isDigit = [](QChar character) { return character.isDigit(); };
    const auto start = std::find_if(phrase.cbegin(), phrase.cend(), isDigit);
    const auto end = std::find_if_not(start, phrase.cend(), isDigit);
    return QStringView(start, end).toLongLong();
}

} // namespace

double dateFromRelativeTime(const QString &phrase, double now) {
    const QString text = phrase.toLower();
    const qint64 seconds = secondsPerUnit(text);
    const qint64 count = firstCount(text);
    // A count that leaves the range of dates means nothing.
    const bool hasDate = seconds == 0 || count <= std::numeric_limits<qint64>::max() / 1000 / seconds;
    return hasDate ? now - static_cast<double>(count * seconds) : now;
}

struct TPNService::State {
    State(const Platform &ports, std::shared_ptr<const Snapshot<ScrapingConfig>> recipeInForce)
        : platform(ports), recipe(std::move(recipeInForce)) {}

    std::optional<QUrl> url(const QString &path) const {
        return makeUrl(platform.endpoints.secondWebsite + path);
    }

    // Both leave in the list what was read ahead of a failure.
    std::optional<Error> readNumbers(const QUrl &url, QList<PhoneNumber> &list) const;
    std::optional<Error> readMessages(const QUrl &url, QList<Message> &list);

    Message readMessage(const html::Element &element);
    SMSSender readSender(const html::Element &element);

    const Platform platform;
    const std::shared_ptr<const Snapshot<ScrapingConfig>> recipe;
    Snapshot<QStringList> icons;
    std::atomic<int> gradientColorIndex{0};
};

std::optional<Error> TPNService::State::readNumbers(const QUrl &url, QList<PhoneNumber> &list) const {
    const Result<html::Document> page = readPage(platform, url);
    if (!page) return page.error();
    try {
        for (const html::Element &cell : page.value().getElementsByClass(numberCellClass)) {
            list.append({QUuid::createUuid(), textOf(cell, numberClass), WebsiteService::T_P_N});
        }
    } catch (const html::Exception::Error &error) {
        return toError(error);
    }
    return std::nullopt;
}

std::optional<Error> TPNService::State::readMessages(const QUrl &url, QList<Message> &list) {
    const Result<html::Document> page = readPage(platform, url);
    if (!page) return page.error();
    try {
        for (const html::Element &element : page.value().getElementsByClass(messageClass)) {
            const Message message = readMessage(element);
            if (!message.content.isEmpty()) list.append(message);
        }
    } catch (const html::Exception::Error &error) {
        return toError(error);
    }
    return std::nullopt;
}

Message TPNService::State::readMessage(const html::Element &element) {
    Message message{
        .id = freshUuidText(), .content = {}, .time = {}, .timeDateForTPN = {}, .seen = {}, .sender = {}};
    message.sender = readSender(element);
    message.timeDateForTPN = dateFromRelativeTime(textOf(element, timeClass), platform.clock.now());
    message.content =
        removing(recipe->get()->messageShouldRemove, withoutLeadingBlank(textOf(element, bodyClass)));
    return message;
}

SMSSender TPNService::State::readSender(const html::Element &element) {
    QString name = textOf(element, senderClass);
    if (name.isEmpty()) name = textOf(element, secondSenderClass);
    SMSSender sender;
    sender.id = freshUuidText();
    sender.name = removing(recipe->get()->senderShouldRemove, name);
    sender.icon = senderIcon(platform.endpoints, *icons.get(), sender.name);
    return withGradient(sender, gradientColorIndex);
}

TPNService::TPNService(Process &process)
    : state_(std::make_shared<State>(process.platform(),
                                     process.shared<ValuesInForce>().currentScrapingConfig)) {}

void TPNService::setIcons(const QStringList &icons) {
    state_->icons.set(icons);
}

QStringList TPNService::icons() const {
    return *state_->icons.get();
}

void TPNService::fetchNumbers(const QString &domain, NumbersCompletion completion) const {
    const std::optional<QUrl> url = state_->url(domain + QLatin1Char('/'));
    if (!url) return;
    state_->platform.globalQueue.post([state = state_, url = *url, completion = std::move(completion)] {
        QList<PhoneNumber> list;
        const std::optional<Error> error = state->readNumbers(url, list);
        if (error)
            state->platform.console.print(QStringLiteral("Failed to fetch TPN numbers: ") +
                                          error->description);
        state->platform.mainQueue.post([completion, list] { completion(list); });
    });
}

void TPNService::fetchMessages(const QString &domain, const PhoneNumber &number,
                               MessagesCompletion completion) const {
    QString digits = number.number;
    digits.remove(QLatin1Char(' ')).remove(QLatin1Char('+'));
    const std::optional<QUrl> url =
        state_->url(domain + QLatin1Char('/') + digits + QLatin1String(lastSegment));
    if (!url) return;
    state_->platform.globalQueue.post([state = state_, url = *url, completion = std::move(completion)] {
        QList<Message> list;
        const std::optional<Error> error = state->readMessages(url, list);
        if (error)
            state->platform.console.print(QStringLiteral("Failed to fetch TPN messages: ") +
                                          error->description);
        state->platform.mainQueue.post([completion, list, whole = !error] { completion(list, whole); });
    });
}

int TPNService::gradientColorIndex() const {
    return state_->gradientColorIndex;
}

} // namespace orl
