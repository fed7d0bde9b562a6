#include "cli/commands.h"
#include "cli/port_watch.h"
#include "support/played_platform.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <chrono>
#include <gtest/gtest.h>

namespace orl {
namespace {

using namespace std::chrono_literals;

const char *const localCatalogue = R"([
    {"name":"France","domain":"","prefix":"+33","continent":"Europe","icon":"fr","format":"+XX XXX"},
    {"name":"Ghana","domain":"","prefix":"+233","continent":"Africa","icon":"gh","format":"+XXX XXX"}])";

const char *const countryPage = R"(<div class="container-fluid mt-3 p-0">
    <div class="col-sm-12 col-md-6 col-lg-4"><a href="/en/countries/france"><b class="placeholder h5">France</b></a></div>
    <div class="col-sm-12 col-md-6 col-lg-4"><a href="/en/countries/ghana"><b class="placeholder h5">Ghana</b></a></div>
    </div>)";

const char *const numberPage = R"(<div class="fw-bold text-primary placeholder">+33 555 01</div>
    <div class="fw-bold text-primary placeholder">+33 555 02</div>)";

QByteArray message(const QByteArray &sender, const QByteArray &content, const QByteArray &time) {
    return "<div class=\"shadow-sm bg-light rounded border-start border-info border-5\"><a "
           "class=\"mb-1\">From: " +
           sender + "</a><div class=\"placeholder text-break\">" + content +
           "</div></div><div class=\"mt-3\" data-created=\"2026-01-01T" + time + ".000000Z\">x</div>";
}

/// A phone whose websites know two countries, two numbers of one of them, and two messages of one of those.
class CommandsTest : public testing::Test {
protected:
    CommandsTest() {
        phone.bundle.resources[QStringLiteral("countries.json")] = localCatalogue;
        for (const char *path : {"/KeLo/iOS/orl_config.json", "/KeLo/OnlineSMS/scraping_config.json",
                                 "/KeLo/OnlineSMS/icons.json", "/KeLo/Android/tpn_site_countries.json"})
            phone.urls.answer(phone.endpoints.configurationHost + QLatin1String(path), "[]");
        phone.urls.answer(first("/en"), countryPage);
        phone.urls.answer(first("/en/countries/france"), numberPage);
        phone.urls.answer(first("/en/numbers/3355501"),
                          message("Bank", "code 2", "10:00:02") + message("Info", "code 1", "10:00:01"));
    }

    QString first(const char *path) const { return phone.endpoints.firstWebsite + QLatin1String(path); }

    std::optional<ExitCode> run(const QStringList &arguments) {
        const Result<CommandLine> line =
            CommandLine::parse(QStringList{QStringLiteral("orl-cli")} + arguments);
        EXPECT_TRUE(line.ok());
        commands.run(line.value(), [this](ExitCode code) { exitCode = code; });
        phone.advance(5s);
        return exitCode;
    }

    /// The next run of the program on the same store. It stays until the one after it.
    std::optional<ExitCode> runAgain(const QStringList &arguments) {
        phone.endProcess();
        results.clear();
        notices.clear();
        exitCode.reset();
        again.reset();
        nextIdle = std::make_unique<IdleWatch>(phone.globalQueue, phone.mainQueue);
        nextProcess = std::make_unique<Process>(watchedPlatform(*nextIdle));
        again = std::make_unique<Commands>(*nextProcess, *nextIdle, reads, output);
        const auto line = CommandLine::parse(QStringList{QStringLiteral("orl-cli")} + arguments);
        EXPECT_TRUE(line.ok());
        again->run(line.value(), [this](ExitCode code) { exitCode = code; });
        phone.advance(5s);
        return exitCode;
    }

    Platform watchedPlatform() { return watchedPlatform(idle); }
    Platform watchedPlatform(IdleWatch &watch) { return phone.platform().with(watch, reads); }

