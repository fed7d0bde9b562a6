#pragma once

#include <QString>

namespace orl {

/// The phone's general pasteboard.
class Pasteboard {
public:
    virtual ~Pasteboard() = default;

    virtual void setString(const QString &text) = 0;
};

/// Stands where nothing can be copied to.
class NoPasteboard final : public Pasteboard {
public:
    void setString(const QString &) override {}

    static Pasteboard &instance() {
        static NoPasteboard none;
        return none;
    }
};

} // namespace orl
