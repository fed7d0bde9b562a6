#include "cli/command_line.h"

#include <gtest/gtest.h>

namespace orl {
namespace {

struct Case {
    const char *name;
    QStringList arguments;
    QString error; ///< empty: the line is accepted
};

const char *const mailUsage =
    "usage: orl-cli mail ADDRESS [--watch], mail ADDRESS show ID [--text] or mail ADDRESS wait";

TEST(CommandLineTest, RejectsWrongUseInWords) {
    const Case cases[] = {
        {"a term is optional", {"countries"}, {}},
        {"a term", {"countries", "ger"}, {}},
        {"two terms", {"countries", "united", "states"}, "usage: orl-cli countries [TERM]"},
        {"no command", {}, "a command is missing"},
        {"options alone", {"--json"}, "a command is missing"},
        {"unknown command", {"number", "France"}, "unknown command \"number\""},
        {"a country is needed", {"numbers"}, "usage: orl-cli numbers COUNTRY"},
        {"a number is needed", {"messages", "France"}, "usage: orl-cli messages COUNTRY NUMBER [--watch]"},
        {"watch elsewhere", {"numbers", "France", "--watch"}, "--watch goes with messages and mail only"},
        {"history takes nothing", {"history", "France"}, "usage: orl-cli history"},
        {"choose needs a number", {"choose", "France"}, "usage: orl-cli choose COUNTRY NUMBER"},
        {"wait needs a number",
         {"wait", "France"},
         "usage: orl-cli wait COUNTRY NUMBER [--code] [--timeout SECONDS]"},
        {"code elsewhere", {"messages", "France", "1", "--code"}, "--code goes with wait only"},
        {"timeout elsewhere", {"history", "--timeout", "5"}, "--timeout goes with wait only"},
        {"timeout in words", {"wait", "France", "1", "--timeout", "ten"}, "--timeout needs whole seconds"},
        {"no time at all", {"wait", "France", "1", "--timeout", "0"}, "--timeout needs whole seconds"},
        {"data elsewhere",
         {"messages", "France", "1", "--data", "here"},
         "--data goes with history and choose only"},
        {"data", {"history", "--data", "here"}, {}},
        {"mail needs an address", {"mail"}, mailUsage},
        {"mail", {"mail", "a@x.example", "--watch", "--json"}, {}},
        {"no address", {"mail", "nobody"}, "\"nobody\" is no mail address"},
        {"show needs an id", {"mail", "a@x.example", "show"}, mailUsage},
        {"show", {"mail", "a@x.example", "show", "m1", "--text"}, {}},
        {"wait for mail", {"mail", "a@x.example", "wait", "--code", "--timeout", "9"}, {}},
        {"wait for one mail", {"mail", "a@x.example", "wait", "m1"}, mailUsage},
        {"text elsewhere", {"mail", "a@x.example", "--text"}, "--text goes with mail ADDRESS show only"},
        {"watching a wait",
         {"mail", "a@x.example", "wait", "--watch"},
         "--watch goes with messages and mail only"},
        {"unknown option", {"numbers", "France", "--fast"}, "Unknown option 'fast'."},
        {"a file is needed", {"countries", "--endpoints"}, "Missing value after '--endpoints'."},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        const Result<CommandLine> line = CommandLine::parse(QStringList{"orl-cli"} + row.arguments);
        EXPECT_EQ(line.ok() ? QString() : line.error().description, row.error);
    }
}

TEST(CommandLineTest, TakesOptionsAnywhere) {
    const Result<CommandLine> line = CommandLine::parse(
        {"orl-cli", "--json", "messages", "--endpoints", "here", "France", "--watch", "+33 6"});
    ASSERT_TRUE(line.ok());
    EXPECT_EQ(line.value().command, CommandLine::Command::Messages);
    EXPECT_EQ(line.value().arguments, (QStringList{"France", "+33 6"}));
    EXPECT_TRUE(line.value().json);
    EXPECT_TRUE(line.value().watch);
    EXPECT_EQ(line.value().endpointsFile, "here");
}

TEST(CommandLineTest, WaitTakesATimeout) {
    const Result<CommandLine> line =
        CommandLine::parse({"orl-cli", "wait", "France", "1", "--code", "--timeout", "90"});
    ASSERT_TRUE(line.ok());
    EXPECT_EQ(line.value().command, CommandLine::Command::Wait);
    EXPECT_TRUE(line.value().code);
    EXPECT_EQ(line.value().timeout, std::chrono::seconds(90));
    EXPECT_EQ(CommandLine::parse({"orl-cli", "wait", "France", "1"}).value().timeout, std::nullopt);
}

TEST(CommandLineTest, HelpNeedsNoCommand) {
    EXPECT_EQ(CommandLine::parse({"orl-cli", "--help"}).value().command, CommandLine::Command::Help);
    EXPECT_EQ(CommandLine::parse({"orl-cli", "messages", "-h"}).value().command, CommandLine::Command::Help);
    EXPECT_EQ(CommandLine::parse({"orl-cli", "--version"}).value().command, CommandLine::Command::Version);
}

} // namespace
} // namespace orl
