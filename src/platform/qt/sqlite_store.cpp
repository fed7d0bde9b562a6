#include "platform/qt/sqlite_store.h"

#include "platform/console.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <fcntl.h>
#include <limits>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace orl {

namespace {

constexpr mode_t ownerFile = 0600;
constexpr mode_t ownerFolder = 0700;

// The kind tells text from data and a boolean from an integer. A real that is no number is stored as null.
constexpr const char *schema = "CREATE TABLE IF NOT EXISTS defaults (key TEXT PRIMARY KEY NOT NULL, "
                               "kind TEXT NOT NULL, content) WITHOUT ROWID";
constexpr const char *selectSql = "SELECT kind, content FROM defaults WHERE key = ?1";
constexpr const char *upsertSql = "INSERT INTO defaults (key, kind, content) VALUES (?1, ?2, ?3) "
                                  "ON CONFLICT (key) DO UPDATE SET kind = ?2, content = ?3";
constexpr const char *deleteSql = "DELETE FROM defaults WHERE key = ?1";

/// A prepared statement; parameters count from 1, columns from 0.
class Statement {
public:
    Statement(sqlite3 *database, const char *sql) {
        sqlite3_prepare_v2(database, sql, -1, &statement_, nullptr);
    }
    ~Statement() { sqlite3_finalize(statement_); }
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    bool isPrepared() const { return statement_ != nullptr; }
    int step() { return statement_ ? sqlite3_step(statement_) : SQLITE_ERROR; }

    void bind(int parameter, const QString &text) {
        const QByteArray utf8 = text.toUtf8();
        sqlite3_bind_text64(statement_, parameter, utf8.constData(), static_cast<sqlite3_uint64>(utf8.size()),
                            SQLITE_TRANSIENT, SQLITE_UTF8);
    }
    void bind(int parameter, const QByteArray &data) {
        sqlite3_bind_blob64(statement_, parameter, data.constData(), static_cast<sqlite3_uint64>(data.size()),
                            SQLITE_TRANSIENT);
    }
    void bind(int parameter, qint64 integer) { sqlite3_bind_int64(statement_, parameter, integer); }
    void bind(int parameter, bool boolean) { sqlite3_bind_int64(statement_, parameter, boolean ? 1 : 0); }
    void bind(int parameter, double real) { sqlite3_bind_double(statement_, parameter, real); }

    QByteArray bytes(int column) {
        // The pointer first: asking for the length of a text must not convert it.
        const void *bytes = sqlite3_column_blob(statement_, column);
        return {static_cast<const char *>(bytes), sqlite3_column_bytes(statement_, column)};
    }
    qint64 integer(int column) { return sqlite3_column_int64(statement_, column); }
    double real(int column) {
        const bool isNull = sqlite3_column_type(statement_, column) == SQLITE_NULL;
        return isNull ? std::numeric_limits<double>::quiet_NaN() : sqlite3_column_double(statement_, column);
    }

private:
    sqlite3_stmt *statement_ = nullptr;
};

QString kindOf(const StoredValue &value) {
    static const QString kinds[] = {QStringLiteral("data"), QStringLiteral("integer"),
                                    QStringLiteral("boolean"), QStringLiteral("text"),
                                    QStringLiteral("real")};
    return kinds[value.index()];
}

std::optional<StoredValue> valueOf(const QByteArray &kind, Statement &row, int column) {
    if (kind == "data") return row.bytes(column);
    if (kind == "integer") return row.integer(column);
    if (kind == "boolean") return row.integer(column) != 0;
    if (kind == "text") return QString::fromUtf8(row.bytes(column));
    if (kind == "real") return row.real(column);
    return std::nullopt;
}

QStringList keysOf(const std::map<QString, std::optional<StoredValue>> &changes) {
    QStringList keys;
    for (const auto &change : changes)
        keys.append(change.first);
    return keys;
}

void makeFolder(const QString &folder) {
    const QString parent = QFileInfo(folder).path();
    if (QFileInfo::exists(folder) || parent == folder) return;
    makeFolder(parent);
    ::mkdir(QFile::encodeName(folder).constData(), ownerFolder);
}

// Made before SQLite does, so that it is never open to others; SQLite's companion files take over the mode.
void makeOwnerFile(const QString &path) {
    const QByteArray name = QFile::encodeName(path);
    const int file = ::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC, ownerFile);
    if (file < 0) return; // opening the database will tell
    ::fchmod(file, ownerFile);
    ::close(file);
}

// An error of the query itself is what tables of another program give.
bool isForeign(int code) {
    return code == SQLITE_NOTADB || code == SQLITE_CORRUPT || code == SQLITE_ERROR;
}

} // namespace

void SqliteStore::Close::operator()(sqlite3 *database) const {
    sqlite3_close_v2(database);
}

SqliteStore::SqliteStore(QString path, Console &console, std::chrono::milliseconds patience)
    : path_(std::move(path)), console_(console), patience_(patience) {
    open();
}

SqliteStore::~SqliteStore() { // NOLINT(bugprone-exception-escape): only memory can run out here
    if (unsaved_.empty()) return;
    const QString wrong = save(unsaved_);
    if (!wrong.isEmpty()) tell(QStringLiteral("%1 values are lost: %2").arg(unsaved_.size()).arg(wrong));
}

