#include "platform/qt/linux_platform.h"

#include <QDir>
#include <QStandardPaths>

namespace orl {

LinuxPlatform::LinuxPlatform(const Setup &setup)
    : bundle_(setup.resourceFolder, setup.infoValues),
      store_(QDir(setup.dataFolder).filePath(QStringLiteral("defaults.sqlite")), console_),
      endpoints_(setup.endpoints) {}

Platform LinuxPlatform::platform() {
    return {clock_,        mainQueue_, globalQueue_, urlReader_, store_,
            reachability_, bundle_,    console_,     fatal_,     endpoints_};
}

void LinuxPlatform::stop() {
    urlReader_.stop(); // workers that sleep in a read wake with an error
    globalQueue_.stop();
    mainQueue_.stop();
}

QString LinuxPlatform::defaultDataFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

} // namespace orl
