#include "config/internet_view_model.h"
#include "support/played_platform.h"

#include <gtest/gtest.h>

namespace orl {

namespace {

struct InternetTest : testing::Test {
    PlayedPlatform phone;
    Process process{phone.platform()};
    InternetViewModel &internet = process.shared<InternetViewModel>();
};

} // namespace

TEST_F(InternetTest, FlagsDecide) {
    struct Case {
        const char *name;
        std::optional<unsigned> flags;
        bool connected;
    };
    const Case cases[] = {
        {"reachable", 2, true},
        {"reachable and connection required", 2 + 4, false},
        {"connects on traffic", 2 + 4 + 8, true},
        {"connects on traffic, but somebody must act", 2 + 4 + 8 + 16, false},
        {"connects on demand", 2 + 4 + 32, true},
        {"connects on demand, but somebody must act", 2 + 4 + 32 + 16, false},
        {"on traffic, no connection required", 2 + 8, true},
        {"on traffic, no connection required, somebody must act", 2 + 8 + 16, true},
        {"on traffic alone", 8, false},
        {"on demand, required, not reachable", 4 + 32, false},
        {"intervention required alone", 16, false},
        {"reachable and intervention required", 2 + 16, true},
        {"none", 0, false},
        {"reading fails", std::nullopt, false},
    };
    for (const Case &row : cases) {
        phone.reachability.current = row.flags;
        internet.checkConnection();
        EXPECT_EQ(internet.isConnected(), row.connected) << row.name;
        EXPECT_EQ(internet.isReachableNow(), row.connected) << row.name;
    }
}

TEST_F(InternetTest, PublishesOnEachCheckAndOnlyThen) {
    int published = 0;
    QObject::connect(&internet, &InternetViewModel::isConnectedChanged, [&] { ++published; });
    EXPECT_TRUE(internet.isReachableNow());
    EXPECT_FALSE(internet.isConnected());
    EXPECT_EQ(published, 0);
    internet.checkConnection();
    internet.checkConnection();
    EXPECT_TRUE(internet.isConnected());
    EXPECT_EQ(published, 2);
}

TEST_F(InternetTest, HandsTheWholeProbeTextOver) {
    internet.checkConnection();
    EXPECT_EQ(phone.reachability.asked, QStringList{phone.endpoints.connectivityProbe});
}

TEST_F(InternetTest, WithoutATargetTheProgramStops) {
    phone.reachability.targetable = false;
    EXPECT_THROW(internet.checkConnection(), PlayedFatalError);
    EXPECT_THROW(static_cast<void>(internet.isReachableNow()), PlayedFatalError);
}

} // namespace orl
