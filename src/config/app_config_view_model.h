#pragma once

#include "config/configuration.h"
#include "config/scraping_config.h"
#include "platform/process.h"

#include <QObject>
#include <QVariant>

#include <functional>
#include <optional>

namespace orl {

/// What AppConfigViewModel calls once ads may be loaded. An empty function does nothing; without isTablet the
/// device counts as a phone.
struct AdCalls {
    std::function<bool()> isTablet;
    std::function<void()> loadInterstitial;
    std::function<void()> loadRewarded;
    std::function<void()> loadOpenAd;
};

/// Fetches the two remote documents once, publishes them and puts them in force (ValuesInForce). Main thread.
class AppConfigViewModel : public QObject {
    Q_OBJECT
    /// undefined in QML while absent
    Q_PROPERTY(QVariant configuration READ configurationVariant NOTIFY configurationChanged)
    Q_PROPERTY(bool bannerTapped READ bannerTapped WRITE setBannerTapped NOTIFY bannerTappedChanged)
    Q_PROPERTY(bool canLoadAd READ canLoadAd NOTIFY canLoadAdChanged)
public:
    /// Starts both fetches and returns at once.
    explicit AppConfigViewModel(Process &process, AdCalls adCalls = {}, QObject *parent = nullptr);

    /// The configuration last put in force; absent until the document has arrived.
    const std::optional<AppConfiguration> &configuration() const { return configuration_; }

    /// The recipe that arrived last; absent while only the compiled one is in force.
    const std::optional<ScrapingConfig> &scrapingConfig() const { return scrapingConfig_; }

    bool bannerTapped() const { return bannerTapped_; }
    void setBannerTapped(bool tapped);

    /// Consent has been dealt with and ads may be loaded.
    bool canLoadAd() const { return canLoadAd_; }

    void fetchConfiguration();
    void fetchScrapingConfig();

    /// Called when consent is over, and again when the configuration arrives after it. Ads load once both are
    /// there, whichever came last.
    void loadAds();

Q_SIGNALS:
    void configurationChanged();
    void scrapingConfigChanged();
    void bannerTappedChanged();
    void canLoadAdChanged();

private:
    QVariant configurationVariant() const;
    void apply(const AppConfiguration &document);
    void apply(const ScrapingConfig &document);

    Process &process_;
    AdCalls adCalls_;
    std::optional<AppConfiguration> configuration_;
    std::optional<ScrapingConfig> scrapingConfig_;
    bool bannerTapped_ = false;
    bool canLoadAd_ = false;
};

} // namespace orl
