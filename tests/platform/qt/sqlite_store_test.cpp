#include "platform/qt/sqlite_store.h"
#include "support/played_platform.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cmath>
#include <csignal>
#include <gtest/gtest.h>
#include <limits>
#include <sqlite3.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace orl {
namespace {

class SqliteStoreTest : public testing::Test {
protected:
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a/b/defaults.sqlite"));
    PlayedConsole console;
    const QString key = QStringLiteral("key");
    const QString other = QStringLiteral("other");

    std::unique_ptr<SqliteStore> open() { return std::make_unique<SqliteStore>(path, console); }
    void write(const QByteArray &content) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    static mode_t mode(const QString &name) {
        struct stat status {};
        EXPECT_EQ(::stat(QFile::encodeName(name).constData(), &status), 0) << name.toStdString();
        return status.st_mode & 07777;
    }
    /// Runs SQL on the file as another process would.
    struct Stranger {
        explicit Stranger(const QString &file) {
            sqlite3_open(QFile::encodeName(file).constData(), &database);
        }
        ~Stranger() { sqlite3_close(database); }
        void run(const char *sql) {
            EXPECT_EQ(sqlite3_exec(database, sql, nullptr, nullptr, nullptr), SQLITE_OK)
                << sqlite3_errmsg(database);
        }
        sqlite3 *database = nullptr;
    };
};

TEST_F(SqliteStoreTest, EveryValueSurvivesARestartWithItsType) {
    const StoredValue values[] = {
        QByteArray(),
        QByteArray("a\0b\xff", 4),
        qint64(0),
        std::numeric_limits<qint64>::min(),
        std::numeric_limits<qint64>::max(),
        true,
        false,
        QString(),
        QStringLiteral("caf\u00e9 \U0001F600 '\"; DROP"),
        QString::fromUtf8(QByteArray("a\0b", 3)),
        0.1,
        -0.0,
        1767225600.123456,
        std::numeric_limits<double>::infinity(),
        3.0,
    };
    {
        const auto store = open();
        for (std::size_t i = 0; i < std::size(values); ++i)
            store->setValue(QString::number(i), values[i]);
    }
    const auto store = open();
    for (std::size_t i = 0; i < std::size(values); ++i) {
        EXPECT_EQ(store->value(QString::number(i)), values[i]) << "value " << i;
    }
    EXPECT_EQ(console.lines, QStringList());
}

TEST_F(SqliteStoreTest, ARealThatIsNoNumberIsKept) {
    open()->setValue(key, std::numeric_limits<double>::quiet_NaN());
    EXPECT_TRUE(std::isnan(open()->real(key)));
}

TEST_F(SqliteStoreTest, AReadOfAnotherTypeGivesNothing) {
    const auto store = open();
    store->setValue(key, true);
    EXPECT_EQ(store->integer(key), 0);
    EXPECT_FALSE(store->data(key));
    store->setValue(key, QByteArray("7"));
    EXPECT_FALSE(store->text(key));
    EXPECT_FALSE(store->boolean(key));
    EXPECT_EQ(store->data(key), QByteArray("7"));
}

TEST_F(SqliteStoreTest, ARemovedKeyIsGoneAfterARestartToo) {
    const auto store = open();
    store->setValue(key, qint64(1));
    store->remove(key);
    store->remove(other);
    EXPECT_FALSE(store->value(key));
    EXPECT_FALSE(open()->value(key));
}

TEST_F(SqliteStoreTest, TwoProcessesSeeEachOthersValues) {
    const auto first = open();
    const auto second = open();
    first->setValue(key, qint64(1));
    EXPECT_EQ(second->integer(key), 1);
    second->setValue(key, qint64(2));
    EXPECT_EQ(first->integer(key), 2);
}

TEST_F(SqliteStoreTest, ThreadsReadAndWriteAtOnce) {
    const auto store = open();
    {
        std::vector<std::jthread> threads;
        for (int t = 0; t < 4; ++t) {
            threads.emplace_back([&, t] {
                const QString own = QString::number(t);
                for (qint64 i = 1; i <= 25; ++i) {
                    store->setValue(own, i);
                    EXPECT_EQ(store->integer(own), i);
                    store->value(key);
                }
            });
        }
    }
    for (int t = 0; t < 4; ++t)
        EXPECT_EQ(store->integer(QString::number(t)), 25);
    EXPECT_EQ(console.lines, QStringList());
}

TEST_F(SqliteStoreTest, FileAndFoldersBelongToTheirOwnerAlone) {
    const mode_t before = ::umask(0);
    const auto store = open();
    store->setValue(key, qint64(1));
    ::umask(before);
    for (const char *companion : {"", "-wal", "-shm"})
        EXPECT_EQ(mode(path + QString::fromLatin1(companion)), 0600U) << companion;
    EXPECT_EQ(mode(folder.filePath(QStringLiteral("a"))), 0700U);
    EXPECT_EQ(mode(folder.filePath(QStringLiteral("a/b"))), 0700U);
}

TEST_F(SqliteStoreTest, AFileThatOthersCouldReadIsClosedToThem) {
    open()->setValue(key, qint64(1));
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0644), 0);
    EXPECT_EQ(open()->integer(key), 1);
    EXPECT_EQ(mode(path), 0600U);
}

