#include "platform/qt/linux_device.h"

#include <QFile>
#include <QRegularExpression>

#include <optional>

namespace orl {

namespace {

QString read(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// As in machine-info(5): CHASSIS=tablet, in quotes or without.
std::optional<QString> administratorsWord(const QString &machineInfo) {
    static const QRegularExpression line(QStringLiteral("^\\s*CHASSIS=[\"']?([a-z]*)[\"']?\\s*$"),
                                         QRegularExpression::MultilineOption);
    const QRegularExpressionMatch match = line.match(machineInfo);
    return match.hasMatch() ? std::optional(match.captured(1)) : std::nullopt;
}

} // namespace

bool LinuxDevice::isTablet() const {
    constexpr int tablet = 30; // of the chassis types of the System Management BIOS, table 17
    const QString machineInfo =
        qEnvironmentVariable("SYSTEMD_ETC_MACHINE_INFO", root_ + QStringLiteral("/etc/machine-info"));
    if (const auto word = administratorsWord(read(machineInfo))) return *word == QLatin1String("tablet");
    return read(root_ + QStringLiteral("/sys/class/dmi/id/chassis_type")).trimmed().toInt() == tablet;
}

} // namespace orl
