#include "platform/qt/qt_bundle.h"
#include "platform/qt/system_ports.h"

#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <gtest/gtest.h>
#include <thread>

namespace orl {
namespace {

TEST(SystemPortsDeathTest, AFatalErrorPrintsItsMessageAndAborts) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    StandardErrorConsole console;
    AbortingFatalErrors fatal(console);
    EXPECT_EXIT(fatal.fatalError(QStringLiteral("no target")), testing::KilledBySignal(SIGABRT),
                "Fatal error: no target\n");
}

TEST(SystemPortsTest, LinesOfSeveralThreadsStayWhole) {
    StandardErrorConsole console;
    testing::internal::CaptureStderr();
    {
        std::vector<std::jthread> threads;
        for (char c : {'a', 'b', 'c', 'd'}) {
            threads.emplace_back([&console, c] {
                for (int i = 0; i < 50; ++i)
                    console.print(QString(100, QLatin1Char(c)) + QStringLiteral("\nend"));
            });
        }
    }
    const QByteArray printed = QByteArray::fromStdString(testing::internal::GetCapturedStderr());
    EXPECT_EQ(printed.count('\n'), 200);
    for (const QByteArray &line : printed.split('\n').first(200)) {
        EXPECT_EQ(line, QByteArray(100, line.at(0)) + " end");
    }
}

TEST(SystemPortsTest, TheBundleGivesFilesAndValuesThatAreThere) {
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("countries.json")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[]");
    file.close();
    const QtBundle bundle(folder.path(), {{QStringLiteral("version"), QStringLiteral("1.2")}});
    EXPECT_EQ(bundle.resource(QStringLiteral("countries.json")), QByteArray("[]"));
    EXPECT_FALSE(bundle.resource(QStringLiteral("nowhere.json")));
    EXPECT_EQ(bundle.infoValue(QStringLiteral("version")), QStringLiteral("1.2"));
    EXPECT_FALSE(bundle.infoValue(QStringLiteral("name")));
}

} // namespace
} // namespace orl
