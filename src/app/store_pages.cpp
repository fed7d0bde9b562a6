#include "app/store_pages.h"

#include <QDesktopServices>

namespace orl {

namespace {

const QString storeScheme = QStringLiteral("itms-apps");

} // namespace

StorePages::StorePages(const QString &storeHost) : scheme_(QUrl(storeHost).scheme()) {
    QDesktopServices::setUrlHandler(storeScheme, this, "open");
}

StorePages::~StorePages() {
    QDesktopServices::unsetUrlHandler(storeScheme);
}

QUrl StorePages::pageOf(QUrl link) const {
    link.setScheme(scheme_);
    return link;
}

void StorePages::open(const QUrl &link) const {
    QDesktopServices::openUrl(pageOf(link));
}

} // namespace orl
