#include "screens/splash_view.h"

#include "ads/ump_consent.h"
#include "platform/bundle.h"
#include "platform/queues.h"

#include <QPointer>

namespace orl {

SplashView::SplashView(Process &process, AppConfigViewModel &appVM, QObject *parent)
    : QObject(parent), process_(process), appVM_(appVM) {}

QString SplashView::displayName() const {
    return process_.platform().bundle.infoValue(QStringLiteral("CFBundleDisplayName")).value_or(QString());
}

void SplashView::appear() {
    process_.platform().mainQueue.postAfter(wait, [self = QPointer(this)] {
        if (self) self->gate();
    });
}

void SplashView::gate() {
    UMPConsent &consent = process_.shared<UMPConsent>();
    const bool undetermined = process_.platform().tracking.status() == TrackingStatus::NotDetermined;
    // Consent that was settled earlier holds nothing up, however long the service takes.
    consent.updateConsent(!undetermined, false, loadAds());
    if (undetermined)
        setShowIDFAAlert(true);
    else
        leave();
}

void SplashView::continueTapped() {
    if (!showIDFAAlert_) return;
    setShowIDFAAlert(false);
    process_.platform().tracking.request([self = QPointer(this)](TrackingStatus) {
        if (self) self->presentForm();
    });
}

/// The completion may come twice, the second time when the splash has long gone.
void SplashView::presentForm() {
    process_.shared<UMPConsent>().presentFormIfAvailable(
        [self = QPointer(this), &push = process_.platform().push, loadAds = loadAds()] {
            loadAds();
            push.requestPermission(true, [self](bool) {
                if (self) self->leave();
            });
        });
}

void SplashView::leave() {
    hideContent_ = true;
    Q_EMIT hideContentChanged();
    process_.platform().mainQueue.postAfter(fade, [self = QPointer(this)] {
        if (self) Q_EMIT self->gone();
    });
}

void SplashView::setShowIDFAAlert(bool shown) {
    showIDFAAlert_ = shown;
    Q_EMIT showIDFAAlertChanged();
}

/// Outlives the splash: the consent service may answer much later.
std::function<void()> SplashView::loadAds() const {
    return [config = QPointer(&appVM_)] {
        if (config) config->loadAds();
    };
}

} // namespace orl
