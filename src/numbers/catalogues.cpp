#include "config/internet_view_model.h"
#include "numbers/number_worker.h"
#include "numbers/web_page.h"
#include "platform/bundle.h"
#include "platform/url_reader.h"

namespace orl {

namespace {

template<class Decode>
auto readDocument(const Platform &platform, const QUrl &url, Decode decode)
    -> decltype(decode(QByteArray())) {
    const Result<UrlResponse> response = platform.urlReader.read({.url = url, .timeout = {}, .headers = {}});
    if (!response) return response.error();
    return decode(response.value().body);
}

Result<QList<Country>> decodeCountries(const QByteArray &document) {
    return decodeJsonList(document, Country::decode);
}

// The href of the first link; absent where there is none.
std::optional<QString> firstLink(const html::Element &element) {
    const html::Elements links = element.select("a");
    if (links.size() == 0) return std::nullopt;
    return toQString(links.first().attr("href"));
}

} // namespace

void RequestViewModel::loadCountries() {
    // First, so that its request is under way before anything is parsed.
    fetchIcons();
    const std::optional<QByteArray> file =
        process_.platform().bundle.resource(QStringLiteral("countries.json"));
    if (!file) return;
    const Result<QList<Country>> list = decodeCountries(*file);
    if (!list) return worker().log("Failed to fetch local countries: ", list.error());
    state_->localCountries.set(list.value());
    Q_EMIT localCountriesChanged();
    fetchCountries();
}

void RequestViewModel::fetchIcons() {
    if (!process_.shared<InternetViewModel>().isReachableNow()) return;
    const std::optional<QUrl> url = worker().configurationUrl(QStringLiteral("/KeLo/OnlineSMS/icons.json"));
    if (!url) return;
    worker().onWorker([url = *url](const Worker &worker) {
        const Result<QStringList> icons = readDocument(worker.platform, url, decodeJsonTextList);
        if (!icons) return worker.log("Failed to fetch icons: ", icons.error());
        worker.onMain([icons = icons.value()](RequestViewModel &object) { object.setIcons(icons); });
    });
}

void RequestViewModel::setIcons(const QStringList &icons) {
    state_->icons.set(icons);
    Q_EMIT iconsChanged();
    process_.shared<TPNService>().setIcons(icons);
}

void RequestViewModel::fetchCountries() {
    if (!process_.shared<InternetViewModel>().isReachableNow()) return;
    fetchTPNCountries();
    const std::optional<QUrl> url = worker().firstWebsiteUrl(QStringLiteral("/en"));
    if (!url || !countries().isEmpty()) return;
    worker().onWorker([url = *url](const Worker &worker) { worker.parseCountries(url); });
}

void RequestViewModel::fetchTPNCountries() {
    const auto url = worker().configurationUrl(QStringLiteral("/KeLo/Android/tpn_site_countries.json"));
    if (!url || !tpnCountriesList().isEmpty()) return;
    worker().onWorker([url = *url](const Worker &worker) {
        const Result<QList<Country>> list = readDocument(worker.platform, url, decodeCountries);
        if (!list) return worker.log("Failed to fetch TPN Countries: ", list.error());
        worker.onMain([list = list.value()](RequestViewModel &object) {
            object.state_->tpnCountriesList.set(list);
            Q_EMIT object.tpnCountriesListChanged();
        });
    });
}

void RequestViewModel::fetchNumbers(const Country &country, NumbersCompletion completion) {
    const std::optional<QUrl> url = worker().firstWebsiteUrl(country.domain);
    if (!url) return;
    worker().onWorker([country, url = *url, completion = std::move(completion)](const Worker &worker) {
        worker.readNumbers(country, url, completion);
    });
}

void RequestViewModel::Worker::parseCountries(const QUrl &url) const {
    std::optional<Error> failure;
    const Result<html::Document> page = readPage(platform, url);
    if (page) {
        try {
            return fillCountries(page.value());
        } catch (const html::Exception::Error &error) {
            failure = toError(error);
        }
    } else {
        failure = page.error();
    }
    // The user sees the local catalogue at least.
    replaceCountries(*state->localCountries.get());
    log("Failed to fetch countries from server: ", *failure);
}

void RequestViewModel::Worker::fillCountries(const html::Document &page) const {
    const std::optional<html::Element> content = scraping.mainContent(page);
    if (!content) return;
    const CountryList::Filling filling = replaceCountries({});
    for (const html::Element &element : scraping.countryElements(*content)) {
        const std::optional<QString> href = firstLink(element);
        appendMatches(filling, scraping.countryName(element), href);
    }
}

// The website's list filtered through the local one, which adds what the page does not tell. A page name may
// hold the names of several local countries; it then stands for each of them.
void RequestViewModel::Worker::appendMatches(CountryList::Filling filling, const QString &pageName,
                                             const std::optional<QString> &href) const {
    const QString name = pageName.toLower();
    for (Country country : *state->localCountries.get()) {
        if (!name.contains(country.name.toLower())) continue;
        if (href) country.domain = *href;
        onMain([filling, country](RequestViewModel &object) {
            if (object.state_->countries.append(filling, country)) Q_EMIT object.countriesChanged();
        });
    }
}

// In force at once for every reader, but told on the main queue, ahead of the appends that follow.
CountryList::Filling RequestViewModel::Worker::replaceCountries(const QList<Country> &list) const {
    const CountryList::Filling filling = state->countries.replace(list);
    onMain([](RequestViewModel &object) { Q_EMIT object.countriesChanged(); });
    return filling;
}

void RequestViewModel::Worker::readNumbers(const Country &country, const QUrl &url,
                                           const NumbersCompletion &completion) const {
    const Result<html::Document> page = readPage(platform, url);
    if (!page) return log("Failed to fetch phone numbers: ", page.error());
    QList<PhoneNumber> list;
    for (const html::Element &element : scraping.phoneNumberElements(page.value())) {
        const std::optional<QString> number = scraping.phoneNumber(element);
        if (number) list.append({QUuid::createUuid(), *number, WebsiteService::SMS24});
    }
    onMain([list, completion](RequestViewModel &object) {
        object.currentCountryNumbers_ = list;
        Q_EMIT object.currentCountryNumbersChanged();
        completion(list);
    });
    const std::optional<Country> entry = tpnCountry(country.name);
    if (!entry) return;
    // Only the completion sees the numbers of both websites.
    tpn.fetchNumbers(entry->domain, [object = self, list, completion](const QList<PhoneNumber> &more) {
        if (object) completion(list + more);
    });
}

} // namespace orl
