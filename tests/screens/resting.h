#pragma once

#include <QHashFunctions>
#include <QQuickItem>
#include <QTest>
#include <QVariant>

#include <functional>
#include <utility>

namespace orl {

/// Tells two moments of an animated screen apart.
inline size_t traceOf(const QQuickItem &item) {
    if (!item.isVisible()) return 0;
    const QVariant status = item.property("status");
    size_t trace = qHashMulti(0, item.x(), item.y(), item.width(), item.height(), item.opacity(),
                              item.scale(), status.toInt());
    for (const QQuickItem *child : item.childItems())
        trace = qHashMulti(trace, traceOf(*child));
    return trace;
}

/// Fades and pictures run on the toolkit's own clock: waits until nothing below the item changes any more.
/// `settle` runs ahead of each look.
inline void comeToRest(
    const QQuickItem &screen, const std::function<void()> &settle = [] {}) {
    size_t before = 0;
    const auto resting = [&] {
        settle();
        const size_t now = traceOf(screen);
        return std::exchange(before, now) == now;
    };
    do
        QTest::qWait(20); // more than a frame
    while (!resting());
}

} // namespace orl
