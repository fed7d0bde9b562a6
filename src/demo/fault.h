#pragma once

#include "service.h"

#include <QString>

#include <map>
#include <mutex>
#include <optional>

namespace orl {

/// A way for the demo host to fail.
struct Fault {
    enum class Kind {
        None,
        Slow,        ///< the whole answer comes `milliseconds` late
        CutOff,      ///< announced in full, but the connection closes after half of the body
        Garbage,     ///< random bytes
        InvalidUtf8, ///< the right body with bytes in it that are no UTF-8
        NotFound,    ///< status 404 with an HTML page
        Empty,       ///< status 200 without a body
        Huge,        ///< the right body, blown up to 50 MB
        WrongSite,   ///< a well-formed page of somebody else
        MissingKey,  ///< a JSON document without its first key; other bodies stay as they are
        WrongType,   ///< a JSON document with a wrong type for its first value; other bodies stay as they are
        Dead,        ///< the connection closes without an answer
    };

    Kind kind = Kind::None;
    int milliseconds = 0;

    Fault() = default;
    Fault(Kind k) : kind(k) {}
    static Fault slow(int milliseconds);
    /// By the name of the enumerator, whatever its case; none for an unknown name.
    static std::optional<Fault> named(const QString &name, int milliseconds);
};

namespace demo {

/// Which paths fail, and how. Safe from any thread.
class FaultTable {
public:
    /// `prefix` is matched against the whole path on the demo host ("/first/en/numbers"). The longest one
    /// that fits decides, so Fault::None spares a part of what a shorter one breaks.
    void set(const QString &prefix, Fault fault);
    void clear();
    Fault find(const QString &path) const;

private:
    mutable std::mutex mutex_;
    std::map<QString, Fault> faults_;
};

/// `reply` as the fault leaves it, as far as the fault is one of content and not of transport.
Reply spoiled(Reply reply, Fault::Kind kind, quint64 seed);

} // namespace demo
} // namespace orl