    PlayedPlatform phone;
    IdleWatch idle{phone.globalQueue, phone.mainQueue};
    ReadWatch reads{phone.urls};
    Process process{watchedPlatform()};
    QStringList results, notices;
    std::optional<ExitCode> exitCode;
    const Commands::Output output{[this](const QString &line) { results << line; },
                                  [this](const QString &line) { notices << line; }};
    Commands commands{process, idle, reads, output};
    std::unique_ptr<IdleWatch> nextIdle;
    std::unique_ptr<Process> nextProcess;
    std::unique_ptr<Commands> again;
};

TEST_F(CommandsTest, CountriesAreFoundByNameAndPrefix) {
    EXPECT_EQ(run({"countries", "33"}), ExitCode::Done);
    EXPECT_EQ(results, (QStringList{"+33    France", "+233   Ghana"}));
}

TEST_F(CommandsTest, ATermThatMatchesNothingEndsWithNothingFound) {
    EXPECT_EQ(run({"countries", "atlantis"}), ExitCode::NothingFound);
    EXPECT_EQ(notices, QStringList{"no countries found"});
    EXPECT_TRUE(results.isEmpty());
}

TEST_F(CommandsTest, NumbersComeOneALineWhateverTheCaseOfTheName) {
    EXPECT_EQ(run({"numbers", "france"}), ExitCode::Done);
    EXPECT_EQ(results, (QStringList{"+33 555 01", "+33 555 02"}));
}

TEST_F(CommandsTest, MessagesComeNewestAtTheBottom) {
    EXPECT_EQ(run({"messages", "France", "33-555-01"}), ExitCode::Done);
    EXPECT_EQ(results,
              (QStringList{"2026-01-01 10:00:01  Info: code 1", "2026-01-01 10:00:02  Bank: code 2"}));
}

TEST_F(CommandsTest, JsonIsOneListOfObjects) {
    EXPECT_EQ(run({"messages", "France", "3355501", "--json"}), ExitCode::Done);
    const QJsonArray list = QJsonDocument::fromJson(results.value(0).toUtf8()).array();
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(list[1].toObject(),
              (QJsonObject{{"sender", "Bank"}, {"content", "code 2"}, {"time", "2026-01-01T10:00:02.000Z"}}));
}

TEST_F(CommandsTest, WatchingPrintsEachNewMessageOnceAndStays) {
    EXPECT_EQ(run({"messages", "France", "3355501", "--watch"}), std::nullopt);
    results.clear();
    phone.advance(10s);
    EXPECT_TRUE(results.isEmpty());
    phone.urls.answer(first("/en/numbers/3355501"), message("Shop", "code 3", "10:00:03") +
                                                        message("Shop", "code 3", "10:00:03") +
                                                        message("Bank", "code 2", "10:00:02"));
    phone.advance(20s);
    EXPECT_EQ(results,
              (QStringList{"2026-01-01 10:00:03  Shop: code 3", "2026-01-01 10:00:03  Shop: code 3"}));
    EXPECT_EQ(exitCode, std::nullopt);
}

struct WaitTest : CommandsTest {
    const QByteArray old = message("Bank", "old code 1111", "10:00:02");

    /// Waits on a page with one old message; then these come, and ten seconds pass.
    std::optional<ExitCode> waitFor(const QByteArray &newer, const QStringList &options) {
        phone.urls.answer(first("/en/numbers/3355501"), old);
        EXPECT_EQ(run(QStringList{"wait", "France", "3355501"} + options), std::nullopt);
        EXPECT_TRUE(results.isEmpty()) << "what was there before does not count";
        phone.urls.answer(first("/en/numbers/3355501"), newer + old);
        phone.advance(10s);
        return exitCode;
    }
};

