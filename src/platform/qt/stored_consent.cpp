#include "platform/qt/stored_consent.h"

#include "platform/defaults_store.h"
#include "platform/queues.h"

#include <QPointer>
#include <QSet>

#include <utility>

namespace orl {

namespace {

const QString trackingKey = QStringLiteral("tracking_authorization_status");
const QString consentKey = QStringLiteral("advertising_consent_given");

} // namespace

void StoredQuestion::setReady(bool ready) {
    ready_ = ready;
    if (!ready) end(std::nullopt);
}

void StoredQuestion::ask(Answered answered) {
    if (!ready_) return answered(std::nullopt);
    waiting_.push_back(std::move(answered));
    if (waiting_.size() == 1) Q_EMIT isAskedChanged();
}

void StoredQuestion::end(std::optional<bool> with) {
    if (waiting_.empty()) return;
    const auto waiting = std::exchange(waiting_, {});
    Q_EMIT isAskedChanged();
    for (const Answered &answered : waiting)
        answered(with);
}

TrackingStatus StoredTracking::status() const {
    switch (const auto stored = static_cast<TrackingStatus>(store_.integer(trackingKey))) {
    case TrackingStatus::NotDetermined:
    case TrackingStatus::Restricted:
    case TrackingStatus::Denied:
    case TrackingStatus::Authorized: return stored;
    }
    return TrackingStatus::NotDetermined;
}

void StoredTracking::request(std::function<void(TrackingStatus)> completion) {
    if (status() != TrackingStatus::NotDetermined) return completion(status());
    question_.ask([this, completion = std::move(completion)](std::optional<bool> yes) {
        const TrackingStatus answer =
            yes.value_or(false) ? TrackingStatus::Authorized : TrackingStatus::Denied;
        if (yes) store_.setValue(trackingKey, static_cast<qint64>(answer));
        completion(answer);
    });
}

class StoredConsent::Form final : public ConsentForm {
public:
    explicit Form(StoredConsent &consent) : consent_(consent) {}

    void present(std::function<void(std::optional<Error>)> dismissed) override {
        consent_.question_.ask(
            [&store = consent_.store_, dismissed = std::move(dismissed)](std::optional<bool> yes) {
                if (yes) store.setValue(consentKey, *yes);
                dismissed(yes ? std::nullopt
                              : std::optional(Error{QStringLiteral("nobody is there to answer it")}));
            });
    }

private:
    StoredConsent &consent_;
};

void StoredConsent::requestUpdate(const ConsentParameters &parameters,
                                  std::function<void(std::optional<Error>)> completion) {
    const bool wanted = parameters.debugGeography
                            ? *parameters.debugGeography == ConsentGeography::EuropeanEconomicArea
                            : regionWantsConsent(region_);
    formStatus_ = wanted ? ConsentFormStatus::Available : ConsentFormStatus::Unavailable;
    queue_.post([completion = std::move(completion)] { completion(std::nullopt); });
}

ConsentStatus StoredConsent::consentStatus() const {
    switch (formStatus_) {
    case ConsentFormStatus::Unknown: return ConsentStatus::Unknown;
    case ConsentFormStatus::Unavailable: return ConsentStatus::NotRequired;
    case ConsentFormStatus::Available: break;
    }
    return store_.value(consentKey) ? ConsentStatus::Obtained : ConsentStatus::Required;
}

void StoredConsent::reset() {
    store_.remove(consentKey);
    formStatus_ = ConsentFormStatus::Unknown;
}

void StoredConsent::loadForm(std::function<void(Result<std::shared_ptr<ConsentForm>>)> completion) {
    queue_.post([this, completion = std::move(completion)] {
        if (formStatus_ != ConsentFormStatus::Available)
            return completion(Error{QStringLiteral("no form is needed here")});
        completion(std::shared_ptr<ConsentForm>(std::make_shared<Form>(*this)));
    });
}

// The members of the European Union with those of their regions that have codes of their own, then Iceland,
// Liechtenstein and Norway, then the United Kingdom and Switzerland.
bool regionWantsConsent(const QString &region) {
    static const QSet<QString> regions = [] {
        const QString codes =
            QStringLiteral("AT BE BG CY CZ DE DK EE ES FI FR GR HR HU IE IT LT LU LV MT NL PL PT RO SE SI SK "
                           "AX GF GP MF MQ RE YT IS LI NO GB CH");
        const QStringList list = codes.split(QLatin1Char(' '));
        return QSet<QString>(list.begin(), list.end());
    }();
    return regions.contains(region.toUpper());
}

void forgetConsent(DefaultsStore &store) {
    store.remove(trackingKey);
    store.remove(consentKey);
}

} // namespace orl
