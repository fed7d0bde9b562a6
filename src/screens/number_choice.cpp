#include "screens/number_choice.h"

#include "ads/pop_up_ad.h"
#include "numbers/request_view_model.h"
#include "numbers/text_helpers.h"
#include "platform/haptics.h"

namespace orl {

NumberChoice::NumberChoice(Process &process, RequestViewModel &request, QObject *parent)
    : QObject(parent), process_(process), request_(request), limitAlert_(process, limitReached(), 94, 40) {
    connect(&limitAlert_, &CustomAlertView::tapped, this, &NumberChoice::watch);
    connect(&limitAlert_, &CustomAlertView::cancel, this, &NumberChoice::dismissLimit);
}

QString NumberChoice::title() const {
    const QString number = selectedPhone_ ? selectedPhone_->number : QString();
    return QStringLiteral("That's a lovely number \n") + formattedNumber(number, country_.format);
}

QString NumberChoice::message() {
    return QStringLiteral("Just confirm your choice");
}
QString NumberChoice::confirmTitle() {
    return QStringLiteral("Choose this Number");
}

void NumberChoice::tap(const Country &country, const PhoneNumber &number) {
    process_.platform().haptics.impact(Impact::Soft);
    ask(country, number);
}

void NumberChoice::ask(const Country &country, const PhoneNumber &number) {
    country_ = country;
    selectedPhone_ = number;
    if (request_.mayChoose())
        setConfirmationSheet(true);
    else
        setShowLimitAlert(true);
}

void NumberChoice::confirm() {
    if (!confirmationSheet_ || !selectedPhone_) return;
    setConfirmationSheet(false);
    request_.chooseNumber(country_, *selectedPhone_, true);
    Q_EMIT chosen();
}

void NumberChoice::cancel() {
    setConfirmationSheet(false);
}

void NumberChoice::watch() {
    setShowLimitAlert(false);
    process_.shared<PopUpAd>().showRewarded();
}

void NumberChoice::dismissLimit() {
    setShowLimitAlert(false);
}

void NumberChoice::setConfirmationSheet(bool shown) {
    confirmationSheet_ = shown;
    Q_EMIT confirmationSheetChanged();
}

void NumberChoice::setShowLimitAlert(bool shown) {
    showLimitAlert_ = shown;
    Q_EMIT showLimitAlertChanged();
}

} // namespace orl
