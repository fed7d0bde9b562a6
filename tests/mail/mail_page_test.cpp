#include "leaks.h"
#include "mail/mail_page.h"
#include "mail_phone.h"

#include <orl/html/html.h>

namespace orl {
namespace {

TEST(MailPage, TheBodyStandsInTheTemplateAsItIs) {
    const QString expected = QStringLiteral(R"(
<!DOCTYPE html>
<html>
<head>
<style>
.myDiv1 {
   color: white;
}
a:link {
  color: orange;
}
p {
   color: white;
}
body {
    color: white;
    font-size: 20px;
}

</style>

<meta name='viewport' content='width=device-width, initial-scale=1.0, maximum-scale=1.0, minimum-scale=1.0, user-scalable=no'>
</head>
)") + QString(12, ' ') + QStringLiteral("\n<body>\nI < you\r\n\n</body>\n</html>");
    EXPECT_EQ(mailPage("I < you\r\n"), expected);
    EXPECT_EQ(mailBody(expected), "I < you\r\n");
    EXPECT_EQ(mailBody(mailPage("")), "");
}

TEST(MailPage, OnlyBareLowerCaseDivsGetTheClass) {
    EXPECT_EQ(mailBody(mailPage("<div><DIV><div id=1>a</div><div ><div>")),
              R"(<div class="myDiv1"><DIV><div id=1>a</div><div ><div class="myDiv1">)");
}

TEST(MailPage, TextHasALinePerBlock) {
    EXPECT_EQ(mailText("<html><head><title>no</title><style>p{}</style></head><body>Hi<p>Your  code\nis <b>48"
                       "2913</b><br>Bye<table><tr><td>Tea<td>4.90</table><script>x()</script>&amp; more"),
              "Hi\nYour code is 482913\nBye\nTea 4.90\n& more");
    EXPECT_EQ(mailText(""), "");
}

TEST(PrivateMail, NothingInItMakesABrowserFetchAnything) {
    for (const char *leak : test::leaks) {
        SCOPED_TRACE(leak);
        const QString markup =
            QLatin1String("<p>before</p>") + QLatin1String(leak) + QLatin1String("<p>after</p>");
        const QString page = mailBody(privateMail(mailPage(markup), false).page);
        EXPECT_TRUE(page.contains("before"));
        // The only place left for an address is where a tap on a link leads, and words.
        const html::Document document = html::Parser::parse(page.toStdString(), "");
        for (const html::Element &element : document.body().select("*")) {
            for (const html::Attribute &attribute : element.getAttributes()) {
                const std::string key = attribute.getKey();
                const bool words = key == "title" || key == "alt";
                const bool link = element.nodeName() == "a" && key == "href";
                EXPECT_TRUE(link || words || !QString::fromStdString(attribute.getValue()).contains("spy"))
                    << key << " of " << element.nodeName();
                EXPECT_NE(key, "src");
            }
            EXPECT_NE(element.nodeName(), "style");
        }
    }
}

TEST(PrivateMail, PicturesComeWhenTheyAreAskedForAndAreCounted) {
    const QString page =
        mailPage(R"(<p onclick=x>Hi <img src="https://a.example/1.png" alt="Tea">)"
                 R"(<img src="cid:1"><img src="data:image/gif;base64,R0"><img src="http://b.example/2">)");
    const PrivateMail withheld = privateMail(page, false);
    EXPECT_EQ(withheld.pictures, 2);
    EXPECT_EQ(mailBody(withheld.page), R"(<p>Hi <img alt="Tea"><img><img><img></p>)");
    const PrivateMail shown = privateMail(page, true);
    EXPECT_EQ(shown.pictures, 2);
    EXPECT_EQ(
        mailBody(shown.page),
        R"(<p>Hi <img src="https://a.example/1.png" alt="Tea"><img><img><img src="http://b.example/2"></p>)");
}

TEST(PrivateMail, TextAndStructureStay) {
    EXPECT_EQ(mailBody(privateMail(mailPage("<html><body><h1 class=a>Tea</h1>\n<pre>a\n  b</pre><a "
                                            "href='javascript:x'>l</a><script>s</script>"),
                                   false)
                           .page),
              "<h1>Tea</h1>\n<pre>a\n  b</pre><a>l</a>");
}

} // namespace
} // namespace orl
