#include "platform/url_reader.h"
#include "support/played_platform.h"

#include <gtest/gtest.h>

namespace orl {
namespace {

TEST(UrlTextTest, OnlyAbsoluteWebAddressesMakeAUrl) {
    struct Case {
        const char *text;
        bool makes;
    };
    const Case cases[] = {
        {"https://host.example", true},
        {"HTTP://host.example/a?b=c@d+e#f", true},
        {"http://[::1]:8080/", true},
        {"https://host.example/\u00e9", true},
        {"", false},
        {"host.example/path", false},
        {"//host.example/path", false},
        {"https://", false},
        {"https:///path", false},
        {"file:///etc/passwd", false},
        {"data:text/plain,x", false},
        {"https://host.example/a b", false},
        {"https://host.example/%zz", false},
        {"https://host.example:99999/", false},
        {"https://host.example/\nx", false},
    };
    for (const Case &c : cases)
        EXPECT_EQ(makeUrl(QString::fromUtf8(c.text)).has_value(), c.makes) << c.text;
}

TEST(UrlTextTest, TheTextOfAUrlStaysAsItStands) {
    const QString text = QStringLiteral("https://host.example/api?inbox=a.b+c%2B@d.example");
    EXPECT_EQ(makeUrl(text)->toEncoded(), text.toUtf8());
}

TEST(UrlTextTest, ABodyThatIsNoUtf8IsAnError) {
    PlayedPlatform platform;
    const QString url = QStringLiteral("https://host.example/");
    const QByteArray valid[] = {"", "abc", "\xc3\xa9", "\xf0\x9f\x98\x80", QByteArray("a\0b", 3)};
    for (const QByteArray &body : valid) {
        platform.urls.answerOnce(url, body);
        EXPECT_EQ(readText(platform.urls, QUrl(url)).value(), body);
    }
    const QByteArray broken[] = {"\xff", "abc\xc3", "\xc3(", "\xed\xa0\x80", "\xc0\x80", "\xf4\x90\x80\x80"};
    for (const QByteArray &body : broken) {
        platform.urls.answerOnce(url, body);
        const Result<QByteArray> text = readText(platform.urls, QUrl(url));
        ASSERT_FALSE(text.ok()) << body.toHex().toStdString();
        EXPECT_TRUE(text.error().description.contains(QStringLiteral("UTF-8")));
    }
}

TEST(UrlTextTest, AnErrorPageIsTextLikeAnyOther) {
    PlayedPlatform platform;
    const QString url = QStringLiteral("https://host.example/");
    platform.urls.answer(url, UrlResponse{404, "gone"});
    EXPECT_EQ(readText(platform.urls, QUrl(url)).value(), QByteArray("gone"));
    platform.urls.answer(url, Error{QStringLiteral("no way")});
    EXPECT_EQ(readText(platform.urls, QUrl(url)).error().description, QStringLiteral("no way"));
}

} // namespace
} // namespace orl
