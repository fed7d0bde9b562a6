#pragma once

#include "platform/consent_service.h"
#include "platform/process.h"

#include <QObject>

namespace orl {

/// The user's consent to advertising. Shared by the Process. Operations may be called on any thread; they
/// pass to the main queue first, where completions run too. A completion may be empty.
///
/// A user who refused tracking sees no form.
class UMPConsent : public QObject {
    Q_OBJECT
public:
    explicit UMPConsent(Process &process) : process_(process) {}

    /// Starts the ad service and asks what holds for this device. With `isDebug` earlier answers are
    /// forgotten and the device counts as one in the European Economic Area.
    ///
    /// The completion runs once the matter is settled, with one exception: where a form is available and
    /// `showForm` is false it never runs, as presentFormIfAvailable is what finishes the matter then.
    void updateConsent(bool showForm, bool isDebug, std::function<void()> completion);

    /// Presents the form that an update without a form has found. Without such a find it makes an update with
    /// a form and runs the completion at once as well: it then runs a second time after the form.
    void presentFormIfAvailable(std::function<void()> completion);

    bool isAvailable() const { return isAvailable_; } ///< a form is available and was not shown at the update
    bool isDebug() const { return isDebug_; }         ///< of the last update

private:
    using Completion = std::function<void()>;

    void onMain(std::function<void(UMPConsent &)> work);
    void update(bool showForm, bool isDebug, const Completion &completion);
    void updated(bool showForm, const std::optional<Error> &error, const Completion &completion);
    void loadForm(const Completion &completion);
    void formLoaded(const std::shared_ptr<ConsentForm> &form, const Completion &completion);
    void formDismissed(const std::optional<Error> &error, const Completion &completion);
    bool trackingDenied() const;
    void print(const char *what, const Error &error) const;

    Process &process_;
    bool isAvailable_ = false;
    bool isDebug_ = false;
};

} // namespace orl
