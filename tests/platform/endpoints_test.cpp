#include "platform/endpoints.h"

#include <QTemporaryDir>
#include <QTextStream>

#include <gtest/gtest.h>

namespace orl {
namespace {

class EndpointsFileTest : public testing::Test {
protected:
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("endpoints"));

    Result<Endpoints> read(const char *content) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        return readEndpointsFile(path);
    }
};

TEST_F(EndpointsFileTest, ReadsKeysAndPutsSlashesRight) {
    const Result<Endpoints> read = this->read("# where the pages come from\n"
                                              "\n"
                                              "  firstWebsite = https://first.example//\r\n"
                                              "secondWebsite=http://127.0.0.1:8080/second\n"
                                              "mailHost=\n"
                                              "connectivityProbe=https://probe.example/?a=b");
    ASSERT_TRUE(read.ok()) << read.error().description.toStdString();
    Endpoints expected;
    expected.firstWebsite = QStringLiteral("https://first.example");
    expected.secondWebsite = QStringLiteral("http://127.0.0.1:8080/second/");
    expected.connectivityProbe = QStringLiteral("https://probe.example/?a=b");
    EXPECT_EQ(read.value(), expected);
}

TEST_F(EndpointsFileTest, NamesTheLineOfAnError) {
    struct Case {
        const char *content;
        const char *error;
    };
    const Case cases[] = {
        {"#\nfirstWebsit=https://a.example\n", ":2: unknown key \"firstWebsit\""},
        {"firstWebsite\n", ":1: \"key=value\" is expected"},
        {"mailHost=https://a.example\n\nmailHost=\n", ":3: \"mailHost\" stands here for the second time"},
        {"mailHost=a.example\n", ":1: \"a.example\" is no http or https URL"},
        {"mailHost=file:///etc/passwd", ":1: \"file:///etc/passwd\" is no http or https URL"},
    };
    for (const Case &c : cases) {
        const Result<Endpoints> result = read(c.content);
        ASSERT_FALSE(result.ok()) << c.content;
        EXPECT_EQ(result.error().description, path + QString::fromLatin1(c.error));
    }
}

TEST_F(EndpointsFileTest, AMissingFileIsAnErrorWithItsName) {
    EXPECT_TRUE(readEndpointsFile(path).error().description.startsWith(path));
}

} // namespace
} // namespace orl
