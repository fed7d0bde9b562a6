#pragma once

#include <QRandomGenerator>

namespace orl {

/// Where chance comes from.
class RandomSource {
public:
    virtual ~RandomSource() = default;

    /// 0 <= result < bound, each equally likely; bound > 0. Main thread.
    virtual int below(int bound) = 0;

    /// 64 bits of the system's secure source. Any thread.
    virtual quint64 word() { return QRandomGenerator::system()->generate64(); }
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
