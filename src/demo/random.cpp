#include "random.h"

namespace orl::demo {

namespace {

quint64 scrambled(quint64 value) {
    value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9ULL;
    value = (value ^ (value >> 27)) * 0x94d049bb133111ebULL;
    return value ^ (value >> 31);
}

} // namespace

quint64 mix(quint64 seed, quint64 value) {
    return scrambled(seed + 0x9e3779b97f4a7c15ULL * (scrambled(value) | 1));
}

quint64 mix(quint64 seed, QStringView text) {
    quint64 hash = 0xcbf29ce484222325ULL; // FNV-1a; Qt's own hash may differ between builds
    for (const QChar unit : text)
        hash = (hash ^ unit.unicode()) * 0x100000001b3ULL;
    return mix(seed, hash);
}

quint64 Random::next() {
    state_ += 0x9e3779b97f4a7c15ULL;
    return scrambled(state_);
}

int Random::below(int bound) {
    return static_cast<int>(next() % static_cast<quint64>(bound));
}

} // namespace orl::demo
