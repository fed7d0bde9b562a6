#include "numbers/request_view_model.h"

#include "numbers/choice_allowance.h"
#include "numbers/number_worker.h"
#include "platform/clock.h"
#include "platform/console.h"
#include "platform/defaults_store.h"
#include "platform/url_reader.h"

#include <algorithm>
#include <chrono>

namespace orl {

namespace {

constexpr std::chrono::milliseconds returnHomeDelay{200};

const QString countryKey = QStringLiteral("chosen_country");
const QString numberKey = QStringLiteral("chosen_phone_number_new");
const QString historyKey = QStringLiteral("history_key");

template<class T>
QVariant toVariant(const std::optional<T> &value) {
    return value ? QVariant::fromValue(*value) : QVariant();
}

template<class T>
std::optional<T> stored(const DefaultsStore &store, const QString &key) {
    const std::optional<QByteArray> data = store.data(key);
    if (!data) return std::nullopt;
    const Result<T> record = decodeJson(*data, T::decode);
    return record ? std::optional(record.value()) : std::nullopt;
}

void storeHistory(DefaultsStore &store, const QList<History> &list) {
    QJsonArray json;
    for (const History &entry : list)
        json.append(entry.encoded());
    store.setValue(historyKey, encodeJson(json));
}

} // namespace

RequestViewModel::RequestViewModel(Process &process, QObject *parent)
    : QObject(parent), process_(process), state_(std::make_shared<NumberState>()) {
    loadCountries();
    restoreChosenNumber();
}

RequestViewModel::~RequestViewModel() = default;

QList<Country> RequestViewModel::localCountries() const {
    return *state_->localCountries.get();
}
QList<Country> RequestViewModel::countries() const {
    return state_->countries.get();
}
QList<Country> RequestViewModel::tpnCountriesList() const {
    return *state_->tpnCountriesList.get();
}
std::optional<Country> RequestViewModel::currentCountry() const {
    return *state_->currentCountry.get();
}
std::optional<PhoneNumber> RequestViewModel::currentNumber() const {
    return *state_->currentNumber.get();
}
QStringList RequestViewModel::icons() const {
    return *state_->icons.get();
}
int RequestViewModel::gradientColorIndex() const {
    return state_->gradientColorIndex;
}

QVariant RequestViewModel::currentCountryVariant() const {
    return toVariant(currentCountry());
}
QVariant RequestViewModel::currentNumberVariant() const {
    return toVariant(currentNumber());
}
QVariant RequestViewModel::selectedConversationVariant() const {
    return toVariant(selectedConversation_);
}
QVariant RequestViewModel::lastFetchSucceededAtVariant() const {
    return toVariant(lastFetchSucceededAt_);
}

void RequestViewModel::setMessages(const QList<Message> &messages) {
    messages_ = messages;
    Q_EMIT messagesChanged();
}

void RequestViewModel::setHistoryList(const QList<History> &list) {
    historyList_ = list;
    Q_EMIT historyListChanged();
}

void RequestViewModel::setSavedIdentities(const QVariantList &identities) {
    savedIdentities_ = identities;
    Q_EMIT savedIdentitiesChanged();
}

void RequestViewModel::setSelectedTab(Tab tab) {
    selectedTab_ = tab;
    Q_EMIT selectedTabChanged();
}

void RequestViewModel::setConversation_isPresented(bool presented) {
    conversation_isPresented_ = presented;
    Q_EMIT conversation_isPresentedChanged();
}

void RequestViewModel::setSelectedConversation(const std::optional<SMSSender> &conversation) {
    selectedConversation_ = conversation;
    Q_EMIT selectedConversationChanged();
}

void RequestViewModel::setCurrent(const Country &country, const PhoneNumber &number) {
    state_->currentCountry.set(country);
    Q_EMIT currentCountryChanged();
    state_->currentNumber.set(number);
    Q_EMIT currentNumberChanged();
}

RequestViewModel::Worker RequestViewModel::worker() {
    return {process_.platform(), ScrapingUtils(process_), process_.shared<TPNService>(), state_, this};
}

void RequestViewModel::restoreChosenNumber() {
    const DefaultsStore &store = process_.platform().store;
    const auto country = stored<Country>(store, countryKey);
    const auto number = stored<PhoneNumber>(store, numberKey);
    if (country && number) setCurrent(*country, *number);
}

void RequestViewModel::chooseNumber(const Country &country, const PhoneNumber &number, bool returnHome) {
    const Platform &platform = process_.platform();
    allowNotifications_ = false;
    // Together, so that a kill leaves the number with its own country.
    platform.store.setValues(
        {{countryKey, encodeJson(country.encoded())}, {numberKey, encodeJson(number.encoded())}});
    setCurrent(country, number);

    const History entry{
        .country = country, .phoneNumber = number, .number = {}, .time = platform.clock.now()};
    setHistoryList(QList{entry} + historyList_);
    // The base of what is stored is the stored list; the published one lacks the entry until it is loaded
    // again.
    loadHistory(
        [platform, entry](const QList<History> &list) { storeHistory(platform.store, QList{entry} + list); });

    if (returnHome) {
        platform.mainQueue.postAfter(returnHomeDelay, [self = QPointer(this)] {
            if (self) self->setSelectedTab(Tab::home);
        });
    }
    process_.shared<ChoiceAllowance>().countChoice();
}

void RequestViewModel::loadHistory(HistoryCompletion completion) {
    worker().onWorker([completion = std::move(completion)](const Worker &worker) {
        const std::optional<QByteArray> data = worker.platform.store.data(historyKey);
        if (!data) {
            worker.platform.mainQueue.post([completion] {
                if (completion) completion({});
            });
            return;
        }
        const auto list = decodeJsonList(*data, History::decode);
        if (!list) return worker.log("Failed to update history: ", list.error());
        worker.platform.mainQueue.post([self = worker.self, completion, list = list.value()] {
            if (completion) completion(list);
            if (self) self->setHistoryList(list);
        });
    });
}

bool RequestViewModel::mayChoose() const {
    return process_.shared<ChoiceAllowance>().mayChoose();
}

void RequestViewModel::resetAllowance() {
    process_.shared<ChoiceAllowance>().resetAllowance();
}

void RequestViewModel::Worker::log(const char *what, const Error &error) const {
    platform.console.print(QLatin1String(what) + error.description);
}

std::optional<QUrl> RequestViewModel::Worker::firstWebsiteUrl(const QString &path) const {
    return makeUrl(platform.endpoints.firstWebsite + path);
}

std::optional<QUrl> RequestViewModel::Worker::configurationUrl(const QString &path) const {
    return makeUrl(platform.endpoints.configurationHost + path);
}

std::optional<Country> RequestViewModel::Worker::tpnCountry(const QString &name) const {
    const auto list = state->tpnCountriesList.get();
    const auto entry = std::find_if(list->cbegin(), list->cend(),
                                    [&](const Country &country) { return country.name == name; });
    return entry == list->cend() ? std::nullopt : std::optional(*entry);
}

} // namespace orl
