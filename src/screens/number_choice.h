#pragma once

#include "numbers/records.h"
#include "platform/process.h"
#include "screens/custom_alert_view.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace orl {

class RequestViewModel;

/// Changing to another number: a tap, then the limit alert or a confirmation, then the choice.
class NumberChoice : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the screens that list numbers")
    Q_PROPERTY(bool confirmationSheet READ confirmationSheet NOTIFY confirmationSheetChanged)
    Q_PROPERTY(bool showLimitAlert READ showLimitAlert NOTIFY showLimitAlertChanged)
    Q_PROPERTY(QString title READ title NOTIFY confirmationSheetChanged)
    Q_PROPERTY(QString message READ message CONSTANT)
    Q_PROPERTY(QString confirmTitle READ confirmTitle CONSTANT)
    Q_PROPERTY(orl::CustomAlertView *limitAlert READ limitAlert CONSTANT)
public:
    NumberChoice(Process &process, RequestViewModel &request, QObject *parent = nullptr);

    bool confirmationSheet() const { return confirmationSheet_; }
    bool showLimitAlert() const { return showLimitAlert_; }
    const std::optional<PhoneNumber> &selectedPhone() const { return selectedPhone_; }

    QString title() const; ///< the number in its country's format, below a compliment
    static QString message();
    static QString confirmTitle();
    CustomAlertView *limitAlert() { return &limitAlert_; }

    /// A tap on a number's card, which is felt.
    void tap(const Country &country, const PhoneNumber &number);
    /// Asks for a confirmation, or tells that the allowance is used up.
    void ask(const Country &country, const PhoneNumber &number);

    Q_INVOKABLE void confirm();
    Q_INVOKABLE void cancel();
    /// Refills the allowance with a video.
    void watch();
    Q_INVOKABLE void dismissLimit();

Q_SIGNALS:
    void confirmationSheetChanged();
    void showLimitAlertChanged();
    void chosen(); ///< the confirmed number is the current one now

private:
    void setConfirmationSheet(bool shown);
    void setShowLimitAlert(bool shown);

    Process &process_;
    RequestViewModel &request_;
    Country country_;
    std::optional<PhoneNumber> selectedPhone_;
    CustomAlertView limitAlert_;
    bool confirmationSheet_ = false;
    bool showLimitAlert_ = false;
};

} // namespace orl
