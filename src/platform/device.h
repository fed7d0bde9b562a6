#pragma once

namespace orl {

/// What kind of device the program runs on.
class Device {
public:
    virtual ~Device() = default;

    /// A tablet by its user-interface idiom; phones and desktops are none.
    virtual bool isTablet() const = 0;
};

class PhoneDevice final : public Device {
public:
    bool isTablet() const override { return false; }

    static Device &instance() {
        static PhoneDevice phone;
        return phone;
    }
};

} // namespace orl
