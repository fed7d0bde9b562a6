#include "screens/links.h"

#include "platform/url_reader.h"

namespace orl {

namespace {

QUrl madeUrl(const Platform &platform, const QString &text) {
    const std::optional<QUrl> url = makeUrl(text);
    if (!url) platform.fatal.fatalError(QStringLiteral("no link can be made of ") + text);
    return *url;
}

QString path(LegalPage page) {
    switch (page) {
    case LegalPage::PrivacyPolicy: return QStringLiteral("/orl/privacy-policy/");
    case LegalPage::TermsOfService: return QStringLiteral("/orl/terms-of-service/");
    case LegalPage::Eula: return QStringLiteral("/eula/");
    }
    return {};
}

QUrl storeUrl(const Platform &platform, const QString &pathAndQuery) {
    QUrl url = madeUrl(platform, platform.endpoints.storeHost + pathAndQuery);
    url.setScheme(QStringLiteral("itms-apps"));
    return url;
}

} // namespace

void openLegalPage(const Platform &platform, LegalPage page) {
    platform.browser.open(madeUrl(platform, platform.endpoints.legalHost + path(page)));
}

StoreLinks::StoreLinks(const Platform &platform)
    : share(storeUrl(platform, QStringLiteral("/app/" ORL_STORE_ID))),
      review(storeUrl(platform,
                      QStringLiteral("/us/app/apple-store/" ORL_STORE_ID "?mt=8&action=write-review"))),
      makerPage(storeUrl(platform, QStringLiteral("/us/developer/apple-store/" ORL_STORE_MAKER_ID))) {}

QString contactAddress() {
    return QStringLiteral(ORL_CONTACT_ADDRESS);
}

} // namespace orl
