#include "ads/ump_consent.h"

#include "platform/ad_service.h"
#include "platform/console.h"
#include "platform/queues.h"
#include "platform/tracking_authorization.h"

#include <QPointer>

namespace orl {

namespace {

void call(const std::function<void()> &completion) {
    if (completion) completion();
}

} // namespace

void UMPConsent::updateConsent(bool showForm, bool isDebug, Completion completion) {
    onMain([showForm, isDebug, completion = std::move(completion)](UMPConsent &self) {
        self.update(showForm, isDebug, completion);
    });
}

void UMPConsent::presentFormIfAvailable(Completion completion) {
    onMain([completion = std::move(completion)](UMPConsent &self) {
        if (self.isAvailable_) return self.loadForm(completion);
        self.updateConsent(true, self.isDebug_, completion);
        call(completion);
    });
}

void UMPConsent::onMain(std::function<void(UMPConsent &)> work) {
    process_.platform().mainQueue.post([self = QPointer(this), work = std::move(work)] {
        if (self) work(*self);
    });
}

void UMPConsent::update(bool showForm, bool isDebug, const Completion &completion) {
    const Platform &platform = process_.platform();
    platform.ads.start();
    platform.ads.setTestDevices({QLatin1String(AdService::simulatorDevice)});
    isDebug_ = isDebug;
    ConsentParameters parameters;
    if (isDebug) {
        platform.consent.reset();
        parameters.debugGeography = ConsentGeography::EuropeanEconomicArea;
    }
    platform.consent.requestUpdate(
        parameters, [self = QPointer(this), showForm, completion](const std::optional<Error> &error) {
            if (self) self->updated(showForm, error, completion);
        });
}

void UMPConsent::updated(bool showForm, const std::optional<Error> &error, const Completion &completion) {
    if (error) {
        print("Failed to fetch UMPConsent: ", *error);
        return call(completion);
    }
    if (process_.platform().consent.formStatus() != ConsentFormStatus::Available) return call(completion);
    if (showForm) return loadForm(completion);
    isAvailable_ = true;
}

void UMPConsent::loadForm(const Completion &completion) {
    onMain([completion](UMPConsent &self) {
        if (self.trackingDenied()) return call(completion);
        self.process_.platform().consent.loadForm(
            [weak = QPointer(&self), completion](const Result<std::shared_ptr<ConsentForm>> &loaded) {
                if (!weak) return;
                if (loaded) return weak->formLoaded(loaded.value(), completion);
                weak->print("Failed to load UMPConsent form: ", loaded.error());
                call(completion);
            });
    });
}

void UMPConsent::formLoaded(const std::shared_ptr<ConsentForm> &form, const Completion &completion) {
    if (process_.platform().consent.consentStatus() != ConsentStatus::Required) return call(completion);
    // The form lives as long as it is shown.
    form->present([self = QPointer(this), form, completion](const std::optional<Error> &error) {
        if (self) self->formDismissed(error, completion);
    });
}

// The next form is loaded at once, so that it comes up if consent has become required again. A form that
// could not even be shown would only fail again.
void UMPConsent::formDismissed(const std::optional<Error> &error, const Completion &completion) {
    if (error) print("Failed to present UMPConsent form: ", *error);
    call(completion);
    if (!error) loadForm({});
}

bool UMPConsent::trackingDenied() const {
    return process_.platform().tracking.status() == TrackingStatus::Denied;
}

void UMPConsent::print(const char *what, const Error &error) const {
    process_.platform().console.print(QLatin1String(what) + error.description);
}

} // namespace orl
