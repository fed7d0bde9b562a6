#include "platform/qt/single_instance.h"
#include "private_bus.h"
#include "support/wait_until.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QThread>

#include <atomic>
#include <gtest/gtest.h>
#include <memory>

namespace orl {
namespace {

using Start = SingleInstance::Start;

/// A program that starts while this one runs, on a thread of its own as it blocks.
Start startAnother(const QString &dataFolder, const std::function<QDBusConnection()> &bus,
                   const QString &runtime, const QString &token) {
    Start outcome{};
    std::atomic<bool> done = false;
    const std::unique_ptr<QThread> other(QThread::create([&] {
        SingleInstance instance(dataFolder, bus(), runtime);
        outcome = instance.start(token);
        done = true; // hands over what the thread wrote
    }));
    QObject::connect(other.get(), &QThread::finished, qApp, [] {}); // wakes whoever waits
    other->start();
    EXPECT_TRUE(waitUntil([&] { return done.load() && other->isFinished(); }));
    return outcome;
}

class SingleInstanceTest : public testing::TestWithParam<bool> {
protected:
    /// With a bus or, in its place, none.
    QDBusConnection connection() {
        return GetParam() ? bus.connection(QStringLiteral("orl")) : QDBusConnection(QStringLiteral("no bus"));
    }
    Start another(const QString &dataFolder, const QString &token = {}) {
        return startAnother(
            dataFolder, [this] { return connection(); }, runtime.path(), token);
    }

    PrivateBus bus;
    QTemporaryDir runtime;
};

TEST_P(SingleInstanceTest, ASecondStartCallsTheFirstToTheFront) {
    SingleInstance first({}, connection(), runtime.path());
    QSignalSpy activated(&first, &SingleInstance::activated);
    EXPECT_EQ(first.start({}), Start::First);
    EXPECT_EQ(another({}, QStringLiteral("token 1")), Start::Second);
    EXPECT_EQ(another({}), Start::Second);
    ASSERT_EQ(activated.size(), 2);
    EXPECT_EQ(activated[0][0].toString(), "token 1");
    EXPECT_EQ(activated[1][0].toString(), "");
}

TEST_P(SingleInstanceTest, AnotherDataFolderIsAnotherProgram) {
    SingleInstance first(QStringLiteral("/data/one"), connection(), runtime.path());
    EXPECT_EQ(first.start({}), Start::First);
    EXPECT_EQ(another(QStringLiteral("/data/two")), Start::First);
    EXPECT_EQ(another({}), Start::First);
    EXPECT_EQ(another(QStringLiteral("/data/./one/")), Start::Second);
}

TEST_P(SingleInstanceTest, TheNextStartAfterTheEndIsTheFirstAgain) {
    std::make_unique<SingleInstance>(QString(), connection(), runtime.path())->start({});
    EXPECT_EQ(another({}), Start::First);
}

INSTANTIATE_TEST_SUITE_P(Where, SingleInstanceTest, testing::Bool(),
                         [](const auto &row) { return row.param ? "OnABus" : "WithoutABus"; });

} // namespace
} // namespace orl
