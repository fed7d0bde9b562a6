#pragma once

#include "platform/ad_service.h"
#include "platform/consent_service.h"
#include "platform/mail_composer.h"
#include "platform/push_service.h"
#include "platform/store_review.h"
#include "platform/tracking_authorization.h"

#include <QStringList>

#include <map>
#include <utility>

namespace orl {

/// Every ad loads, and a test sees which ones were loaded and presented.
class PlayedAds : public AdService {
public:
    int starts = 0;
    QStringList loaded;
    QStringList presented;

    void start() override { ++starts; }
    void setTestDevices(const QStringList &) override {}
    bool hasTopScreen() const override { return true; }
    void loadRewardedInterstitial(const QString &, FullScreenLoaded done) override {
        load(QStringLiteral("interstitial"), done);
    }
    void loadRewarded(const QString &, FullScreenLoaded done) override {
        load(QStringLiteral("rewarded"), done);
    }
    void loadAppOpen(const QString &, FullScreenLoaded done) override { load(QStringLiteral("open"), done); }
    std::unique_ptr<Banner> makeBanner(const QString &unit, BannerSize size, BannerEvents events) override {
        return NoAdService::instance().makeBanner(unit, size, std::move(events));
    }
    std::unique_ptr<NativeAdLoader> makeNativeLoader(const QString &unit) override {
        return NoAdService::instance().makeNativeLoader(unit);
    }

private:
    struct Ad : FullScreenAd {
        Ad(PlayedAds &owner, QString adKind) : ads(owner), kind(std::move(adKind)) {}
        void setEvents(FullScreenAdEvents) override {}
        void present(std::function<void()>) override { ads.presented << kind; }
        PlayedAds &ads;
        QString kind;
    };

    void load(const QString &kind, const FullScreenLoaded &done) {
        loaded << kind;
        done(std::shared_ptr<FullScreenAd>(std::make_shared<Ad>(*this, kind)));
    }
};

/// The consent service; `holdUpdates` keeps its answers back until answerUpdates.
class PlayedConsent : public ConsentService {
public:
    bool holdUpdates = false;
    ConsentFormStatus form = ConsentFormStatus::Unavailable;
    ConsentStatus consent = ConsentStatus::NotRequired;
    int updates = 0;
    int formsLoaded = 0;
    int formsPresented = 0;

    void requestUpdate(const ConsentParameters &, std::function<void(std::optional<Error>)> done) override {
        ++updates;
        if (holdUpdates)
            waiting_.push_back(std::move(done));
        else
            done(std::nullopt);
    }
    ConsentFormStatus formStatus() const override { return form; }
    ConsentStatus consentStatus() const override { return consent; }
    void reset() override {}
    void loadForm(std::function<void(Result<std::shared_ptr<ConsentForm>>)> done) override {
        ++formsLoaded;
        done(std::shared_ptr<ConsentForm>(std::make_shared<Form>(*this)));
    }

    void answerUpdates() {
        for (const auto &done : std::exchange(waiting_, {}))
            done(std::nullopt);
    }

    /// The user agrees to the form on the screen.
    void agree() {
        consent = ConsentStatus::Obtained;
        if (dismissed_) std::exchange(dismissed_, nullptr)(std::nullopt);
    }

private:
    struct Form : ConsentForm {
        explicit Form(PlayedConsent &owner) : service(owner) {}
        void present(std::function<void(std::optional<Error>)> dismissed) override {
            ++service.formsPresented;
            service.dismissed_ = std::move(dismissed);
        }
        PlayedConsent &service;
    };

    std::vector<std::function<void(std::optional<Error>)>> waiting_;
    std::function<void(std::optional<Error>)> dismissed_;
};

/// The platform's dialog on tracking stays open until `answer`.
class PlayedTracking : public TrackingAuthorization {
public:
    TrackingStatus current = TrackingStatus::Authorized;

    TrackingStatus status() const override { return current; }
    void request(std::function<void(TrackingStatus)> done) override { waiting_ = std::move(done); }
    bool asks() const { return bool(waiting_); }

    void answer(TrackingStatus status) {
        current = status;
        std::exchange(waiting_, nullptr)(status);
    }

private:
    std::function<void(TrackingStatus)> waiting_;
};

/// The permission dialog of the push service stays open until `answer`.
class PlayedPush : public PushService {
public:
    std::vector<bool> fallbacks; ///< of each request

    void requestPermission(bool fallbackToSettings, std::function<void(bool)> done) override {
        fallbacks.push_back(fallbackToSettings);
        waiting_.push_back(std::move(done));
    }
    void answer(bool granted) {
        for (const auto &done : std::exchange(waiting_, {}))
            done(granted);
    }

private:
    std::vector<std::function<void(bool)>> waiting_;
};

class PlayedMail : public MailComposer {
public:
    bool installed = true;
    QStringList composedTo;
    std::function<void(int)> done;

    bool canSendMail() const override { return installed; }
    void compose(const QString &address, std::function<void(int)> result) override {
        composedTo << address;
        done = std::move(result);
    }
};

struct PlayedStoreReview : StoreReview {
    int requests = 0;
    void requestReview() override { ++requests; }
};

} // namespace orl
