#include "support/played_platform.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace orl {
namespace {

class PlayedPlatformTest : public testing::Test {
protected:
    PlayedPlatform platform;
    QStringList log;
    const QString url = QStringLiteral("https://host.example/page");

    Task note(const char *text) {
        return [this, text] { log.append(QString::fromLatin1(text)); };
    }
    Task readAndNote() {
        return [this] {
            const Result<UrlResponse> read = platform.urls.read({.url = QUrl(url)});
            log.append(read ? QString::fromLatin1(read.value().body) : read.error().description);
        };
    }
    void expectLog(const char *words) { EXPECT_EQ(log.join(QLatin1Char(' ')), QString::fromLatin1(words)); }
};

TEST_F(PlayedPlatformTest, RunsTasksInTheOrderOfTheirTime) {
    platform.mainQueue.postAfter(2s, note("two"));
    platform.mainQueue.postAfter(1s, [this] {
        log.append(QStringLiteral("one"));
        platform.mainQueue.postAfter(1s, note("two-later"));
        platform.mainQueue.post(note("one-later"));
    });
    platform.mainQueue.post(note("now"));
    expectLog("");
    platform.settle();
    expectLog("now");
    platform.advance(1999ms);
    expectLog("now one one-later");
    platform.advance(1ms);
    expectLog("now one one-later two two-later");
    EXPECT_EQ(platform.clock.now(), PlayedClock::start + 2);
}

TEST_F(PlayedPlatformTest, ATimerTicksUntilItIsDestroyedEvenByItself) {
    std::unique_ptr<RepeatingTimer> timer;
    timer = platform.mainQueue.every(10s, [&] {
        log.append(QString::number(platform.clock.now() - PlayedClock::start));
        if (log.size() == 3) timer.reset();
    });
    platform.advance(25s);
    expectLog("10 20");
    platform.advance(60s);
    expectLog("10 20 30");
}

TEST_F(PlayedPlatformTest, WorkersRunWhenTheTestWants) {
    const auto postBoth = [this] {
        platform.globalQueue.post(note("worker"));
        platform.mainQueue.post(note("main"));
    };
    postBoth();
    platform.settle();
    platform.globalQueue.order = Workers::BeforeMain;
    postBoth();
    platform.settle();
    platform.globalQueue.order = Workers::ByHand;
    postBoth();
    platform.settle();
    expectLog("main worker worker main main");
    EXPECT_EQ(platform.globalQueue.notBegun(), 1U);
    EXPECT_TRUE(platform.globalQueue.step());
    EXPECT_FALSE(platform.globalQueue.step());
    expectLog("main worker worker main main worker");
}

TEST_F(PlayedPlatformTest, AHeldBackReadStopsItsWorkerAlone) {
    platform.urls.answer(url, "late");
    platform.urls.hold(url);
    platform.globalQueue.post(readAndNote());
    platform.globalQueue.post(note("other"));
    platform.advance(24h);
    expectLog("other");
    EXPECT_EQ(platform.urls.held(url), 1U);
    EXPECT_EQ(platform.globalQueue.unfinished(), 1U);
    platform.urls.release(url);
    EXPECT_EQ(platform.urls.held(url), 0U);
    platform.settle();
    expectLog("other late");
    EXPECT_EQ(platform.globalQueue.unfinished(), 0U);
}

TEST_F(PlayedPlatformTest, AnswersCanOvertakeEachOther) {
    platform.urls.answerOnce(url, "first");
    platform.urls.answerOnce(url, "second");
    platform.urls.hold(url);
    platform.globalQueue.post(readAndNote());
    platform.globalQueue.post(readAndNote());
    platform.settle();
    platform.urls.releaseOne(url, 1);
    platform.settle();
    platform.urls.releaseOne(url);
    platform.settle();
    expectLog("second first");
}

TEST_F(PlayedPlatformTest, AHeldBackReadTimesOutByTheVirtualClock) {
    platform.urls.answer(url, "never");
    platform.urls.hold(url);
    platform.globalQueue.post([this] {
        log.append(
            platform.urls.read({.url = QUrl(url), .ignoreCache = true, .timeout = 60s}).error().description);
    });
    platform.advance(59s);
    expectLog("");
    platform.advance(1s);
    expectLog("The request timed out.");
    ASSERT_EQ(platform.urls.requests.size(), 1U);
    EXPECT_TRUE(platform.urls.requests[0].ignoreCache);
    EXPECT_TRUE(platform.urls.requests[0].byWorker);
    EXPECT_EQ(platform.urls.requests[0].timeout, 60s);
}

TEST_F(PlayedPlatformTest, AnUnknownUrlFailsTheTest) {
    EXPECT_NONFATAL_FAILURE(platform.urls.read({.url = QUrl(url)}), "https://host.example/page");
    platform.urls.answerOnce(url, "once");
    EXPECT_TRUE(platform.urls.read({.url = QUrl(url)}).ok());
    EXPECT_NONFATAL_FAILURE(platform.urls.read({.url = QUrl(url)}), "does not know");
    EXPECT_EQ(platform.urls.count(url), 3);
}

TEST_F(PlayedPlatformTest, AFatalErrorInAWorkerComesOutOfSettle) {
    platform.globalQueue.post([this] { platform.fatal.fatalError(QStringLiteral("index out of range")); });
    platform.globalQueue.post(note("next"));
    try {
        platform.settle();
        FAIL() << "nothing was thrown";
    } catch (const PlayedFatalError &error) {
        EXPECT_EQ(error.message, QStringLiteral("index out of range"));
    }
    platform.settle();
    expectLog("next");
}

TEST_F(PlayedPlatformTest, TheEndOfTheProcessDropsWorkAndKeepsTheStore) {
    auto alive = std::make_shared<int>(0);
    platform.urls.answer(url, "late");
    platform.urls.hold(url);
    platform.globalQueue.post([this, alive] {
        const std::shared_ptr<int> local = alive;
        readAndNote()();
    });
    platform.mainQueue.postAfter(1s, [this, alive] { note("task")(); });
    const auto timer = platform.mainQueue.every(1s, [this, alive] { note("tick")(); });
    platform.store.setValue(QStringLiteral("key"), qint64(7));
    platform.settle();
    EXPECT_GT(alive.use_count(), 3);
    platform.endProcess();
    EXPECT_EQ(alive.use_count(), 2) << "besides the test only the timer's own tick may hold it";
    EXPECT_EQ(platform.urls.held(url), 0U);
    platform.urls.release(url);
    platform.advance(1h);
    expectLog("");
    EXPECT_EQ(platform.store.integer(QStringLiteral("key")), 7);
}

TEST_F(PlayedPlatformTest, ACircleOfTasksIsFound) {
    Task again;
    again = [&] { platform.mainQueue.post(again); };
    platform.mainQueue.post(again);
    EXPECT_THROW(platform.settle(), std::logic_error);
}

TEST_F(PlayedPlatformTest, AStoredValueOfAnotherTypeReadsAsNothing) {
    platform.store.setValue(QStringLiteral("key"), QStringLiteral("text"));
    EXPECT_FALSE(platform.store.data(QStringLiteral("key")));
    EXPECT_EQ(platform.store.integer(QStringLiteral("key")), 0);
    EXPECT_EQ(platform.store.text(QStringLiteral("key")), QStringLiteral("text"));
}

} // namespace
} // namespace orl
