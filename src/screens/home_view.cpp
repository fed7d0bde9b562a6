#include "screens/home_view.h"

#include "config/internet_view_model.h"
#include "numbers/moments.h"
#include "numbers/request_view_model.h"
#include "numbers/text_helpers.h"
#include "platform/browser.h"
#include "platform/clock.h"
#include "screens/copy_view_model.h"
#include "screens/gradient_ink.h"

#include <QDateTime>
#include <QUrl>

#include <algorithm>

namespace orl {

namespace {

constexpr const GradientPair &cardPair = gradientPairs.back();

QColor colour(const Color &c) {
    return QColor(c.red, c.green, c.blue);
}

GradientInk cardInkOn() {
    return gradientInk(colour(cardPair.light), colour(cardPair.dark), 0, 1);
}

bool isAd(const Message &message) {
    return message.sender.name.toLower() == QStringLiteral("nativead");
}
bool isAd(const SMSSender &sender) {
    return sender.name == QStringLiteral("native_ad");
}

/// Every fetch makes new records of the messages on the page; this tells which of them are the same message.
QString keyOf(const Message &message) {
    const QString moment = message.time.value_or(QString());
    return QStringList{message.sender.name, moment, message.content}.join(QChar(0x1e));
}

std::optional<double> momentOf(const Message &message) {
    return message.time ? messageMoment(*message.time) : message.timeDateForTPN;
}

QString clockTime(const std::optional<double> &moment) {
    if (!moment) return {};
    return QDateTime::fromMSecsSinceEpoch(qint64(*moment * 1000)).toString(QStringLiteral("HH:mm"));
}

} // namespace

HomeView::HomeView(Process &process, RequestViewModel &request, InternetViewModel &internet,
                   CopyViewModel &copy, QObject *parent)
    : QObject(parent),
      process_(process),
      request_(request),
      internet_(internet),
      copy_(copy),
      messages_({"sender", "content", "age", "exports", "face"}),
      senders_({"name", "content", "time", "unread", "face"}),
      choice_(process, request) {
    connect(&request_, &RequestViewModel::currentCountryChanged, this, &HomeView::numberChanged);
    connect(&request_, &RequestViewModel::currentNumberChanged, this, &HomeView::changeNumber);
    connect(&request_, &RequestViewModel::messagesChanged, this, &HomeView::rebuildCards);
    connect(&request_, &RequestViewModel::sendersChanged, this, &HomeView::showSendersList);
    connect(&request_, &RequestViewModel::currentCountryNumbersChanged, this, &HomeView::showSimilar);
    connect(&request_, &RequestViewModel::lastFetchSucceededAtChanged, this, &HomeView::noteFetch);
    connect(&internet_, &InternetViewModel::isConnectedChanged, this, &HomeView::stateChanged);
    timer_ = process_.platform().mainQueue.every(tick, [this] { fetchOnTick(); });
    rebuildCards();
    showSendersList();
    showSimilar();
}

HomeView::~HomeView() = default;

QString HomeView::countryName() const {
    return request_.currentCountry().value_or(Country()).name;
}
QString HomeView::flag() const {
    return request_.currentCountry().value_or(Country()).icon;
}

QString HomeView::number() const {
    const QString number = request_.currentNumber().value_or(PhoneNumber()).number;
    return formattedNumber(number, request_.currentCountry().value_or(Country()).format);
}

QColor HomeView::cardLight() const {
    return colour(cardPair.light);
}
QColor HomeView::cardDark() const {
    return colour(cardPair.dark);
}
QColor HomeView::cardInk() const {
    return cardInkOn().text;
}
QColor HomeView::cardVeil() const {
    return cardInkOn().veil;
}

void HomeView::copyNumber() {
    copy_.copy(request_.currentNumber().value_or(PhoneNumber()).number);
}

void HomeView::openCountries() {
    if (countriesPresented_) return;
    countries_.reset(new CountriesView(process_, request_, internet_));
    connect(countries_.get(), &CountryScreen::numberChosen, this, &HomeView::closeCountries);
    Q_EMIT countriesChanged();
    countriesPresented_ = true;
    Q_EMIT countriesPresentedChanged();
}

void HomeView::closeCountries() {
    if (!countriesPresented_) return;
    countriesPresented_ = false;
    Q_EMIT countriesPresentedChanged();
    appear();
}

HomeView::State HomeView::state() const {
    if (!request_.messages().isEmpty()) return State::Messages;
    return internet_.isConnected() ? State::Loading : State::Offline;
}

bool HomeView::nothingYet() const {
    return state() == State::Loading && fetched_;
}

QString HomeView::fetchAge() const {
    const auto fetched = request_.lastFetchSucceededAt();
    const double now = process_.platform().clock.now();
    if (!fetched || now - *fetched <= fetchIsOldAfter) return {};
    return relativeTime(*fetched, now);
}

void HomeView::setMessagesStackType(MessageStackType type) {
    messagesStackType_ = type;
    Q_EMIT messagesStackTypeChanged();
}

void HomeView::appear() {
    internet_.checkConnection();
    setIsOffline(!internet_.isConnected());
    if (!isOffline_ && request_.messages().isEmpty()) request_.fetchMessages();
}

void HomeView::fetchOnTick() {
    if (internet_.isConnected()) request_.fetchMessages();
    Q_EMIT fetchAgeChanged();
}

void HomeView::noteFetch() {
    fetched_ = true;
    Q_EMIT fetchAgeChanged();
    Q_EMIT stateChanged();
}

void HomeView::changeNumber() {
    fetched_ = false;
    Q_EMIT numberChanged();
    showSimilar();
    request_.setMessages({});
    request_.fetchMessages();
}

void HomeView::setTryAgain(const QUuid &signal) {
    if (signal == tryAgain_) return;
    tryAgain_ = signal;
    internet_.checkConnection();
    if (internet_.isConnected()) request_.fetchMessages();
}

void HomeView::setIsOffline(bool offline) {
    isOffline_ = offline;
    Q_EMIT isOfflineChanged();
}

void HomeView::rebuildCards() {
    cards_.clear();
    for (const Message &message : request_.messages()) {
        if (isAd(message)) continue;
        cards_.push_back(std::make_unique<MessageCardView>(process_, message));
        connect(cards_.back().get(), &MessageCardView::ageChanged, this,
                [this, card = cards_.size() - 1] { showAge(card); });
    }
    showSendersList();
    Q_EMIT stateChanged();
}

void HomeView::showMessages() {
    QList<KeyedListModel::Row> rows;
    for (const auto &card : cards_) {
        const SMSSender &sender = card->message().sender;
        rows << KeyedListModel::Row{keyOf(card->message()),
                                    {sender.name, card->content(), card->age(), card->messagesExports(),
                                     QVariant::fromValue(avatarFace(listedSender(sender)))}};
    }
    messages_.setRows(rows);
}

void HomeView::showAge(size_t card) {
    messages_.setValue(messages_.key(int(card)), "age", cards_[card]->age());
}

/// The same sender must wear the same colours in both layouts.
SMSSender HomeView::listedSender(const SMSSender &sender) const {
    const auto &listed = request_.senders();
    const auto found = std::find_if(listed.begin(), listed.end(),
                                    [&](const SMSSender &other) { return other.name == sender.name; });
    return found == listed.end() ? sender : *found;
}

void HomeView::showSendersList() {
    QList<KeyedListModel::Row> rows;
    // Senders outlive the messages they came with; without messages nothing is listed.
    const QList<SMSSender> listed = request_.messages().isEmpty() ? QList<SMSSender>() : request_.senders();
    for (const SMSSender &sender : listed) {
        if (isAd(sender) || sender.messages.isEmpty()) continue;
        const Message &newest = sender.messages.front();
        const QString unread = QString::number(request_.unseenCount(sender).value_or(0));
        rows << KeyedListModel::Row{
            sender.name,
            {sender.name, QString(newest.content).replace(QChar(0x2028), u' '), clockTime(momentOf(newest)),
             unread == QStringLiteral("0") ? QString() : unread, QVariant::fromValue(avatarFace(sender))}};
    }
    senders_.setRows(rows);
    showMessages();
}

void HomeView::showSimilar() {
    const QString current = request_.currentNumber().value_or(PhoneNumber()).number;
    QList<PhoneNumber> others;
    for (const PhoneNumber &phone : request_.currentCountryNumbers()) {
        if (phone.number != current) others << phone;
    }
    similar_.show(request_.currentCountry().value_or(Country()).format, others);
}

void HomeView::tapExport(const QString &entry) {
    if (!entry.contains(QStringLiteral("http")))
        copy_.copy(entry);
    else if (const QUrl url(entry, QUrl::StrictMode); url.isValid())
        process_.platform().browser.open(url);
}

void HomeView::tapSimilar(int row) {
    const auto country = request_.currentCountry();
    if (country && row >= 0 && row < similar_.count()) choice_.tap(*country, similar_.at(row));
}

} // namespace orl
