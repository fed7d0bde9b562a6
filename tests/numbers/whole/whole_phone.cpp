#include "whole_phone.h"

#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <gtest/gtest.h>

namespace orl {

namespace {

using namespace std::chrono_literals;

constexpr auto patience = 60s; // only a program that hangs makes a test wait as long

} // namespace

WholePhone::WholePhone() {
    EXPECT_TRUE(host.start());
}

WholePhone::~WholePhone() {
    stop();
}

void WholePhone::start(bool hasty) {
    stop();
    linux_ = std::make_unique<LinuxPlatform>(
        LinuxPlatform::Setup{data_.path(), host.endpoints(), {}, ORL_RESOURCES});
    const Platform ports = linux_->platform();
    hasty_ = std::make_unique<HastyReader>(ports.urlReader);
    idle_ = std::make_unique<IdleWatch>(ports.globalQueue, ports.mainQueue);
    UrlReader &reader = hasty ? *hasty_ : ports.urlReader;
    process = std::make_unique<Process>(ports.with(*idle_, reader, console));
    numbers = std::make_unique<RequestViewModel>(*process);
    settle();
}

void WholePhone::stop() {
    if (linux_) linux_->stop();
    numbers.reset();
    process.reset();
    idle_.reset();
    hasty_.reset();
    linux_.reset();
}

void WholePhone::settle() {
    QEventLoop loop;
    bool rested = false;
    idle_->whenIdle([&] {
        rested = true;
        loop.quit();
    });
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    loop.exec();
    ASSERT_TRUE(rested) << "the program hangs";
}

void WholePhone::choose(const QString &country, WebsiteService website) {
    const QList<Country> countries = numbers->countries();
    const auto found = std::ranges::find(countries, country, &Country::name);
    ASSERT_NE(found, countries.end());
    QList<PhoneNumber> all;
    numbers->fetchNumbers(*found, [&all](const QList<PhoneNumber> &list) { all = list; });
    settle();
    const auto number = std::ranges::find(all, website, &PhoneNumber::website);
    ASSERT_NE(number, all.end());
    numbers->chooseNumber(*found, *number, false);
    numbers->fetchMessages();
    settle();
    ASSERT_FALSE(numbers->messages().isEmpty());
}

QStringList WholePhone::fetchLater(bool force) {
    now = now + 60;
    numbers->fetchMessages(force);
    settle();
    return contents();
}

QStringList WholePhone::contents() const {
    QStringList all;
    for (const Message &message : numbers->messages())
        all << message.content;
    return all;
}

} // namespace orl
