#include "app/store_pages.h"

#include <gtest/gtest.h>

using namespace orl;

namespace {

TEST(StorePagesTest, LinksOfTheStoreOpenAsPagesOfItsHost) {
    const QUrl link(QStringLiteral("itms-apps://127.0.0.1:4711/store/app/id1?mt=8&action=write-review"));
    for (const char *scheme : {"http", "https"}) {
        const StorePages pages(QLatin1String(scheme) + QStringLiteral("://127.0.0.1:4711/store"));
        EXPECT_EQ(pages.pageOf(link).toString(),
                  QLatin1String(scheme) +
                      QStringLiteral("://127.0.0.1:4711/store/app/id1?mt=8&action=write-review"));
    }
}

} // namespace
