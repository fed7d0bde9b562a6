#pragma once

#include <QStringView>
#include <QtGlobal>

#include <cstddef>

namespace orl::demo {

/// A number that depends on both arguments and on nothing else: the same on every machine and in every run.
quint64 mix(quint64 seed, quint64 value);
quint64 mix(quint64 seed, QStringView text);

/// A stream of choices that a restarted program makes again in the same way (SplitMix64).
class Random {
public:
    explicit Random(quint64 seed) : state_(seed) {}

    quint64 next();
    /// 0 <= result < bound; bound > 0.
    int below(int bound);
    bool oneIn(int times) { return below(times) == 0; }

    template<class List>
    decltype(auto) pick(const List &list) {
        return list[static_cast<std::size_t>(below(static_cast<int>(std::size(list))))];
    }

private:
    quint64 state_;
};

} // namespace orl::demo
