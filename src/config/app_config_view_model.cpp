#include "config/app_config_view_model.h"

#include "config/values_in_force.h"
#include "platform/bundle.h"
#include "platform/console.h"
#include "platform/queues.h"
#include "platform/url_reader.h"

#include <QPointer>

#include <chrono>

namespace orl {

namespace {

constexpr std::chrono::seconds recipeTimeout{60};

// Reads a document past all caches, so that every start sees it afresh. Neither errors nor status codes are
// told: only what came counts.
template<class Document>
void fetchDocument(const Platform &platform, const QString &path,
                   std::optional<std::chrono::milliseconds> timeout, const QString &failure,
                   std::function<void(const Document &)> apply) {
    const std::optional<QUrl> url = makeUrl(platform.endpoints.configurationHost + path);
    if (!url) return;
    const UrlRequest request{.url = *url, .ignoreCache = true, .timeout = timeout, .headers = {}};
    platform.globalQueue.post([platform, request, failure, apply = std::move(apply)] {
        const Result<UrlResponse> response = platform.urlReader.read(request);
        if (!response) return;
        const Result<Document> document = Document::decode(response.value().body);
        if (!document) return platform.console.print(failure + document.error().description);
        platform.mainQueue.post([apply, document = document.value()] { apply(document); });
    });
}

void call(const std::function<void()> &function) {
    if (function) function();
}

} // namespace

AppConfigViewModel::AppConfigViewModel(Process &process, AdCalls adCalls, QObject *parent)
    : QObject(parent), process_(process), adCalls_(std::move(adCalls)) {
    fetchConfiguration();
    fetchScrapingConfig();
}

void AppConfigViewModel::setBannerTapped(bool tapped) {
    bannerTapped_ = tapped;
    Q_EMIT bannerTappedChanged();
}

void AppConfigViewModel::fetchConfiguration() {
    fetchDocument<AppConfiguration>(process_.platform(), QStringLiteral("/KeLo/iOS/orl_config.json"),
                                    std::nullopt, QStringLiteral("Failed to fetch zenith banner: "),
                                    [self = QPointer(this)](const AppConfiguration &document) {
                                        if (self) self->apply(document);
                                    });
}

void AppConfigViewModel::fetchScrapingConfig() {
    fetchDocument<ScrapingConfig>(process_.platform(), QStringLiteral("/KeLo/OnlineSMS/scraping_config.json"),
                                  recipeTimeout, QStringLiteral("Failed to fetch scraping config: "),
                                  [self = QPointer(this)](const ScrapingConfig &document) {
                                      if (self) self->apply(document);
                                  });
}

void AppConfigViewModel::apply(const AppConfiguration &document) {
    const QString runningVersion = process_.platform()
                                       .bundle.infoValue(QStringLiteral("CFBundleShortVersionString"))
                                       .value_or(QStringLiteral("1.0"));
    const bool underReview = document.pendingVersion == runningVersion;
    const AppConfiguration inForce = underReview ? disabledConfiguration() : document;
    process_.shared<ValuesInForce>().currentConfiguration->set(inForce);
    configuration_ = inForce;
    Q_EMIT configurationChanged();
    if (canLoadAd_) loadAds();
}

void AppConfigViewModel::apply(const ScrapingConfig &document) {
    scrapingConfig_ = document;
    Q_EMIT scrapingConfigChanged();
    process_.shared<ValuesInForce>().currentScrapingConfig->set(document);
}

void AppConfigViewModel::loadAds() {
    canLoadAd_ = true;
    Q_EMIT canLoadAdChanged();
    if (!configuration_) return;
    const bool isTablet = adCalls_.isTablet && adCalls_.isTablet();
    if (isTablet && !configuration_->admob.ipadAdEnabled) return;
    call(adCalls_.loadInterstitial);
    call(adCalls_.loadRewarded);
    call(adCalls_.loadOpenAd);
}

QVariant AppConfigViewModel::configurationVariant() const {
    return configuration_ ? QVariant::fromValue(*configuration_) : QVariant();
}

} // namespace orl