TEST_F(SqliteStoreTest, WhatIsNoDatabaseIsSetAsideAndNeverOverwritten) {
    const QByteArray contents[] = {"first file, long enough to be told from a database header", "second"};
    for (const QByteArray &content : contents) {
        write(content);
        const auto store = open();
        EXPECT_FALSE(store->value(key));
        store->setValue(key, QStringLiteral("fresh"));
        EXPECT_EQ(open()->text(key), QStringLiteral("fresh"));
    }
    EXPECT_EQ(console.lines.filter(QStringLiteral("set aside as")).size(), 2);
    for (const char *name : {".unreadable", ".unreadable-2"}) {
        QFile file(path + QString::fromLatin1(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        EXPECT_EQ(file.readAll(), contents[file.fileName().endsWith(QLatin1Char('2')) ? 1 : 0]);
    }
}

TEST_F(SqliteStoreTest, ADatabaseOfAnotherProgramIsSetAside) {
    write({});
    Stranger(path).run("CREATE TABLE defaults (something, else_)");
    const auto store = open();
    store->setValue(key, qint64(7));
    EXPECT_EQ(open()->integer(key), 7);
    EXPECT_TRUE(QFile::exists(path + QStringLiteral(".unreadable")));
}

TEST_F(SqliteStoreTest, ADatabaseThatIsDamagedInsideIsSetAside) {
    {
        const auto store = open();
        for (int i = 0; i < 200; ++i)
            store->setValue(QString::number(i), QByteArray(200, 'x'));
    }
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.seek(2 * 4096);
    file.write(QByteArray(3 * 4096, '\x5a'));
    file.close();
    const auto store = open();
    store->setValue(key, qint64(7));
    EXPECT_EQ(store->integer(key), 7);
    EXPECT_TRUE(QFile::exists(path + QStringLiteral(".unreadable")));
}

TEST_F(SqliteStoreTest, WithoutAnyFileValuesLastForThisRun) {
    QDir().mkpath(path); // a folder stands where the file should be
    const auto store = open();
    store->setValue(key, qint64(1));
    store->setValues({{key, qint64(2)}, {other, true}});
    store->remove(other);
    EXPECT_EQ(store->integer(key), 2);
    EXPECT_FALSE(store->value(other));
    EXPECT_FALSE(console.lines.isEmpty());
}

TEST_F(SqliteStoreTest, AWriteThatFailedIsKeptAndMadeUpFor) {
    const auto store = open();
    store->setValue(key, qint64(1));
    Stranger stranger(path);
    stranger.run("CREATE TRIGGER refuse BEFORE UPDATE ON defaults BEGIN SELECT RAISE(ABORT, 'refused'); END");
    store->setValues({{other, qint64(9)}, {key, qint64(2)}});
    EXPECT_EQ(console.lines.filter(QStringLiteral("refused")).size(), 1);
    EXPECT_EQ(store->integer(key), 2);
    EXPECT_FALSE(open()->value(other)) << "of several values all are new or none is";
    EXPECT_EQ(open()->integer(key), 1);
    stranger.run("DROP TRIGGER refuse");
    store->setValue(QStringLiteral("third"), qint64(3));
    EXPECT_EQ(open()->integer(key), 2);
    EXPECT_EQ(open()->integer(other), 9);
}

TEST_F(SqliteStoreTest, ALockOfAnotherProcessIsWaitedForAndNotForEver) {
    const auto store = std::make_unique<SqliteStore>(path, console, std::chrono::milliseconds(100));
    store->setValue(key, qint64(1));
    Stranger stranger(path);
    stranger.run("BEGIN IMMEDIATE");
    store->setValue(key, qint64(2));
    EXPECT_EQ(console.lines.filter(QStringLiteral("locked")).size(), 1);
    EXPECT_EQ(store->integer(key), 2);
    stranger.run("ROLLBACK");
    store->setValue(other, qint64(3));
    EXPECT_EQ(open()->integer(key), 2);
}

/// Writes pairs until it is killed, and says so after each.
[[noreturn]] void writeForEver(const QString &path, int report) {
    PlayedConsole console;
    SqliteStore store(path, console);
    for (qint64 i = 1;; ++i) {
        store.setValues({{QStringLiteral("first"), i},
                         {QStringLiteral("second"), QByteArray(3000, char('a' + i % 26))},
                         {QStringLiteral("third"), i}});
        if (::write(report, &i, sizeof i) != sizeof i) std::_Exit(1);
    }
}

TEST_F(SqliteStoreTest, AKillAtAnyMomentLeavesTheOldValuesOrTheNewOnes) {
    for (int round = 0; round < 8; ++round) {
        int pipe[2];
        ASSERT_EQ(::pipe(pipe), 0);
        const pid_t child = ::fork();
        if (child == 0) writeForEver(path, pipe[1]);
        ::close(pipe[1]);
        qint64 written = 0;
        for (int i = 0; i < 3 + round * 7; ++i)
            ASSERT_EQ(::read(pipe[0], &written, sizeof written), qint64(sizeof written));
        ::kill(child, SIGKILL);
        // What it still said before the kill counts as written too.
        while (::read(pipe[0], &written, sizeof written) == qint64(sizeof written)) {
        }
        ::close(pipe[0]);
        ::waitpid(child, nullptr, 0);
        const auto store = open();
        const qint64 stored = store->integer(QStringLiteral("first"));
        EXPECT_TRUE(stored == written || stored == written + 1) << stored << " after " << written;
        EXPECT_EQ(store->integer(QStringLiteral("third")), stored);
        EXPECT_EQ(store->data(QStringLiteral("second")), QByteArray(3000, char('a' + stored % 26)));
    }
    EXPECT_EQ(console.lines, QStringList());
}

} // namespace
} // namespace orl
