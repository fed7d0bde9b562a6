#include "platform/qt/qt_global_queue.h"
#include "platform/qt/qt_main_queue.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QStringList>

#include <barrier>
#include <future>
#include <gtest/gtest.h>
#include <thread>

using namespace std::chrono_literals;

namespace orl {
namespace {

class QtMainQueueTest : public testing::Test {
protected:
    QtMainQueue queue;
    QEventLoop loop;
    QStringList log;

    Task note(const char *text) {
        return [this, text] { log.append(QString::fromLatin1(text)); };
    }
    Task end() {
        return [this] { loop.quit(); };
    }
    void expectLog(const char *words) { EXPECT_EQ(log.join(QLatin1Char(' ')), QString::fromLatin1(words)); }
};

/// A main queue whose time stands still until it is moved.
struct StoppedQueue : QtMainQueue {
    Time time{0};
    Time now() const override { return time; }
};

TEST_F(QtMainQueueTest, RunsTasksByTheirTimeAndThenInTheOrderOfPosting) {
    StoppedQueue own;
    own.postAfter(1h, note("d"));
    own.postAfter(3ms, note("c"));
    own.postAfter(1h, note("e"));
    own.post(note("a"));
    own.postAfter(-5ms, note("b"));
    own.postAfter(1h + 1ms, note("f"));
    expectLog("");
    own.time = 1h;
    QCoreApplication::processEvents();
    expectLog("a b c d e");
}

TEST_F(QtMainQueueTest, ADelayEndsByItself) {
    queue.postAfter(3ms, note("late"));
    queue.postAfter(3ms, end());
    queue.postAfter(1ms, note("early"));
    loop.exec();
    EXPECT_TRUE(log.contains(QStringLiteral("early")));
    EXPECT_TRUE(log.contains(QStringLiteral("late")));
}

TEST_F(QtMainQueueTest, ATaskThatPostsReturnsBeforeThePostedOneRuns) {
    queue.post([this] {
        queue.post(note("inner"));
        queue.post(end());
        note("outer")();
    });
    loop.exec();
    expectLog("outer inner");
}

TEST_F(QtMainQueueTest, KeepsTheOrderOfEachThreadThatPosts) {
    constexpr int threads = 4;
    constexpr int each = 500;
    std::vector<int> seen(threads, 0);
    int total = 0;
    {
        std::vector<std::jthread> posting;
        for (std::size_t t = 0; t < threads; ++t) {
            posting.emplace_back([&, t] {
                for (int i = 0; i < each; ++i) {
                    queue.post([&, t, i] {
                        EXPECT_EQ(seen[t]++, i);
                        if (++total == threads * each) loop.quit();
                    });
                }
            });
        }
    }
    loop.exec();
    EXPECT_EQ(total, threads * each);
}

TEST_F(QtMainQueueTest, ATaskThatSpinsALoopHoldsTheOthersUp) {
    queue.postAfter(1ms, [this] {
        queue.post(note("next"));
        queue.post(end());
        for (int i = 0; i < 10; ++i)
            QCoreApplication::processEvents();
        note("first")();
    });
    loop.exec();
    expectLog("first next");
}

TEST_F(QtMainQueueTest, ATimerTicksUntilItDestroysItself) {
    int ticks = 0;
    std::unique_ptr<RepeatingTimer> timer;
    timer = queue.every(2ms, [&] {
        if (++ticks < 3) return;
        timer.reset();
        queue.postAfter(10ms, end());
    });
    loop.exec();
    EXPECT_EQ(ticks, 3);
}

TEST_F(QtMainQueueTest, ABusyMainThreadMissesTicksInsteadOfCatchingUp) {
    int ticks = 0;
    const auto timer = queue.every(1ms, [&] { ++ticks; });
    queue.post([this] {
        const auto until = std::chrono::steady_clock::now() + 20ms;
        while (std::chrono::steady_clock::now() < until) {
        }
        queue.post(end());
    });
    loop.exec();
    EXPECT_LE(ticks, 3);
}

TEST_F(QtMainQueueTest, NothingFiresAfterTheQueueIsGone) {
    auto own = std::make_unique<QtMainQueue>();
    const auto alive = std::make_shared<int>(0);
    own->post([this, alive] { note("post")(); });
    own->postAfter(1ms, [this, alive] { note("late")(); });
    const auto timer = own->every(1ms, note("tick"));
    own->stop();
    EXPECT_EQ(alive.use_count(), 1);
    own->post(note("after stop"));
    own.reset();
    queue.postAfter(5ms, end());
    loop.exec();
    expectLog("");
}

TEST(QtGlobalQueueTest, SixtyFourItemsMayBlockAtOnce) {
    QtGlobalQueue queue;
    std::barrier all(QtGlobalQueue::threads + 1);
    for (int i = 0; i < QtGlobalQueue::threads; ++i) {
        queue.post([&] { all.arrive_and_wait(); });
    }
    all.arrive_and_wait();
}

TEST(QtGlobalQueueTest, StopWaitsForWhatRunsAndDropsTheRest) {
    std::atomic<int> ended = 0;
    std::atomic<int> begun = 0;
    std::promise<void> open;
    const std::shared_future<void> opened = open.get_future();
    std::barrier allBusy(QtGlobalQueue::threads + 1);
    const auto held = std::make_shared<int>(0);
    QtGlobalQueue queue;
    for (int i = 0; i < QtGlobalQueue::threads; ++i) {
        queue.post([&] {
            allBusy.arrive_and_wait();
            opened.wait();
            ++ended;
        });
    }
    allBusy.arrive_and_wait();
    for (int i = 0; i < 10; ++i) {
        queue.post([&, held] { ++begun; });
    }
    std::thread stopping([&] { queue.stop(); });
    while (held.use_count() > 1)
        std::this_thread::yield();
    open.set_value();
    stopping.join();
    EXPECT_EQ(ended, QtGlobalQueue::threads);
    EXPECT_EQ(begun, 0);
    queue.post([&] { ++begun; });
    queue.stop();
    EXPECT_EQ(begun, 0);
}

} // namespace
} // namespace orl
