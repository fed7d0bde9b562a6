#pragma once

#include "walker.h"

#include <mutex>

namespace orl {

/// Walks past ads. The host hears which of them are asked for.
class AdsWalker : public Walker {
protected:
    AdsWalker() { desk.setLocale(QStringLiteral("de_DE.UTF-8")); }

    void serve() {
        host.setConfiguration(values);
        ASSERT_TRUE(host.start());
    }

    QStringList options() {
        return servedBy(host) + QStringList{QStringLiteral("--choose"), QStringLiteral("United States"),
                                            QStringLiteral("13055550149")};
    }

    /// An ad's name is "Ad: headline".
    static bool isAd(const Accessible &control) { return control.name().startsWith(QStringLiteral("Ad: ")); }

    /// The ads on the screen but for those that cover it.
    qsizetype adsInPlace() {
        return all([](const Accessible &control) { return isButton(control) && isAd(control); }).size();
    }

    static Fits fullScreenAd() {
        return [](const Accessible &control) {
            return control.role() == QStringLiteral("dialog") && isAd(control);
        };
    }

    /// How many ads were asked for, of all units or of this one.
    qsizetype asked(const QString &unit = QString()) {
        const QString prefix =
            QStringLiteral("/ads/units/") + (unit.isEmpty() ? unit : unit + QStringLiteral("/"));
        const std::lock_guard lock(mutex_);
        return std::ranges::count_if(heard_, [&](const QString &path) { return path.startsWith(prefix); });
    }

    demo::ConfigurationValues values;

private:
    std::mutex mutex_;
    QStringList heard_;

protected:
    DemoHost host{{.clock = {}, .heard = [this](const QString &path) {
                       const std::lock_guard lock(mutex_);
                       heard_ << path;
                   }}};
};

} // namespace orl
