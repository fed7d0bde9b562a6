#pragma once

#include "platform/bundle.h"
#include "platform/console.h"
#include "platform/defaults_store.h"
#include "platform/platform.h"
#include "platform/reachability.h"
#include "support/played_queues.h"
#include "support/played_urls.h"

#include <QStringList>

#include <map>
#include <optional>
#include <ostream>
#include <stdexcept>

namespace orl {

/// How a failed test shows a text.
inline void PrintTo(const QString &text, std::ostream *out) {
    *out << '"' << text.toStdString() << '"';
}

/// The defaults store in memory. `values` may be looked at and changed at will.
class PlayedStore : public DefaultsStore {
public:
    std::map<QString, StoredValue> values;

    /// Every key in the order in which it was written or removed.
    QStringList writes;

    std::optional<StoredValue> value(const QString &key) const override;
    void setValue(const QString &key, const StoredValue &value) override;
    void remove(const QString &key) override;
    void setValues(const std::vector<std::pair<QString, StoredValue>> &all) override;
};

class PlayedReachability : public Reachability {
public:
    bool targetable = true;
    std::optional<unsigned> current = Reachable; ///< what every target has; nothing: reading fails
    mutable QStringList asked;                   ///< the names whose flags were read

    void setOnline(bool online) { current = online ? Reachable : 0U; }

    bool canTarget(const QString &name) const override;
    std::optional<unsigned> flags(const QString &name) const override;
};

class PlayedBundle : public Bundle {
public:
    std::map<QString, QByteArray> resources;
    std::map<QString, QString> infoValues;

    std::optional<QByteArray> resource(const QString &name) const override;
    std::optional<QString> infoValue(const QString &key) const override;
};

class PlayedConsole : public Console {
public:
    QStringList lines;
    void print(const QString &line) override { lines.append(line); }
};

/// The end of the program as a test sees it. It comes out of `settle` or `advance` when a task or a worker
/// ran into it.
struct PlayedFatalError : std::runtime_error {
    explicit PlayedFatalError(const QString &text) : std::runtime_error(text.toStdString()), message(text) {}
    QString message;
};

class PlayedFatalErrors : public FatalErrors {
public:
    [[noreturn]] void fatalError(const QString &message) override { throw PlayedFatalError(message); }
};

/// The whole phone, played: one virtual clock drives both queues, the network answers by a script, and
/// everything that was stored or printed can be looked at. Nothing sleeps, nothing leaves the thread of the
/// test.
///
/// Make it before the Process under test, so that it goes after it.
class PlayedPlatform {
public:
    PlayedPlatform();
    ~PlayedPlatform() { time_.dropAll(); }
    PlayedPlatform(const PlayedPlatform &) = delete;
    PlayedPlatform &operator=(const PlayedPlatform &) = delete;

    PlayedClock clock;
    PlayedMainQueue mainQueue{clock};
    PlayedGlobalQueue globalQueue;
    PlayedUrls urls{globalQueue, mainQueue};
    PlayedStore store;
    PlayedReachability reachability;
    PlayedBundle bundle;
    PlayedConsole console;
    PlayedFatalErrors fatal;
    Endpoints endpoints; ///< hosts below ".example", each of its own

    Platform platform();

    void settle() { time_.settle(); }
    void advance(std::chrono::milliseconds time) { time_.advance(time); }

    /// What the end of the process does: tasks, timers and workers are gone, what is stored stays. Call it
    /// while the old Process still lives, then destroy that and make a new one.
    void endProcess() { time_.dropAll(); }

private:
    PlayedTime time_{clock, mainQueue, globalQueue};
};

} // namespace orl
