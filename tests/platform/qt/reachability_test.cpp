#include "platform/qt/qt_reachability.h"

#include <gtest/gtest.h>

namespace orl {
namespace {

using System = QNetworkInformation::Reachability;

TEST(QtReachabilityTest, UnderstandsAWholeUrlAndABareName) {
    struct Case {
        const char *target;
        const char *host; // empty: no target can be made
    };
    const Case cases[] = {
        {"https://probe.example", "probe.example"},
        {"https://probe.example:8443/path?query", "probe.example"},
        {"https://user@[2001:db8::7]:80/", "2001:db8::7"},
        {"probe.example", "probe.example"},
        {"192.0.2.7", "192.0.2.7"},
        {"::1", "::1"},
        {"", ""},
        {"https://", ""},
        {"https:///path", ""},
        {"two words", ""},
    };
    const QtReachability reachability;
    for (const Case &c : cases) {
        const QString target = QString::fromLatin1(c.target);
        EXPECT_EQ(QtReachability::hostOf(target), QString::fromLatin1(c.host)) << c.target;
        EXPECT_EQ(reachability.canTarget(target), *c.host != '\0') << c.target;
        EXPECT_EQ(reachability.flags(target).has_value(), *c.host != '\0') << c.target;
    }
}

TEST(QtReachabilityTest, TellsHowFarAHostIsAway) {
    struct Case {
        const char *host;
        HostPlace place;
    };
    const Case cases[] = {
        {"localhost", HostPlace::Device},
        {"demo.localhost", HostPlace::Device},
        {"127.0.0.1", HostPlace::Device},
        {"127.8.8.8", HostPlace::Device},
        {"::1", HostPlace::Device},
        {"localhost.", HostPlace::Device},
        {"10.1.2.3", HostPlace::Local},
        {"172.16.0.1", HostPlace::Local},
        {"172.32.0.1", HostPlace::Internet},
        {"192.168.1.1", HostPlace::Local},
        {"169.254.1.1", HostPlace::Local},
        {"fe80::1", HostPlace::Local},
        {"fd00::1", HostPlace::Local},
        {"printer.local", HostPlace::Local},
        {"2001:db8::1", HostPlace::Internet},
        {"probe.example", HostPlace::Internet},
        {"localhost.example", HostPlace::Internet},
    };
    for (const Case &c : cases)
        EXPECT_EQ(QtReachability::placeOf(QString::fromLatin1(c.host)), c.place) << c.host;
}

TEST(QtReachabilityTest, JudgesByTheSystemAndByTheRouteWhereItIsSilent) {
    struct Case {
        HostPlace place;
        System system;
        bool hasRoute;
        unsigned flags;
    };
    const Case cases[] = {
        {HostPlace::Device, System::Disconnected, false, Reachable},
        {HostPlace::Internet, System::Online, false, Reachable},
        {HostPlace::Internet, System::Site, true, 0},
        {HostPlace::Internet, System::Local, true, 0},
        {HostPlace::Internet, System::Disconnected, true, 0},
        {HostPlace::Internet, System::Unknown, true, Reachable},
        {HostPlace::Internet, System::Unknown, false, 0},
        {HostPlace::Local, System::Online, false, Reachable},
        {HostPlace::Local, System::Site, false, Reachable},
        {HostPlace::Local, System::Local, false, Reachable},
        {HostPlace::Local, System::Disconnected, true, 0},
        {HostPlace::Local, System::Unknown, true, Reachable},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(QtReachability::flagsFor(c.place, c.system, c.hasRoute), c.flags)
            << int(c.place) << ' ' << int(c.system) << ' ' << c.hasRoute;
    }
}

TEST(QtReachabilityTest, ThisDeviceIsReachableWithoutAnyNetwork) {
    const QtReachability reachability;
    EXPECT_EQ(reachability.flags(QStringLiteral("http://127.0.0.1:8080/")), Reachable);
}

} // namespace
} // namespace orl
