#pragma once

#include "platform/device.h"

#include <QString>

namespace orl {

/// Knows a tablet by what the machine says of its chassis: the administrator's word in /etc/machine-info,
/// else the firmware's. A machine that says nothing is no tablet. As for the system's own services, the
/// variable SYSTEMD_ETC_MACHINE_INFO names another file than the former.
class LinuxDevice final : public Device {
public:
    /// `root` is where the file system begins.
    explicit LinuxDevice(QString root = QString()) : root_(std::move(root)) {}

    bool isTablet() const override;

private:
    const QString root_;
};

} // namespace orl
