#pragma once

#include <QRandomGenerator>

namespace orl {

/// Where chance comes from. Main thread.
class RandomSource {
public:
    virtual ~RandomSource() = default;

    /// 0 <= result < bound, each equally likely; bound > 0.
    virtual int below(int bound) = 0;
};

class SystemRandom final : public RandomSource {
public:
    int below(int bound) override { return QRandomGenerator::global()->bounded(bound); }

    static RandomSource &instance() {
        static SystemRandom random;
        return random;
    }
};

} // namespace orl