TEST_F(WaitTest, PrintsTheFirstCodeOrLinkThatArrives) {
    struct Case {
        const char *name;
        QByteArray newer;
        QStringList results;
    };
    const Case cases[] = {
        {"code", message("Shop", "Your code is 123-456, see a.com", "10:00:03"), {"123456"}},
        {"international", message("Shop", "Call +44 123", "10:00:03"), {"+44123"}},
        {"link", message("Shop", "Tap https://a.example/x.", "10:00:03"), {"https://a.example/x"}},
        {"oldest of two",
         message("Shop", "code 4444", "10:00:04") + message("Shop", "code 3333", "10:00:03"),
         {"3333"}},
        {"same text as before", message("Bank", "old code 1111", "10:00:03"), {"1111"}},
        {"one without comes first",
         message("Shop", "code 4444", "10:00:04") + message("Shop", "welcome", "10:00:03"),
         {"4444"}},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        phone.urls.answer(first("/en/numbers/3355501"), old);
        runAgain({"wait", "France", "3355501", "--code"});
        EXPECT_TRUE(results.isEmpty());
        phone.urls.answer(first("/en/numbers/3355501"), row.newer + old);
        phone.advance(10s);
        EXPECT_EQ(results, row.results);
        EXPECT_EQ(exitCode, ExitCode::Done);
        phone.advance(1min);
        EXPECT_EQ(results.size(), 1) << "it ends once";
    }
}

TEST_F(WaitTest, AMessageWithoutCodeCountsUnlessCodesWereAskedFor) {
    EXPECT_EQ(waitFor(message("Shop", "welcome", "10:00:03"), {}), ExitCode::Done);
    EXPECT_EQ(results, QStringList{"2026-01-01 10:00:03  Shop: welcome"});
}

TEST_F(WaitTest, JsonTellsTheMessageBesideItsCode) {
    EXPECT_EQ(waitFor(message("Shop", "code 4444", "10:00:03"), {"--code", "--json"}), ExitCode::Done);
    EXPECT_EQ(QJsonDocument::fromJson(results.value(0).toUtf8()).object(),
              (QJsonObject{{"code", "4444"},
                           {"sender", "Shop"},
                           {"content", "code 4444"},
                           {"time", "2026-01-01T10:00:03.000Z"}}));
}

TEST_F(WaitTest, GivesUpAfterTheTimeout) {
    EXPECT_EQ(waitFor(message("Shop", "welcome", "10:00:03"), {"--code", "--timeout", "30"}), std::nullopt);
    phone.advance(14s);
    EXPECT_EQ(exitCode, std::nullopt);
    phone.advance(1s);
    EXPECT_EQ(exitCode, ExitCode::NothingFound);
    EXPECT_EQ(notices, QStringList{"nothing came within 30 seconds"});
    EXPECT_TRUE(results.isEmpty());
}

TEST_F(WaitTest, ThePageThatCouldNotBeReadAtFirstIsNotTakenForNews) {
    phone.urls.answer(first("/en/numbers/3355501"), Error{"no route"});
    EXPECT_EQ(run({"wait", "France", "3355501", "--code"}), std::nullopt);
    phone.urls.answer(first("/en/numbers/3355501"), old);
    phone.advance(20s);
    EXPECT_EQ(exitCode, std::nullopt);
    phone.urls.answer(first("/en/numbers/3355501"), message("Shop", "code 4444", "10:00:03") + old);
    phone.advance(10s);
    EXPECT_EQ(results, QStringList{"4444"});
}

TEST_F(CommandsTest, ChosenNumbersStandInTheHistory) {
    EXPECT_EQ(run({"choose", "france", "33 555 02"}), ExitCode::Done);
    EXPECT_EQ(results, QStringList{"+33 555 02"});
    EXPECT_EQ(runAgain({"choose", "France", "3355501"}), ExitCode::Done);
    EXPECT_EQ(runAgain({"history"}), ExitCode::Done);
    ASSERT_EQ(results.size(), 2);
    EXPECT_TRUE(results[0].endsWith("+33 555 01  France")) << results[0].toStdString();
    EXPECT_TRUE(results[1].endsWith("+33 555 02  France")) << results[1].toStdString();
    EXPECT_TRUE(results[0].startsWith("2026-01-01 00:00:"));

    EXPECT_EQ(runAgain({"history", "--json"}), ExitCode::Done);
    const QJsonArray list = QJsonDocument::fromJson(results.value(0).toUtf8()).array();
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(list[0]["phoneNumber"]["number"], "+33 555 01");
}

