#pragma once

#include "platform/defaults_store.h"

#include <chrono>
#include <map>
#include <memory>
#include <mutex>

struct sqlite3;

namespace orl {

class Console;

/// The defaults store in one SQLite file, which several processes may share.
///
/// The file is readable by its owner alone. One that is no database of ours is set aside under another name
/// and a fresh one begins. A value that could not be written is told on the console, lasts for this run all
/// the same, and is tried again with the next write.
class SqliteStore : public DefaultsStore {
public:
    /// Missing folders of the path are made, for the owner alone. `patience` is how long a read or write
    /// waits for another process.
    SqliteStore(QString path, Console &console, std::chrono::milliseconds patience = std::chrono::seconds(2));
    ~SqliteStore() override; // NOLINT(bugprone-exception-escape)

    std::optional<StoredValue> value(const QString &key) const override;
    void setValue(const QString &key, const StoredValue &value) override;
    void remove(const QString &key) override;
    void setValues(const std::vector<std::pair<QString, StoredValue>> &values) override;

private:
    struct Close {
        void operator()(sqlite3 *database) const;
    };
    using Database = std::unique_ptr<sqlite3, Close>;
    /// Nothing stands for a key that is to be removed.
    using Changes = std::map<QString, std::optional<StoredValue>>;

    void open();
    bool connect();
    int prepare();
    bool setAside();
    void change(Changes changes);
    QString save(const Changes &changes);
    bool write(const QString &key, const std::optional<StoredValue> &value);
    bool run(const char *sql);
    QString problem() const;
    void tell(const QString &what) const;

    const QString path_;
    Console &console_;
    const std::chrono::milliseconds patience_;
    mutable std::mutex mutex_;
    Database database_;     // null where it could not be opened
    bool prepared_ = false; // a busy database is prepared at a later write
    Changes unsaved_;
};

} // namespace orl
