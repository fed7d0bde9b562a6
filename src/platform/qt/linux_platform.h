#pragma once

#include "platform/platform.h"
#include "platform/qt/network_url_reader.h"
#include "platform/qt/qt_bundle.h"
#include "platform/qt/qt_global_queue.h"
#include "platform/qt/qt_main_queue.h"
#include "platform/qt/qt_reachability.h"
#include "platform/qt/sqlite_store.h"
#include "platform/qt/system_ports.h"

#include <map>

namespace orl {

/// The phone on Linux: one set of adapters. Make it on the main thread after the QCoreApplication.
///
/// At the end of the program call `stop` while the Process still lives, as workers may use what hangs on it;
/// then destroy the Process, then this.
class LinuxPlatform {
public:
    struct Setup {
        QString dataFolder; ///< see defaultDataFolder; made when it is missing
        Endpoints endpoints;
        std::map<QString, QString> infoValues; ///< such as "CFBundleShortVersionString"
        QString resourceFolder = QStringLiteral(":/orl");
    };

    explicit LinuxPlatform(const Setup &setup);
    ~LinuxPlatform() { stop(); }
    LinuxPlatform(const LinuxPlatform &) = delete;
    LinuxPlatform &operator=(const LinuxPlatform &) = delete;

    Platform platform();

    /// Ends all reads, waits for running workers, drops everything that is still to be done.
    void stop();

    /// The program's folder below XDG_DATA_HOME. Needs the application's name to be set.
    static QString defaultDataFolder();

private:
    StandardErrorConsole console_;
    AbortingFatalErrors fatal_{console_};
    SystemClock clock_;
    QtBundle bundle_;
    SqliteStore store_;
    QtReachability reachability_;
    QtMainQueue mainQueue_;
    NetworkUrlReader urlReader_;
    QtGlobalQueue globalQueue_;
    Endpoints endpoints_;
};

} // namespace orl
