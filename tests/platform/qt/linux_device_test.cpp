#include "platform/qt/linux_device.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace orl {

namespace {

void write(const QString &path, const char *text) {
    if (!text) return;
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

} // namespace

TEST(LinuxDeviceTest, TabletIsWhatTheMachineSaysItIs) {
    const struct {
        const char *machineInfo;
        const char *chassisType;
        bool tablet;
    } cases[] = {
        {nullptr, nullptr, false},
        {nullptr, "30\n", true},
        {nullptr, "31\n", false}, // a convertible is used as a laptop, too
        {nullptr, "garbage", false},
        {"PRETTY_HOSTNAME=\"Slate\"\nCHASSIS=tablet\n", nullptr, true},
        {"CHASSIS=\"tablet\"\nICON_NAME=x\n", "9\n", true},
        {"CHASSIS=handset\n", "30\n", false}, // the administrator knows better
        {"#CHASSIS=tablet\nDEPLOYMENT=tablet\n", nullptr, false},
        {"DEPLOYMENT=home\n", "30\n", true},
    };
    for (const auto &[machineInfo, chassisType, tablet] : cases) {
        const QTemporaryDir root;
        write(root.filePath(QStringLiteral("etc/machine-info")), machineInfo);
        write(root.filePath(QStringLiteral("sys/class/dmi/id/chassis_type")), chassisType);
        EXPECT_EQ(LinuxDevice(root.path()).isTablet(), tablet)
            << (machineInfo ? machineInfo : "-") << ' ' << (chassisType ? chassisType : "-");
    }
}

TEST(LinuxDeviceTest, TheVariableOfTheSystemsServicesNamesAnotherFile) {
    const QTemporaryDir root;
    write(root.filePath(QStringLiteral("etc/machine-info")), "CHASSIS=handset\n");
    write(root.filePath(QStringLiteral("other")), "CHASSIS=tablet\n");
    qputenv("SYSTEMD_ETC_MACHINE_INFO", root.filePath(QStringLiteral("other")).toLocal8Bit());
    EXPECT_TRUE(LinuxDevice(root.path()).isTablet());
    qunsetenv("SYSTEMD_ETC_MACHINE_INFO");
    EXPECT_FALSE(LinuxDevice(root.path()).isTablet());
}

} // namespace orl
