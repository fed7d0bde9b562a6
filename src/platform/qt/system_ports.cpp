#include "platform/qt/system_ports.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace orl {

double SystemClock::now() const {
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration<double>(sinceEpoch).count();
}

void StandardErrorConsole::print(const QString &line) {
    QByteArray bytes = line.toUtf8();
    bytes.replace("\r\n", " ").replace('\n', ' ').replace('\r', ' ');
    bytes.append('\n');
    const std::lock_guard lock(mutex_);
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
    std::fflush(stderr);
}

void AbortingFatalErrors::fatalError(const QString &message) {
    console_.print(QStringLiteral("Fatal error: ") + message);
    std::abort();
}

} // namespace orl