void SqliteStore::open() {
    makeFolder(QFileInfo(path_).absolutePath());
    if (!connect()) return;
    int code = prepare();
    if (isForeign(code)) {
        tell(QString::fromUtf8(sqlite3_errstr(code)));
        database_.reset();
        if (!setAside() || !connect()) return;
        code = prepare();
    }
    if (code != SQLITE_OK) tell(QString::fromUtf8(sqlite3_errstr(code)));
}

bool SqliteStore::connect() {
    makeOwnerFile(path_);
    sqlite3 *database = nullptr;
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_FULLMUTEX;
    const int code = sqlite3_open_v2(QFile::encodeName(path_).constData(), &database, flags, nullptr);
    database_.reset(database);
    if (code == SQLITE_OK) {
        sqlite3_busy_timeout(database, static_cast<int>(patience_.count()));
        return true;
    }
    tell(QStringLiteral("%1; values last for this run only").arg(problem()));
    database_.reset();
    return false;
}

int SqliteStore::prepare() {
    // A large value is written page by page: larger pages halve the time of one of a megabyte, and a cache
    // that holds its pages keeps them from being read again. A file that exists keeps its page size.
    const bool ran = run("PRAGMA page_size = 16384") && run("PRAGMA cache_size = -8000") &&
                     run("PRAGMA journal_mode = WAL") && run("PRAGMA synchronous = FULL") && run(schema);
    if (!ran || !Statement(database_.get(), selectSql).isPrepared()) return sqlite3_errcode(database_.get());
    Statement check(database_.get(), "PRAGMA quick_check(1)");
    const int code = check.step();
    if (code != SQLITE_ROW) return code;
    prepared_ = check.bytes(0) == "ok";
    return prepared_ ? SQLITE_OK : SQLITE_CORRUPT;
}

bool SqliteStore::setAside() {
    QString name = path_ + QStringLiteral(".unreadable");
    for (int number = 2; QFile::exists(name); ++number)
        name = QStringLiteral("%1.unreadable-%2").arg(path_).arg(number);
    for (const QString &companion : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")}) {
        const QString from = path_ + companion;
        if (!QFile::exists(from) || QFile::rename(from, name + companion)) continue;
        tell(QStringLiteral("%1 could not be set aside; values last for this run only").arg(from));
        return false;
    }
    tell(QStringLiteral("the file was set aside as %1, a fresh one begins").arg(name));
    return true;
}

std::optional<StoredValue> SqliteStore::value(const QString &key) const {
    const std::lock_guard lock(mutex_);
    if (const auto change = unsaved_.find(key); change != unsaved_.end()) return change->second;
    if (!database_) return std::nullopt;
    Statement row(database_.get(), selectSql);
    row.bind(1, key);
    const int code = row.step();
    if (code == SQLITE_ROW) return valueOf(row.bytes(0), row, 1);
    if (code != SQLITE_DONE && prepared_)
        tell(QStringLiteral("\"%1\" could not be read: %2").arg(key, problem()));
    return std::nullopt;
}

void SqliteStore::setValue(const QString &key, const StoredValue &value) {
    change({{key, value}});
}

void SqliteStore::remove(const QString &key) {
    change({{key, std::nullopt}});
}

void SqliteStore::setValues(const std::vector<std::pair<QString, StoredValue>> &values) {
    Changes changes;
    for (const auto &[key, value] : values)
        changes.insert_or_assign(key, value);
    change(std::move(changes));
}

void SqliteStore::change(Changes changes) {
    const std::lock_guard lock(mutex_);
    const QStringList keys = keysOf(changes);
    // What failed before is older, so the new values win.
    changes.merge(std::exchange(unsaved_, {}));
    const QString wrong = save(changes);
    if (wrong.isEmpty()) return;
    tell(QStringLiteral("%1 could not be stored: %2").arg(keys.join(QStringLiteral(", ")), wrong));
    unsaved_ = std::move(changes);
}

QString SqliteStore::save(const Changes &changes) {
    if (!database_) return problem();
    if ((!prepared_ && prepare() != SQLITE_OK) || !run("BEGIN IMMEDIATE")) return problem();
    const auto write = [this](const auto &change) { return this->write(change.first, change.second); };
    if (std::ranges::all_of(changes, write) && run("COMMIT")) return {};
    QString wrong = problem();
    run("ROLLBACK");
    return wrong;
}

bool SqliteStore::write(const QString &key, const std::optional<StoredValue> &value) {
    Statement statement(database_.get(), value ? upsertSql : deleteSql);
    statement.bind(1, key);
    if (value) {
        statement.bind(2, kindOf(*value));
        std::visit([&](const auto &content) { statement.bind(3, content); }, *value);
    }
    return statement.step() == SQLITE_DONE;
}

bool SqliteStore::run(const char *sql) {
    return sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

QString SqliteStore::problem() const {
    return database_ ? QString::fromUtf8(sqlite3_errmsg(database_.get())) : QStringLiteral("no database");
}

void SqliteStore::tell(const QString &what) const {
    console_.print(QStringLiteral("Store %1: %2").arg(path_, what));
}

} // namespace orl
