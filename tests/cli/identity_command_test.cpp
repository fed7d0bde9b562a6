#include "cli/identity_command.h"
#include "cli/port_watch.h"
#include "identity/identity_phone.h"

namespace orl {
namespace {

using testing::Contains;
using testing::HasSubstr;

struct IdentityCommandTest : testing::Test {
    std::optional<ExitCode> run(const QStringList &arguments) {
        results.clear();
        notices.clear();
        std::optional<ExitCode> code;
        const auto line = CommandLine::parse(
            QStringList{QStringLiteral("orl-cli"), QStringLiteral("identity")} + arguments);
        EXPECT_TRUE(line.ok());
        commands.run(line.value(), [&code](ExitCode ended) { code = ended; });
        phone.settle();
        return code;
    }

    void serve(const char *path) {
        phone.urls.answer(phone.endpoints.identityHost + QLatin1String(path),
                          encodeJson(test::wireIdentity()));
    }

    PlayedPlatform phone;
    IdleWatch idle{phone.globalQueue, phone.mainQueue};
    ReadWatch reads{phone.urls};
    Process process{phone.platform()};
    QStringList results, notices;
    Commands commands{
        process,
        idle,
        reads,
        {[this](const QString &line) { results << line; }, [this](const QString &line) { notices << line; }}};
};

TEST_F(IdentityCommandTest, ChoicesMakeTheAddress) {
    struct Case {
        QStringList arguments;
        const char *path;
    };
    const Case cases[] = {
        {{"--gender", "female"}, "/english-united-states/female"},
        {{"--gender", "Male", "--name-set", "FRENCH"}, "/french-belgium/male"},
        {{"--gender", "male", "--name-set", "bengali"}, "/Bengali-bangladesh/male"},
        {{"--gender", "male", "--country", "canada"}, "/english-canada/male"},
        {{"--gender", "male", "--country", "japan"}, "/japanese-japan/male"},
        {{"--gender", "male", "--country", "moldova", "--name-set", "portuguese"},
         "/portuguese-moldova/male"},
    };
    for (const Case &row : cases) {
        serve(row.path);
        EXPECT_EQ(run(row.arguments), ExitCode::Done) << row.path;
        EXPECT_THAT(results, Contains(QStringLiteral("Name                  Ada Ferris"))) << row.path;
        EXPECT_THAT(results, Contains(QStringLiteral("Email address         ada@example.com")));
        EXPECT_THAT(results, Contains(QStringLiteral("Address               12 Mill Lane, Leeds LS1 4AB")));
        EXPECT_EQ(results.size(), 19);
    }
}

TEST_F(IdentityCommandTest, JsonIsTheRecord) {
    serve("/english-united-states/female");
    EXPECT_EQ(run({"--gender", "female", "--json"}), ExitCode::Done);
    ASSERT_EQ(results.size(), 1);
    const auto decoded = decodeJson(results.front().toUtf8(), FakeIdentity::decode);
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded.value().full_name, QStringLiteral("Ada Ferris"));
}

TEST_F(IdentityCommandTest, UnknownNamesAreToldWithThoseThatThereAre) {
    for (const char *option : {"--gender", "--name-set", "--country"}) {
        EXPECT_EQ(run({option, "atlantis"}), ExitCode::WrongUse) << option;
        ASSERT_EQ(notices.size(), 1);
        EXPECT_THAT(notices.front().toStdString(), HasSubstr("\"atlantis\"; there are ")) << option;
    }
}

TEST_F(IdentityCommandTest, FailedHostEndsWithItsOwnCode) {
    phone.urls.answer(phone.endpoints.identityHost + QStringLiteral("/english-united-states/male"),
                      UrlResponse{404, "<html>"});
    EXPECT_EQ(run({"--gender", "male"}), ExitCode::EndpointFailed);
    EXPECT_TRUE(results.isEmpty());
    EXPECT_EQ(notices, QStringList{"no identity came"});
}

} // namespace
} // namespace orl
