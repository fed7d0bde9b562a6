#include "cli/port_watch.h"

#include <QStringList>

#include <deque>
#include <gtest/gtest.h>

namespace orl {
namespace {

/// Both queues in the hand of the test; a delay counts for nothing, as on a machine that is busy.
struct Hand : MainQueue {
    std::deque<Task> tasks;

    void post(Task task) override { tasks.push_back(std::move(task)); }
    void postAfter(std::chrono::milliseconds, Task task) override { post(std::move(task)); }
    std::unique_ptr<RepeatingTimer> every(std::chrono::milliseconds, Task) override { return nullptr; }

    void run() {
        while (!tasks.empty()) {
            const Task task = std::move(tasks.front());
            tasks.pop_front();
            task();
        }
    }
};

struct Work : GlobalQueue {
    std::deque<Task> items;
    void post(Task task) override { items.push_back(std::move(task)); }
    void step() {
        const Task item = std::move(items.front());
        items.pop_front();
        item();
    }
};

TEST(IdleWatchTest, RestComesBehindWhatResultsPostInTurn) {
    Hand main;
    Work work;
    IdleWatch idle(work, main);
    QStringList events;
    idle.post([&] {
        main.post([&] {
            events << "arrived";
            main.post([&] { events << "applied"; });
        });
    });
    idle.whenIdle([&] { events << "rest"; });
    work.step(); // the check stands in the queue already, ahead of the result
    main.run();
    EXPECT_EQ(events, (QStringList{"arrived", "applied", "rest"}));
}

TEST(IdleWatchTest, WorkThatAResultStartsIsWaitedFor) {
    Hand main;
    Work work;
    IdleWatch idle(work, main);
    QStringList events;
    idle.post([&] { main.post([&] { idle.post([&] { main.post([&] { events << "second page"; }); }); }); });
    idle.whenIdle([&] { events << "rest"; });
    work.step();
    for (int i = 0; i < 100 && work.items.empty() && !main.tasks.empty(); ++i) {
        const Task task = std::move(main.tasks.front());
        main.tasks.pop_front();
        task();
    }
    ASSERT_EQ(work.items.size(), 1U);
    EXPECT_TRUE(events.isEmpty());
    work.step();
    main.run();
    EXPECT_EQ(events, (QStringList{"second page", "rest"}));
}

} // namespace
} // namespace orl
