#pragma once

#include "platform/ad_service.h"
#include "platform/process.h"

#include <QObject>

namespace orl {

/// The ad at application opening. Main thread; shared by the Process. Every operation stops silently where it
/// is switched off or a tablet shows no ads.
class OpenAd : public QObject {
    Q_OBJECT
public:
    /// A loaded ad of this age in hours or more is not shown any more.
    static constexpr double staleAfter = 4.0;

    explicit OpenAd(Process &process);

    /// Loads an ad unless one is held. One that went stale is held for ever, so that no further one appears
    /// in this run.
    void loadAd();

    /// To be called each time that the scene becomes active.
    void showAdIfAvailable();

    bool holdsAd() const { return ad_ != nullptr; }
    double loadTime() const { return loadTime_; } ///< seconds since 1970; at first when this was made
    bool adWasShown() const { return adWasShown_; }

private:
    bool mayUse() const;
    void hold(std::shared_ptr<FullScreenAd> ad);

    Process &process_;
    std::shared_ptr<FullScreenAd> ad_;
    double loadTime_;
    bool adWasShown_ = false;
};

} // namespace orl
