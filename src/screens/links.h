#pragma once

#include "platform/platform.h"

#include <QUrl>

namespace orl {

/// Pages on the legal pages host.
enum class LegalPage { PrivacyPolicy, TermsOfService, Eula };
void openLegalPage(const Platform &platform, LegalPage page);

/// Where the store keeps the application. Stores are opened by their own scheme, "itms-apps".
struct StoreLinks {
    /// From the store host of the endpoints; a host of which no link can be made is a fatal error.
    explicit StoreLinks(const Platform &platform);

    QUrl share;     ///< the application's page
    QUrl review;    ///< the same, ready to write a review
    QUrl makerPage; ///< the other applications of the maker
};

/// Who answers mails of users.
QString contactAddress();

} // namespace orl
