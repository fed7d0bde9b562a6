#include "screens/custom_alert_view.h"

#include "screens/links.h"

namespace orl {

void CustomAlertView::openTermsOfService() {
    openLegalPage(process_.platform(), LegalPage::TermsOfService);
}
void CustomAlertView::openPrivacyPolicy() {
    openLegalPage(process_.platform(), LegalPage::PrivacyPolicy);
}

AlertItem limitReached() {
    AlertItem item;
    item.image = QStringLiteral("limit_cover");
    item.title = QStringLiteral("Limit Reached").toUpper();
    item.subtitle = QStringLiteral("Watch a video to increase\nphone numbers limit");
    item.mainButtonTitle = QStringLiteral("Watch");
    item.cancelButtonTitle = QStringLiteral("Cancel");
    return item;
}

} // namespace orl
