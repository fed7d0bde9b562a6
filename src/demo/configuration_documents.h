#pragma once

#include "catalogue.h"
#include "service.h"

#include <QList>

#include <mutex>
#include <optional>

namespace orl::demo {

/// The switches in "orl_config.json". All advertising is off at first.
struct ConfigurationValues {
    std::optional<QString> pendingVersion;
    bool ipadAdEnabled = false;
    bool bannerAdEnabled = false;
    bool openAdEnabled = false;
    bool rewardAdEnabled = false;
    bool nativeAdEnabled = false;
    bool interstitialAdEnabled = false;
    int showFullAdAfter = 3;
    bool useXmarkNative = false;
    bool bannerIsActive = false;
    bool bannerOnNumberCard = false;
    QList<bool> bannerRandomDisplay{false};
};

/// All advertising on: what a user meets.
ConfigurationValues livelyConfiguration();

/// The configuration host: the two configuration documents, the lists of icons and of the second website's
/// countries, and the senders' icons.
class ConfigurationDocuments : public Service {
public:
    explicit ConfigurationDocuments(const Catalogue &catalogue) : catalogue_(catalogue) {}
    Reply answer(const Request &request) const override;

    /// From any thread; the next request sees them.
    void setValues(const ConfigurationValues &values);

private:
    Reply configuration() const;
    Reply secondWebsiteCountries() const;

    const Catalogue &catalogue_;
    mutable std::mutex mutex_;
    ConfigurationValues values_;
};

} // namespace orl::demo
