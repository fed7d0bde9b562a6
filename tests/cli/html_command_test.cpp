#include "cli/html_command.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <string>

namespace orl {
namespace {

const char *const page = "<!DOCTYPE html><title>T</title><body class=x id=b><p class='a b'>One <b>1</b></p>"
                         "<a href='/x'>Two</a><a name=q>Three</a><!--c--><script>1<2</script>";

struct Ran {
    ExitCode code;
    std::string output;
    QString notice;
};

Ran run(const QStringList &arguments, const QByteArray &input = page) {
    Ran ran{};
    ran.code = runHtmlCommand(arguments, {[&input] { return input; },
                                          [&ran](std::string_view line) { ran.output.append(line) += '\n'; },
                                          [&ran](const QString &notice) { ran.notice += notice; }});
    return ran;
}

TEST(HtmlCommandTest, SelectsInTheWayThatIsAskedFor) {
    struct Case {
        const char *name;
        QStringList arguments;
        ExitCode code;
        const char *output;
    };
    const Case cases[] = {
        {"markup", {"select", "p"}, ExitCode::Done, "<p class=\"a b\">One <b>1</b></p>\n"},
        {"outer", {"select", "--outer", "p > b"}, ExitCode::Done, "<b>1</b>\n"},
        {"text", {"select", "p, a", "--text"}, ExitCode::Done, "One 1\nTwo\nThree\n"},
        {"attribute", {"select", "a", "--attr", "href"}, ExitCode::Done, "/x\n"},
        {"absent attribute", {"select", "p", "--attr", "href"}, ExitCode::NothingFound, ""},
        {"nothing", {"select", "table"}, ExitCode::NothingFound, ""},
        {"child of the page", {"select", "> html > body", "--attr=id"}, ExitCode::Done, "b\n"},
    };
    for (const Case &row : cases) {
        const Ran ran = run(row.arguments);
        EXPECT_EQ(ran.code, row.code) << row.name;
        EXPECT_EQ(ran.output, row.output) << row.name;
        EXPECT_EQ(ran.notice.isEmpty(), row.code == ExitCode::Done) << row.name;
    }
}

TEST(HtmlCommandTest, CleansByEachPreset) {
    const QByteArray dirty = "<h1>H</h1><b onclick=x>B</b> <a href='http://h/'>A</a><img "
                             "src='http://h/i'><script>evil()</script>";
    struct Case {
        const char *preset;
        const char *output;
    };
    const Case cases[] = {
        {"none", "HB A\n"},
        {"simple-text", "H\n<b>B</b> A\n"},
        {"basic", "H\n<b>B</b> \n<a href=\"http://h/\" rel=\"nofollow\">A</a>\n"},
        {"basic-with-images",
         "H\n<b>B</b> \n<a href=\"http://h/\" rel=\"nofollow\">A</a>\n<img src=\"http://h/i\">\n"},
        {"relaxed", "<h1>H</h1>\n<b>B</b> \n<a href=\"http://h/\">A</a>\n<img src=\"http://h/i\">\n"},
    };
    for (const Case &row : cases) {
        const Ran ran = run({"clean", "--preset", row.preset}, dirty);
        EXPECT_EQ(ran.code, ExitCode::Done) << row.preset;
        EXPECT_EQ(ran.output, row.output) << row.preset;
    }
}

TEST(HtmlCommandTest, PrintsTheTreeOneNodeALine) {
    EXPECT_EQ(run({"tree"}).output, "| <!DOCTYPE html>\n"
                                    "| <html>\n"
                                    "|   <head>\n"
                                    "|     <title>\n"
                                    "|       \"T\"\n"
                                    "|   <body>\n"
                                    "|     class=\"x\"\n"
                                    "|     id=\"b\"\n"
                                    "|     <p>\n"
                                    "|       class=\"a b\"\n"
                                    "|       \"One \"\n"
                                    "|       <b>\n"
                                    "|         \"1\"\n"
                                    "|     <a>\n"
                                    "|       href=\"/x\"\n"
                                    "|       \"Two\"\n"
                                    "|     <a>\n"
                                    "|       name=\"q\"\n"
                                    "|       \"Three\"\n"
                                    "|     <!-- c -->\n"
                                    "|     <script>\n"
                                    "|       \"1<2\"\n");
    EXPECT_EQ(run({"tree"}, "<!DOCTYPE a PUBLIC 'b'><i z=1 a y='\"'>").output, "| <!DOCTYPE a \"b\" \"\">\n"
                                                                               "| <html>\n"
                                                                               "|   <head>\n"
                                                                               "|   <body>\n"
                                                                               "|     <i>\n"
                                                                               "|       a=\"\"\n"
                                                                               "|       y=\"\"\"\n"
                                                                               "|       z=\"1\"\n");
}

TEST(HtmlCommandTest, ReadsAFileInPlaceOfStandardInput) {
    const QTemporaryDir folder;
    const QString name = folder.filePath("page.html");
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("\xef\xbb\xbf<p>from a file \xc3\xa9");
    file.close();
    EXPECT_EQ(run({"select", "p", name, "--text"}).output, "from a file \xc3\xa9\n");
    EXPECT_EQ(run({"clean", name, "--preset", "none"}).output, "from a file \xc3\xa9\n");
    EXPECT_EQ(run({"tree", name}).output.substr(0, 9), "| <html>\n");
    const Ran missing = run({"tree", folder.filePath("other.html")});
    EXPECT_EQ(missing.code, ExitCode::WrongUse);
    EXPECT_TRUE(missing.notice.startsWith("cannot read ")) << missing.notice.toStdString();
}

TEST(HtmlCommandTest, SaysWhatIsWrong) {
    struct Case {
        QStringList arguments;
        const char *notice;
    };
    const Case cases[] = {
        {{}, "html needs a command"},
        {{"dump"}, "unknown command \"html dump\""},
        {{"select"}, "usage: orl-cli html select QUERY [FILE] [--text | --attr NAME | --outer]"},
        {{"select", "p", "--text", "--outer"},
         "usage: orl-cli html select QUERY [FILE] [--text | --attr NAME | --outer]"},
        {{"select", "p", "--attr"}, "Missing value after '--attr'."},
        {{"select", "p", "--attr", ""}, "--attr needs a name"},
        {{"select", "p", "a.html", "b.html"}, "one file at a time, not \"b.html\" too"},
        {{"select", "div:foo"}, "Could not parse query div:foo: unexpected token at :foo"},
        {{"select", ""}, "String must not be empty"},
        {{"clean"}, "usage: orl-cli html clean [FILE] --preset NAME"},
        {{"clean", "--preset", "all"},
         "unknown preset \"all\": none, simple-text, basic, basic-with-images and relaxed are known"},
        {{"tree", "--text"}, "usage: orl-cli html tree [FILE]"},
        {{"tree", "--json"}, "Unknown option 'json'."},
    };
    for (const Case &row : cases) {
        const Ran ran = run(row.arguments);
        EXPECT_EQ(ran.code, ExitCode::WrongUse);
        EXPECT_EQ(ran.output, "");
        EXPECT_TRUE(ran.notice.startsWith(row.notice)) << ran.notice.toStdString();
    }
    const Ran help = run({"--help"});
    EXPECT_EQ(help.code, ExitCode::Done);
    EXPECT_NE(help.output.find("select QUERY [FILE]"), std::string::npos);
}

} // namespace
} // namespace orl
