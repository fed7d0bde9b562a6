#include "platform/qt/linux_platform.h"
#include "platform/qt/loopback_server.h"

#include <QTemporaryDir>

#include <future>
#include <gtest/gtest.h>

namespace orl {
namespace {

TEST(LinuxPlatformTest, StopsAtOnceWhileAWorkerSleepsInARead) {
    const QTemporaryDir folder;
    LoopbackServer silent;
    silent.answer(QStringLiteral("/"), "", LoopbackServer::Then::StayOpen);
    LinuxPlatform phone({.dataFolder = folder.path(), .endpoints = {}, .infoValues = {}});
    const Platform platform = phone.platform();
    std::promise<bool> read;
    platform.globalQueue.post([&] {
        read.set_value(platform.urlReader.read({.url = silent.url(QStringLiteral("/"))}).ok());
        platform.mainQueue.post([] { ADD_FAILURE() << "a task ran after the end"; });
    });
    silent.requests(1);
    phone.stop();
    EXPECT_FALSE(read.get_future().get());
}

TEST(LinuxPlatformTest, ASecondRunFindsWhatTheFirstStored) {
    const QTemporaryDir folder;
    const QString data = folder.filePath(QStringLiteral("not/yet/there"));
    const QString key = QStringLiteral("key");
    {
        LinuxPlatform phone({.dataFolder = data, .endpoints = {}, .infoValues = {}});
        phone.platform().store.setValue(key, QStringLiteral("kept"));
    }
    LinuxPlatform phone({.dataFolder = data, .endpoints = {}, .infoValues = {}});
    EXPECT_EQ(phone.platform().store.text(key), QStringLiteral("kept"));
}

} // namespace
} // namespace orl
