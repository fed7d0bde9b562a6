#pragma once

#include "platform/result.h"

#include <functional>
#include <memory>
#include <optional>

namespace orl {

/// Numbered as consent services number them.
enum class ConsentFormStatus { Unknown = 0, Available = 1, Unavailable = 2 };
enum class ConsentStatus { Unknown = 0, Required = 1, NotRequired = 2, Obtained = 3 };

/// A region that development builds may pretend to be in.
enum class ConsentGeography { EuropeanEconomicArea = 1, Elsewhere = 2 };

struct ConsentParameters {
    bool tagForUnderAgeOfConsent = false;
    std::optional<ConsentGeography> debugGeography; ///< absent: where the device is

    bool operator==(const ConsentParameters &) const = default;
};

/// A form that has been loaded and may be presented.
class ConsentForm {
public:
    virtual ~ConsentForm() = default;

    /// Shows the form over whatever is on top, or alone where nothing is. `dismissed` runs once the user is
    /// through with it, or with the reason why it could not be shown; later, on the main thread.
    virtual void present(std::function<void(std::optional<Error>)> dismissed) = 0;
};

/// Knows whether the law of the region wants the user's consent to advertising, and asks for it. Main thread;
/// completions run there too, at once or later.
class ConsentService {
public:
    virtual ~ConsentService() = default;

    /// Finds out what holds for this device. The two statuses below are those of the last update.
    virtual void requestUpdate(const ConsentParameters &parameters,
                               std::function<void(std::optional<Error>)> completion) = 0;
    virtual ConsentFormStatus formStatus() const = 0;
    virtual ConsentStatus consentStatus() const = 0;

    /// Forgets what the user answered.
    virtual void reset() = 0;

    virtual void loadForm(std::function<void(Result<std::shared_ptr<ConsentForm>>)> completion) = 0;
};

/// Stands where there is no advertising to consent to: no form is ever needed.
class NoConsentService final : public ConsentService {
public:
    void requestUpdate(const ConsentParameters &,
                       std::function<void(std::optional<Error>)> completion) override {
        completion(std::nullopt);
    }
    ConsentFormStatus formStatus() const override { return ConsentFormStatus::Unavailable; }
    ConsentStatus consentStatus() const override { return ConsentStatus::NotRequired; }
    void reset() override {}
    void loadForm(std::function<void(Result<std::shared_ptr<ConsentForm>>)> completion) override {
        completion(Error{QStringLiteral("no consent form here")});
    }

    static ConsentService &instance() {
        static NoConsentService none;
        return none;
    }
};

} // namespace orl
