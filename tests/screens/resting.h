#pragma once

#include <QAnimationDriver>
#include <QCoreApplication>
#include <QHashFunctions>
#include <QQuickItem>
#include <QTest>
#include <QVariant>

#include <functional>
#include <utility>

namespace orl {

/// The toolkit's animations on a clock that stands still until a test moves it, so that how far a fade has
/// come does not depend on how busy the machine is.
class PlayedAnimations : public QAnimationDriver {
public:
    PlayedAnimations() { install(); }

    /// Lives as long as the application object.
    static PlayedAnimations &shared() {
        if (!shared_) {
            shared_ = new PlayedAnimations;
            qAddPostRoutine([] { delete std::exchange(shared_, nullptr); });
        }
        return *shared_;
    }

    qint64 elapsed() const override { return now_; }

    void advance() override {
        now_ += frame;
        advanceAnimation();
    }

private:
    static constexpr qint64 frame = 50; ///< milliseconds; coarse, as only the end of a fade is looked at
    qint64 now_ = 0;
    static inline PlayedAnimations *shared_ = nullptr;
};

/// Tells two moments of an animated screen apart.
struct Trace {
    size_t hash = 0;
    bool loading = false; ///< a picture is on its way

    explicit Trace(const QQuickItem &item) { add(item); }

private:
    void add(const QQuickItem &item) {
        if (!item.isVisible()) return;
        hash =
            qHashMulti(hash, item.x(), item.y(), item.width(), item.height(), item.opacity(), item.scale());
        constexpr int imageLoading = 2;
        loading = loading || (item.inherits("QQuickImageBase") && item.property("status") == imageLoading);
        for (const QQuickItem *child : item.childItems())
            add(*child);
    }
};

/// Moves the animations on until nothing below the item changes any more and every picture has arrived.
/// `settle` runs ahead of each look.
inline void comeToRest(
    const QQuickItem &screen, const std::function<void()> &settle = [] {}) {
    constexpr int quietFrames = 3; // an animation begins in the frame after the change that it follows
    size_t before = 0;
    for (int quiet = 0; quiet < quietFrames;) {
        settle();
        PlayedAnimations::shared().advance();
        QTest::qWait(6); // a window asks for its next frame 5 ms ahead
        const Trace now(screen);
        quiet = std::exchange(before, now.hash) == now.hash && !now.loading ? quiet + 1 : 0;
    }
}

} // namespace orl
