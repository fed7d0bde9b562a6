#pragma once

namespace orl {

/// How an impact feels, numbered as phones number them.
enum class Impact { Light = 0, Medium = 1, Heavy = 2, Soft = 3, Rigid = 4 };

/// The phone's vibration feedback.
class Haptics {
public:
    virtual ~Haptics() = default;

    virtual void impact(Impact style) = 0;
};

/// Stands where nothing can vibrate.
class NoHaptics final : public Haptics {
public:
    void impact(Impact) override {}

    static Haptics &instance() {
        static NoHaptics none;
        return none;
    }
};

} // namespace orl
