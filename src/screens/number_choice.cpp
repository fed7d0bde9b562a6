#include "screens/number_choice.h"

#include "numbers/request_view_model.h"
#include "numbers/text_helpers.h"
#include "platform/haptics.h"

namespace orl {

NumberChoice::NumberChoice(Process &process, RequestViewModel &request, QObject *parent)
    : QObject(parent), process_(process), request_(request) {}

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
QString NumberChoice::limitTitle() {
    return QStringLiteral("Limit Reached").toUpper();
}
QString NumberChoice::limitMessage() {
    return QStringLiteral("Watch a video to increase\nphone numbers limit");
}

void NumberChoice::tap(const Country &country, const PhoneNumber &number) {
    process_.platform().haptics.impact(Impact::Soft);
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
