#include "numbers_phone.h"

#include <atomic>
#include <condition_variable>
#include <deque>
#include <gtest/gtest.h>
#include <mutex>
#include <set>
#include <thread>

namespace orl {

namespace {

using test::country;
using test::countryElement;

/// The thread of the test as the main thread. Delayed tasks are dropped: there is no time here.
class RealMainQueue : public MainQueue {
public:
    void post(Task task) override {
        const std::lock_guard lock(mutex_);
        tasks_.push_back(std::move(task));
        changed_.notify_one();
    }
    void postAfter(std::chrono::milliseconds, Task) override {}
    std::unique_ptr<RepeatingTimer> every(std::chrono::milliseconds, Task) override { return nullptr; }

    bool isEmpty() {
        const std::lock_guard lock(mutex_);
        return tasks_.empty();
    }

    void runNext() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return !tasks_.empty(); });
        const Task task = std::move(tasks_.front());
        tasks_.pop_front();
        lock.unlock();
        task();
    }

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Task> tasks_;
};

/// A thread for each item.
class RealGlobalQueue : public GlobalQueue {
public:
    explicit RealGlobalQueue(RealMainQueue &main) : main_(main) {}

    void post(Task task) override {
        ++unfinished_;
        const std::lock_guard lock(mutex_);
        threads_.emplace_back([this, task = std::move(task)] {
            task();
            // Behind all that the item posted, so that the test has run it when nothing is unfinished.
            main_.post([this] { --unfinished_; });
        });
    }

    /// What a result posts in turn stands behind the end of its item, so the queue is emptied, too.
    void runMainUntilAllIsDone() {
        while (unfinished_ > 0 || !main_.isEmpty())
            main_.runNext();
    }

private:
    RealMainQueue &main_;
    std::atomic<int> unfinished_ = 0;
    std::mutex mutex_;
    std::deque<std::jthread> threads_;
};

class LockedStore : public PlayedStore {
public:
    std::optional<StoredValue> value(const QString &key) const override {
        const std::lock_guard lock(mutex_);
        return PlayedStore::value(key);
    }
    void setValues(const std::vector<std::pair<QString, StoredValue>> &all) override {
        const std::lock_guard lock(mutex_);
        PlayedStore::setValues(all);
    }

private:
    mutable std::mutex mutex_;
};

/// Two versions of the message page in turn; everything else as a working host has it.
class Hosts : public UrlReader {
public:
    Result<UrlResponse> read(const UrlRequest &request) override {
        const QString path = request.url.path();
        if (path.endsWith(QLatin1String("icons.json"))) return UrlResponse{200, R"(["sender 1"])"};
        if (path.endsWith(QLatin1String("countries.json"))) {
            return UrlResponse{200, test::encodedCountries({country(QStringLiteral("Norway"))})};
        }
        if (path == QLatin1String("/en")) return UrlResponse{200, countries_};
        return UrlResponse{200, ++reads_ % 2 ? odd_ : even_};
    }

private:
    const QByteArray countries_ =
        test::countryPage(countryElement("Nigeria", "/en/x") + countryElement("Norway", "/en/n"));
    const QByteArray odd_ = test::messagePage(test::manySms(7, QStringLiteral("odd")));
    const QByteArray even_ = test::messagePage(test::manySms(5, QStringLiteral("even")));
    std::atomic<int> reads_ = 0;
};

} // namespace

// The thread sanitizer watches this one.
TEST(NumberServiceOnRealThreads, WorkersAndTheMainThreadShareTheState) {
    PlayedPlatform played;
    played.bundle.resources[QStringLiteral("countries.json")] =
        test::encodedCountries({country(QStringLiteral("Niger")), country(QStringLiteral("Nigeria")),
                                country(QStringLiteral("Norway"))});
    PlayedNotifications notifications;
    PlayedHaptics haptics;
    LockedStore store;
    Hosts hosts;
    RealMainQueue main;
    RealGlobalQueue global(main);
    Process process({played.clock, main, global, hosts, store, played.reachability, played.bundle,
                     played.console, played.fatal, played.endpoints, notifications, haptics});
    auto &values = process.shared<ValuesInForce>();
    auto numbers = std::make_unique<RequestViewModel>(process);
    for (int i = 0; i < 50; ++i) {
        const auto website = i % 5 ? WebsiteService::SMS24 : WebsiteService::T_P_N;
        numbers->chooseNumber(country(QStringLiteral("Norway")),
                              test::phoneNumber(QStringLiteral("1"), website), true);
        numbers->fetchCountries();
        numbers->fetchMessages(true);
        numbers->fetchNumbers(country(QStringLiteral("Norway")), [](const QList<PhoneNumber> &) {});
        values.currentScrapingConfig->set(ScrapingConfig());
        numbers->groupMessages(numbers->messages());
        if (i % 10 == 9) global.runMainUntilAllIsDone();
    }
    numbers->chooseNumber(country(QStringLiteral("Norway")), test::phoneNumber(QStringLiteral("1")), true);
    numbers->fetchMessages(true);
    global.runMainUntilAllIsDone();

    EXPECT_EQ(test::names(numbers->countries()),
              (QStringList{QStringLiteral("Niger"), QStringLiteral("Nigeria"), QStringLiteral("Norway")}));
    std::set<QString> pages;
    for (const QString &content : test::contents(numbers->messages()))
        pages.insert(content.section(u' ', 0, 0));
    EXPECT_EQ(pages.erase(QStringLiteral("NativeAd")), 1U);
    EXPECT_EQ(pages.size(), 1U) << "a list comes from one page";

    numbers->fetchMessages(true);
    numbers.reset();
    global.runMainUntilAllIsDone();
}

} // namespace orl
