#pragma once

#include <QUrl>

namespace orl {

/// The phone's web browser.
class Browser {
public:
    virtual ~Browser() = default;

    virtual void open(const QUrl &url) = 0;
};

/// Stands where there is no browser.
class NoBrowser final : public Browser {
public:
    void open(const QUrl &) override {}

    static Browser &instance() {
        static NoBrowser none;
        return none;
    }
};

} // namespace orl
