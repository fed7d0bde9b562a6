#include "numbers/records.h"
#include "platform/json.h"
#include "platform/qt/sqlite_store.h"
#include "whole_phone.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace orl {
namespace {

constexpr int patience = 60'000; // milliseconds; only a writer that hangs makes the test wait as long

/// What one run of the writer said before it was killed.
struct Said {
    qint64 countBefore = 0;
    qint64 entriesBefore = 0;
    int done = 0; ///< choices of this run that are stored as a whole
};

/// Runs the writer until it has said so many choices, then kills it in the middle of whatever it does next.
Said runAndKill(const QString &folder, int first, int choices) {
    QProcess writer;
    writer.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    writer.start(QStringLiteral(ORL_CHOICE_WRITER), {folder, QString::number(first)});
    Said said;
    const auto nextLine = [&] {
        while (!writer.canReadLine() && writer.waitForReadyRead(patience)) {
        }
        EXPECT_TRUE(writer.canReadLine()) << "the writer hangs or has ended";
        return QString::fromUtf8(writer.readLine()).trimmed();
    };
    const QStringList before = nextLine().split(u' ');
    said.countBefore = before.value(0).toLongLong();
    said.entriesBefore = before.value(1).toLongLong();
    while (said.done < choices && !nextLine().isEmpty())
        ++said.done;
    writer.kill();
    writer.waitForFinished(patience);
    // What it still said before the kill counts as stored too.
    said.done += int(writer.readAll().count('\n'));
    return said;
}

/// What the store holds afterwards.
struct Stored {
    int country = 0;
    int number = 0;
    qint64 count = 0;
    QList<History> history;
};

Stored readStore(const QString &folder) {
    KeptConsole console;
    Stored stored;
    {
        const SqliteStore store(QDir(folder).filePath(QStringLiteral("defaults.sqlite")), console);
        const auto country =
            decodeJson(store.data(QStringLiteral("chosen_country")).value_or("{"), Country::decode);
        const auto number = decodeJson(store.data(QStringLiteral("chosen_phone_number_new")).value_or("{"),
                                       PhoneNumber::decode);
        const auto history =
            decodeJsonList(store.data(QStringLiteral("history_key")).value_or("[]"), History::decode);
        EXPECT_TRUE(country.ok() && number.ok() && history.ok());
        if (!country.ok() || !number.ok() || !history.ok()) return stored;
        stored = {country.value().name.toInt(), number.value().number.toInt(),
                  store.integer(QStringLiteral("chose_numbers_count_key")), history.value()};
    }
    EXPECT_EQ(console.take(), QStringList());
    return stored;
}

TEST(KillTest, ChoiceHistoryAndAllowanceAreTheOldOrTheNewOnes) {
    const QTemporaryDir folder;
    int first = 1;
    for (int round = 0; round < 25; ++round) {
        SCOPED_TRACE(round);
        const Said said = runAndKill(folder.path(), first, 1 + round % 4);
        const Stored stored = readStore(folder.path());
        const int lastDone = first + said.done - 1;
        const qint64 countDone = said.countBefore + said.done;
        const qint64 entriesDone = said.entriesBefore + said.done;

        EXPECT_EQ(stored.country, stored.number) << "a number of another country";
        EXPECT_TRUE(stored.number == lastDone || stored.number == lastDone + 1)
            << stored.number << " " << lastDone;
        EXPECT_TRUE(stored.count == countDone || stored.count == countDone + 1) << stored.count;
        const qsizetype entries = stored.history.size();
        ASSERT_TRUE(entries == entriesDone || entries == entriesDone + 1) << entries;
        EXPECT_EQ(stored.history.front().shownNumber().toInt(), lastDone + int(entries - entriesDone));
        // Entry by entry the history goes on where it stood.
        EXPECT_EQ(stored.history.at(entries - entriesDone).shownNumber().toInt(), lastDone);
        if (HasFailure()) return;
        first = lastDone + 2;
    }
}

} // namespace
} // namespace orl
