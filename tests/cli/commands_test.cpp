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

    Platform watchedPlatform() {
        Platform ports = phone.platform();
        return {ports.clock,        ports.mainQueue, idle,          reads,       ports.store,
                ports.reachability, ports.bundle,    ports.console, ports.fatal, ports.endpoints};
    }

    PlayedPlatform phone;
    IdleWatch idle{phone.globalQueue, phone.mainQueue};
    ReadWatch reads{phone.urls};
    Process process{watchedPlatform()};
    QStringList results, notices;
    std::optional<ExitCode> exitCode;
    Commands commands{
        process,
        idle,
        reads,
        {[this](const QString &line) { results << line; }, [this](const QString &line) { notices << line; }}};
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
        Platform ports = watchedPlatform();
        Process fresh(Platform{ports.clock, ports.mainQueue, freshIdle, freshReads, ports.store,
                               ports.reachability, ports.bundle, ports.console, ports.fatal,
                               ports.endpoints});
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
