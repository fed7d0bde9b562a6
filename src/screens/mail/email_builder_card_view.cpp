#include "screens/mail/email_builder_card_view.h"

#include "mail/address.h"

namespace orl {

EmailBuilderCardView::EmailBuilderCardView(AppConfigViewModel &appVM, const QString &domain, Actions actions,
                                           QObject *parent)
    : QObject(parent), appVM_(appVM), actions_(std::move(actions)), domain_(domain) {}

QStringList EmailBuilderCardView::loginSuggestions() const {
    return Constants::loginSuggestions();
}
QStringList EmailBuilderCardView::domains() const {
    return Constants::domains();
}

void EmailBuilderCardView::setLogin(const QString &login) {
    if (login == login_) return;
    login_ = login;
    Q_EMIT addressChanged();
}

void EmailBuilderCardView::setDomain(const QString &domain) {
    if (domain == domain_) return;
    domain_ = domain;
    actions_.selectDomain(domain);
    Q_EMIT addressChanged();
}

QString EmailBuilderCardView::address() const {
    return composedAddress(login_, domain_);
}
bool EmailBuilderCardView::canCreate() const {
    return isWellFormedAddress(address());
}

void EmailBuilderCardView::create() {
    if (!canCreate()) return;
    appVM_.setBannerTapped(false);
    actions_.create(address());
}

void EmailBuilderCardView::setShowLoginSuggestions(bool shown) {
    if (shown == showLoginSuggestions_) return;
    showLoginSuggestions_ = shown;
    Q_EMIT showLoginSuggestionsChanged();
}

} // namespace orl
