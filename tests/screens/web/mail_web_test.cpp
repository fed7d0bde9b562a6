#include "mail/leaks.h"
#include "mail/mail_page.h"
#include "mail_web_view.h"
#include "support/web_processes.h"

#include <QGuiApplication>

using namespace orl;

namespace {

int drawing() {
    return WebProcesses::of(QCoreApplication::applicationPid()).drawing;
}

TEST_F(MailWebTest, AMailIsShownAsItIsAndItsPicturesAreLoaded) {
    load(mailPage(QStringLiteral("<img src='%1'>").arg(spy.url(QStringLiteral("/1")))));
    EXPECT_TRUE(waitUntil([&] { return spy.paths.contains(QStringLiteral("/1")); }));
    EXPECT_EQ(say(QStringLiteral(
                  "document.title = 'says ' + getComputedStyle(document.documentElement).backgroundColor")),
              QStringLiteral("rgba(0, 0, 0, 0)"));
}

TEST_F(MailWebTest, LettersGrowWithTheUsersTextSize) {
    const QString says = QStringLiteral("setInterval(() => document.title = 'says ' + devicePixelRatio, 5)");
    const auto isSize = [&](const char *size) {
        return waitUntil([&] { return title() == QStringLiteral("says ") + QLatin1String(size); });
    };
    say(says);
    EXPECT_TRUE(isSize("1")) << title().toStdString();
    mail_->setProperty("textScale", 1.5);
    EXPECT_TRUE(isSize("1.5")) << title().toStdString();
    say(says);
    EXPECT_TRUE(isSize("1.5")) << "the next mail has small letters: " << title().toStdString();
}

TEST_F(MailWebTest, APageOfThreeMegabytesIsShown) {
    const QString words = QStringLiteral("words and ").repeated(300'000);
    load(mailPage(QStringLiteral("<p hidden>") + words + // their layout is the engine's affair
                  QStringLiteral("<script>document.title = document.body.textContent.length</script>")));
    EXPECT_TRUE(waitUntil([&] { return title().toInt() >= 3'000'000; })) << title().toStdString();
}

TEST_F(MailWebTest, InPrivateModeNothingReachesAnybody) {
    QString bodies;
    for (const char *markup : test::leaks)
        bodies += mailBody(privateMail(mailPage(leak(markup)), false).page);
    load(mailPage(bodies), true);
    ASSERT_NO_FATAL_FAILURE(knock());
    EXPECT_EQ(spy.paths, QStringList{QStringLiteral("/last")});
    EXPECT_EQ(spy.connections, 1);
}

TEST_F(MailWebTest, WhatCleaningMightMissIsHeldBackByTheView) {
    for (const char *markup : test::leaks)
        load(mailPage(leak(markup)), true);
    ASSERT_NO_FATAL_FAILURE(knock());
    EXPECT_EQ(spy.paths, QStringList{QStringLiteral("/last")});
}

TEST_F(MailWebTest, TheTricksDoReachSomebodyWithoutPrivateMode) {
    for (int i = 0; i < 6; ++i)
        load(mailPage(leak(test::leaks[i])));
    ASSERT_NO_FATAL_FAILURE(knock());
    EXPECT_GE(spy.paths.size(), 6) << "or else the two tests above could not fail";
}

TEST_F(MailWebTest, ATappedLinkShowsWhereItLeadsThenLoadsInPlace) {
    QStringList shown;
    for (const bool withheld : {false, true}) {
        SCOPED_TRACE(withheld);
        shown.clear();
        // What stands before the host may look like another one, and is not shown.
        load(QStringLiteral("<a href='http://my.bank@%1/to/there' style='position:fixed;inset:0'>my bank</a>")
                 .arg(spy.host()),
             withheld);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&view_));
        const auto atEnd = [&] { return title() == QStringLiteral("/there"); };
        const auto follow = [&] {
            const QString destination = mail_->property("destination").toString();
            if (!destination.isEmpty() && !shown.contains(destination)) shown << destination;
            return !destination.isEmpty();
        };
        EXPECT_TRUE(tap([&] { return follow() || atEnd(); }));
        EXPECT_TRUE(waitUntil([&] { return follow(), atEnd(); }));
        EXPECT_TRUE(shown.contains(spy.url(QStringLiteral("/to/there")))) << shown.join(u' ').toStdString();
    }
}

TEST_F(MailWebTest, APageCanNeitherReadFilesNorReachTheProgram) {
    EXPECT_EQ(say(QStringLiteral("document.title = 'says ' + typeof qt + typeof webChannelTransport")),
              QStringLiteral("undefinedundefined"));
    EXPECT_EQ(
        say(QStringLiteral("fetch('file:///etc/hostname').then(() => document.title = 'says read', () => "
                           "document.title = 'says refused')")),
        QStringLiteral("refused"));
    EXPECT_EQ(say(QStringLiteral(
                  "navigator.permissions.query({name: 'geolocation'}).then(p => "
                  "document.title = 'says ' + (p.state != 'granted'), () => document.title = 'says true')")),
              QStringLiteral("true"));
    EXPECT_EQ(say(QStringLiteral("const w = window.open('%1'); document.title = 'says ' + w")
                      .arg(spy.url(QStringLiteral("/w")))),
              QStringLiteral("null"));
    EXPECT_EQ(say(QStringLiteral("alert(1); document.title = 'says ' + confirm(2) + prompt(3)")),
              QStringLiteral("falsenull"));
    EXPECT_FALSE(spy.paths.contains(QStringLiteral("/w")));
}

TEST_F(MailWebTest, TheProcessesThatDrawGoWithTheView) {
    load(QStringLiteral("x"));
    EXPECT_GE(drawing(), 1);
    close();
    EXPECT_TRUE(waitUntil([] { return drawing() == 0; })) << drawing();
    open();
    load(QStringLiteral("x"));
    EXPECT_GE(drawing(), 1) << "the next mail has one again";
}

} // namespace

int main(int argc, char **argv) {
    QGuiApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