TEST_F(CommandsTest, ChoosingHoldsToTheAllowance) {
    EXPECT_EQ(run({"choose", "France", "3355501"}), ExitCode::Done);
    EXPECT_EQ(runAgain({"choose", "France", "3355501"}), ExitCode::Done);
    const QString used = QStringLiteral("chose_numbers_count_key");
    EXPECT_EQ(phone.store.integer(used), 1) << "the current number is not chosen again";
    phone.store.setValue(used, qint64(3));
    EXPECT_EQ(runAgain({"choose", "France", "3355501"}), ExitCode::Done);
    EXPECT_EQ(runAgain({"choose", "France", "3355502"}), ExitCode::NothingFound);
    EXPECT_EQ(notices.size(), 1);
    EXPECT_EQ(phone.store.integer(used), 3);
    EXPECT_EQ(runAgain({"choose", "France", "99"}), ExitCode::NothingFound);
}

TEST_F(CommandsTest, AHistoryThatIsNotThereOrCannotBeReadIsNothingFound) {
    EXPECT_EQ(run({"history"}), ExitCode::NothingFound);
    EXPECT_EQ(notices, QStringList{"no number was chosen yet"});
    phone.store.setValue(QStringLiteral("history_key"), QByteArray("[{]"));
    EXPECT_EQ(runAgain({"history"}), ExitCode::NothingFound);
    EXPECT_TRUE(phone.console.lines.constLast().startsWith("Failed to update history: "));
    EXPECT_EQ(phone.store.data(QStringLiteral("history_key")), QByteArray("[{]"));
}

TEST_F(CommandsTest, AnEndpointThatFailsIsToldApartFromNothingFound) {
    struct Case {
        const char *name;
        const char *path;
        PlayedUrls::Answer answer;
        QStringList arguments;
        ExitCode code;
    };
    const Case cases[] = {
        {"country page unreachable", "/en", Error{"no route"}, {"countries"}, ExitCode::EndpointFailed},
        {"country page is an error page",
         "/en",
         UrlResponse{404, "<h1>Gone"},
         {"countries"},
         ExitCode::EndpointFailed},
        {"country page of another site", "/en", "<p>hello", {"countries"}, ExitCode::NothingFound},
        {"number page unreachable",
         "/en/countries/france",
         Error{"no route"},
         {"numbers", "France"},
         ExitCode::EndpointFailed},
        {"message page unreachable",
         "/en/numbers/3355501",
         Error{"no route"},
         {"messages", "France", "3355501"},
         ExitCode::EndpointFailed},
        {"message page empty",
         "/en/numbers/3355501",
         "",
         {"messages", "France", "3355501"},
         ExitCode::NothingFound},
        {"unknown country", "/en", countryPage, {"numbers", "Atlantis"}, ExitCode::NothingFound},
        {"unknown number", "/en", countryPage, {"messages", "France", "99"}, ExitCode::NothingFound},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        phone.urls.answerOnce(first(row.path), row.answer);
        exitCode.reset();
        notices.clear();
        IdleWatch freshIdle(phone.globalQueue, phone.mainQueue);
        ReadWatch freshReads(phone.urls);
        Process fresh(watchedPlatform().with(freshIdle, freshReads));
        Commands command(fresh, freshIdle, freshReads,
                         {[](const QString &) {}, [this](const QString &line) { notices << line; }});
        QStringList arguments{"orl-cli"};
        command.run(CommandLine::parse(arguments + row.arguments).value(),
                    [this](ExitCode code) { exitCode = code; });
        phone.advance(5s);
        EXPECT_EQ(exitCode, row.code);
        EXPECT_EQ(notices.size(), 1);
        phone.settle();
    }
}

} // namespace
} // namespace orl
