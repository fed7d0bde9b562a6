#pragma once

#include "platform/consent_service.h"
#include "platform/platform.h"
#include "platform/tracking_authorization.h"

#include <QObject>

#include <vector>

namespace orl {

/// A question with two answers that a screen puts to the user. Main thread.
class StoredQuestion : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isAsked READ isAsked NOTIFY isAskedChanged)
public:
    using Answered = std::function<void(std::optional<bool>)>;

    /// Whether a screen is there that asks. One that goes leaves the question without an answer.
    bool isReady() const { return ready_; }
    void setReady(bool ready);

    bool isAsked() const { return !waiting_.empty(); }

    /// Asks, or joins in where the question is being asked. Without a screen there is no answer, at once.
    void ask(Answered answered);

    Q_INVOKABLE void answer(bool yes) { end(yes); }

Q_SIGNALS:
    void isAskedChanged();

private:
    void end(std::optional<bool> with);

    bool ready_ = false;
    std::vector<Answered> waiting_;
};

/// The tracking question with its answer in the store. It is asked once; without an answer it counts as
/// denied and is asked again in the next run.
class StoredTracking final : public TrackingAuthorization {
public:
    explicit StoredTracking(DefaultsStore &store) : store_(store) {}

    StoredQuestion &question() { return question_; }

    TrackingStatus status() const override;
    void request(std::function<void(TrackingStatus)> completion) override;

private:
    DefaultsStore &store_;
    StoredQuestion question_;
};

/// The consent to advertising with its answer in the store. It is required where the law of the region wants
/// it, and obtained once the user has answered, whatever the answer: house ads tell nobody anything, so a
/// refusal changes nothing about them.
class StoredConsent final : public ConsentService {
public:
    /// `region` is the device's, as an ISO 3166 code of two letters; empty where it is not known.
    StoredConsent(MainQueue &queue, DefaultsStore &store, QString region)
        : queue_(queue), store_(store), region_(std::move(region)) {}

    StoredQuestion &question() { return question_; }

    void requestUpdate(const ConsentParameters &parameters,
                       std::function<void(std::optional<Error>)> completion) override;
    ConsentFormStatus formStatus() const override { return formStatus_; }
    ConsentStatus consentStatus() const override;
    void reset() override;
    void loadForm(std::function<void(Result<std::shared_ptr<ConsentForm>>)> completion) override;

private:
    class Form;

    MainQueue &queue_;
    DefaultsStore &store_;
    const QString region_;
    StoredQuestion question_;
    ConsentFormStatus formStatus_ = ConsentFormStatus::Unknown;
};

/// Whether the law of a region, an ISO 3166 code of two letters, wants consent to advertising: the European
/// Economic Area, the United Kingdom and Switzerland.
bool regionWantsConsent(const QString &region);

/// Forgets both answers: tracking and consent are asked for again.
void forgetConsent(DefaultsStore &store);

} // namespace orl
