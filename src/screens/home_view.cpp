#include "screens/home_view.h"

#include "ads/pop_up_ad.h"
#include "config/internet_view_model.h"
#include "numbers/moments.h"
#include "numbers/request_view_model.h"
#include "numbers/text_helpers.h"
#include "platform/clock.h"
#include "screens/ad_places.h"
#include "screens/copy_view_model.h"
#include "screens/gradient_ink.h"
#include "screens/message_text.h"
#include "screens/review.h"

#include <QPointer>

namespace orl {

namespace {

constexpr const GradientPair &cardPair = gradientPairs.back();

QColor colour(const Color &c) {
    return QColor(c.red, c.green, c.blue);
}

GradientInk cardInkOn() {
    return gradientInk(colour(cardPair.light), colour(cardPair.dark), 0, 1);
}

} // namespace

HomeView::HomeView(Process &process, const AdPlaces &ads, RequestViewModel &request,
                   InternetViewModel &internet, CopyViewModel &copy, QObject *parent)
    : QObject(parent),
      process_(process),
      ads_(ads),
      request_(request),
      internet_(internet),
      copy_(copy),
      senders_(request),
      // The same sender must wear the same colours in both layouts.
      messages_(process,
                [this](const SMSSender &sender) {
                    const SMSSender *listed = senders_.named(sender.name);
                    return listed ? *listed : sender;
                }),
      choice_(process, request),
      currentNumber_(request.currentNumber()) {
    connect(&request_, &RequestViewModel::currentCountryChanged, this, &HomeView::numberChanged);
    connect(&request_, &RequestViewModel::currentNumberChanged, this, &HomeView::changeNumber);
    connect(&request_, &RequestViewModel::messagesChanged, this, &HomeView::showMessages);
    connect(&request_, &RequestViewModel::sendersChanged, this, &HomeView::listSenders);
    connect(&request_, &RequestViewModel::currentCountryNumbersChanged, this, &HomeView::showSimilar);
    connect(&request_, &RequestViewModel::lastFetchSucceededAtChanged, this, &HomeView::noteFetch);
    connect(&internet_, &InternetViewModel::isConnectedChanged, this, &HomeView::stateChanged);
    connect(&ads_, &AdPlaces::nativeAdEnabledChanged, this, &HomeView::showMessages);
    connect(&choice_, &NumberChoice::chosen, this,
            [this] { process_.shared<PopUpAd>().showInterstitial(1); });
    timer_ = process_.platform().mainQueue.every(tick, [this] { fetchOnTick(); });
    showMessages();
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
    const auto last = std::move(countries_); // goes after the screen that still shows it
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
    process_.shared<PopUpAd>().showInterstitial(0);
}

void HomeView::appear() {
    internet_.checkConnection();
    setIsOffline(!internet_.isConnected());
    if (!isOffline_ && request_.messages().isEmpty()) request_.fetchMessages();
    process_.platform().mainQueue.postAfter(inlineBannerAfter, [self = QPointer(this)] {
        if (self) self->setShowINBaner(true);
    });
    Review(process_).requestReviewIfNeeded();
}

void HomeView::setShowINBaner(bool shown) {
    showINBaner_ = shown;
    Q_EMIT showINBanerChanged();
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

/// The choice is read from the store again and again; only another number empties the list.
void HomeView::changeNumber() {
    const auto number = request_.currentNumber();
    if (number == currentNumber_) return;
    currentNumber_ = number;
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

void HomeView::showMessages() {
    listSenders();
    messages_.show(request_.messages(), ads_.nativeAdEnabled());
    Q_EMIT stateChanged();
}

/// Senders outlive the messages they came with; without messages nothing is listed.
void HomeView::listSenders() {
    senders_.show(request_.messages().isEmpty() ? QList<SMSSender>() : request_.senders(),
                  ads_.nativeAdEnabled());
    messages_.facesChanged();
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
    orl::tapExport(entry, process_, copy_);
}

void HomeView::tapSender(int row) {
    const SMSSender *sender = row >= 0 && row < senders_.count() ? senders_.at(row) : nullptr;
    if (!sender) return;
    request_.setSelectedConversation(*sender);
    request_.setConversation_isPresented(true);
    process_.shared<PopUpAd>().showInterstitial(1);
}

void HomeView::tapSimilar(int row) {
    const auto country = request_.currentCountry();
    if (country && row >= 0 && row < similar_.count()) choice_.tap(*country, similar_.at(row));
}

} // namespace orl
