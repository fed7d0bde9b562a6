#include "client.h"

#include <QUrl>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace orl::demo {

TEST(LegalPagesTest, EachPageStandsUnderItsAddressWithOrWithoutASlash) {
    const PlayedHost played;
    const QString base = played.host.endpoints().legalHost;
    const QString prefix = QUrl(base).path();
    struct Case {
        QString path;
        QByteArray heading; ///< empty: no such page
    };
    const Case cases[] = {
        {u"/orl/privacy-policy/"_s, "<h1>Privacy Policy</h1>"},
        {u"/orl/privacy-policy"_s, "<h1>Privacy Policy</h1>"},
        {u"/orl/terms-of-service/"_s, "<h1>Terms of Service</h1>"},
        {u"/eula/"_s, "<h1>End User Licence Agreement</h1>"},
        {u"/"_s, ""},
        {u"/orl/"_s, ""},
        {u"/orl/eula/"_s, ""},
        {u"/eula//"_s, ""},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.path.toStdString());
        const Answer answer = played.get(prefix + row.path);
        EXPECT_EQ(answer.status, row.heading.isEmpty() ? 404 : 200);
        EXPECT_TRUE(answer.body.contains(row.heading));
        EXPECT_FALSE(answer.body.contains("@TITLE@") || answer.body.contains("@BODY@"));
        EXPECT_EQ(answer.headers.value("content-type"), "text/html; charset=utf-8");
    }
}

} // namespace orl::demo
