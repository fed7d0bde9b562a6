#include "cli/mail_command.h"
#include "cli/port_watch.h"
#include "support/played_platform.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace orl {
namespace {

using namespace std::chrono_literals;

QByteArray mail(const QByteArray &id, const QByteArray &subject) {
    return R"({"id":")" + id + R"(","subject":")" + subject +
           R"(","created_at":"2026-01-01T09:05:00+0000","sender":{"id":"s","display_name":"Shop",)"
           R"("email":"shop@example.com"},"has_html":true,"has_text":false})";
}

QByteArray inbox(const QByteArrayList &mails) {
    return R"({"data":[)" + mails.join(',') + "]}";
}

struct MailCommandTest : testing::Test {
    MailCommandTest() { answer({mail("m2", "Second"), mail("m1", "First")}); }

    void answer(const QByteArrayList &mails) { phone.urls.answer(api("?inbox=a@x.example"), inbox(mails)); }
    void body(const char *id, PlayedUrls::Answer answer) {
        phone.urls.answer(api("/" + QString(id)), std::move(answer));
    }
    QString api(const QString &rest) const { return phone.endpoints.mailHost + "/api/emails" + rest; }

    std::optional<ExitCode> run(const QStringList &arguments) {
        const auto line = CommandLine::parse(QStringList{"orl-cli", "mail", "a@x.example"} + arguments);
        EXPECT_TRUE(line.ok());
        command =
            std::make_unique<MailCommand>(process, idle, reads,
                                          Commands::Output{[this](const QString &text) { results << text; },
                                                           [this](const QString &text) { notices << text; }});
        command->run(line.value(), [this](ExitCode code) { exitCode = code; });
        phone.advance(5s);
        return exitCode;
    }

    PlayedPlatform phone;
    IdleWatch idle{phone.globalQueue, phone.mainQueue};
    ReadWatch reads{phone.urls};
    Process process{phone.platform().with(idle, reads)};
    QStringList results, notices;
    std::optional<ExitCode> exitCode;
    std::unique_ptr<MailCommand> command;
};

TEST_F(MailCommandTest, MailsComeNewestAtTheBottomWithoutWaitingForTheirBodies) {
    for (const char *id : {"m1", "m2"}) {
        body(id, "x");
        phone.urls.hold(api("/" + QString(id)));
    }
    EXPECT_EQ(run({}), ExitCode::Done);
    EXPECT_EQ(results, (QStringList{"2026-01-01T09:05:00+0000  m1  Shop: First",
                                    "2026-01-01T09:05:00+0000  m2  Shop: Second"}));
    EXPECT_TRUE(phone.store.writes.isEmpty()) << "the application's own address stays";
}

TEST_F(MailCommandTest, JsonIsOneListOfObjects) {
    body("m1", "x");
    body("m2", "x");
    EXPECT_EQ(run({"--json"}), ExitCode::Done);
    const QJsonArray list = QJsonDocument::fromJson(results.value(0).toUtf8()).array();
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(list[0].toObject(), (QJsonObject{{"id", "m1"},
                                               {"time", "2026-01-01T09:05:00+0000"},
                                               {"sender", "Shop"},
                                               {"address", "shop@example.com"},
                                               {"subject", "First"}}));
}

TEST_F(MailCommandTest, AnEmptyInboxAndAFailingHostAreToldApart) {
    answer({});
    EXPECT_EQ(run({}), ExitCode::NothingFound);
    EXPECT_EQ(notices, QStringList{"no mails"});
}

TEST_F(MailCommandTest, AHostThatAnswersNothingReadableHasFailed) {
    phone.urls.answer(api("?inbox=a@x.example"), Error{"no route"});
    EXPECT_EQ(run({}), ExitCode::EndpointFailed);
}

TEST_F(MailCommandTest, WatchingPrintsEachMailOnceAndNothingThatATerminalObeys) {
    body("m1", "x");
    body("m2", "x");
    body("m3", "x");
    EXPECT_EQ(run({"--watch"}), std::nullopt);
    EXPECT_EQ(results.size(), 2);
    answer({mail("m3", "T\\u001b[2Jhird"), mail("m2", "Second"), mail("m1", "First")});
    phone.advance(30s);
    ASSERT_EQ(results.size(), 3);
    EXPECT_EQ(results[2], QString::fromUtf8("2026-01-01T09:05:00+0000  m3  Shop: T\ufffd[2Jhird"));
    EXPECT_EQ(exitCode, std::nullopt);
}

TEST_F(MailCommandTest, ShowPrintsABodyOrItsWords) {
    struct Case {
        const char *name, *body;
        QStringList options;
        QString result;
    };
    const Case cases[] = {
        {"as sent", "<p>Hi <b>you</b></p>\n", {}, "<p>Hi <b>you</b></p>"},
        {"words", "<p>Hi <b>you</b></p><p>Bye", {"--text"}, "Hi you\nBye"},
        {"words of plain text", "a < b\n\n  <c@x.example>\n", {"--text"}, "a < b\n\n  <c@x.example>"},
        {"json", "<p>Hi", {"--text", "--json"}, R"({"id":"m1","text":"Hi"})"},
        {"broken UTF-8", "caf\xe9", {}, QString::fromUtf8("caf\ufffd")},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        results.clear();
        exitCode.reset();
        body("m1", row.body);
        EXPECT_EQ(run(QStringList{"show", "m1"} + row.options), ExitCode::Done);
        EXPECT_EQ(results, QStringList{row.result});
    }
    body("m1", UrlResponse{404, "<h1>Gone"});
    EXPECT_EQ(run({"show", "m1"}), ExitCode::NothingFound);
    body("m1", UrlResponse{500, "<h1>Oh"});
    EXPECT_EQ(run({"show", "m1"}), ExitCode::EndpointFailed);
    body("m1", Error{"no route"});
    EXPECT_EQ(run({"show", "m1"}), ExitCode::EndpointFailed);
}

TEST_F(MailCommandTest, WaitPrintsTheFirstCodeOrLinkThatArrives) {
    struct Case {
        const char *name, *subject, *body;
        QStringList results;
    };
    const Case cases[] = {
        {"code in the subject", "482913 is your code", "<p>Use 777777", {"482913"}},
        {"code in the body", "Confirm", "<p>For 10 minutes: <b>48 29-13</b>", {"482913"}},
        {"code in plain text", "Confirm", "a < b\ncode 5521", {"5521"}},
        {"link behind words",
         "Confirm",
         "<a href='https://a.example/x?y=1'>here</a>",
         {"https://a.example/x?y=1"}},
        {"link in plain text", "Confirm", "Tap https://a.example/x.", {"https://a.example/x"}},
        {"neither", "Hello", "<p>Tea on 12 May", {}},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        results.clear();
        exitCode.reset();
        answer({mail("m1", "old 999999")});
        body("m1", "old 111111");
        body("m2", row.body);
        EXPECT_EQ(run({"wait", "--code"}), std::nullopt) << "what was there before does not count";
        answer({mail("m2", row.subject), mail("m1", "old 999999")});
        phone.advance(10s);
        EXPECT_EQ(results, row.results);
        EXPECT_EQ(exitCode.has_value(), !row.results.isEmpty());
        phone.endProcess();
    }
}

TEST_F(MailCommandTest, WaitGivesUpAfterTheTimeout) {
    body("m1", "x");
    body("m2", "x");
    EXPECT_EQ(run({"wait", "--timeout", "30"}), std::nullopt);
    phone.advance(25s);
    EXPECT_EQ(exitCode, ExitCode::NothingFound);
    EXPECT_EQ(notices, QStringList{"nothing came within 30 seconds"});
}

} // namespace
} // namespace orl
