#include "screens/keyed_list_model.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

using namespace orl;

namespace {

KeyedListModel::Row row(const QString &key, const QString &a, int b = 0) {
    return {key, {a, b}};
}

QList<KeyedListModel::Row> rows(const char *keys) {
    QList<KeyedListModel::Row> list;
    for (const char *key = keys; *key; ++key)
        list << row(QString(QChar::fromLatin1(*key)), QStringLiteral("x"));
    return list;
}

QString keys(const KeyedListModel &model) {
    QString all;
    for (int i = 0; i < model.count(); ++i)
        all += model.key(i).front();
    return all;
}

struct KeyedListModelTest : testing::Test {
    KeyedListModel model{{"a", "b"}};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QSignalSpy inserted{&model, &QAbstractItemModel::rowsInserted};
    QSignalSpy removed{&model, &QAbstractItemModel::rowsRemoved};
    QSignalSpy moved{&model, &QAbstractItemModel::rowsMoved};
    QSignalSpy changed{&model, &QAbstractItemModel::dataChanged};
};

TEST_F(KeyedListModelTest, SameRowsAgainTellNothing) {
    model.setRows(rows("abc"));
    inserted.clear();
    model.setRows(rows("abc"));
    EXPECT_EQ(inserted.count() + removed.count() + moved.count() + changed.count(), 0);
}

TEST_F(KeyedListModelTest, NewestRowInFrontIsOneInsertion) {
    model.setRows(rows("abc"));
    const QPersistentModelIndex b = model.index(1);
    inserted.clear();
    model.setRows(rows("nab"));
    EXPECT_EQ(inserted.count(), 1);
    EXPECT_EQ(removed.count(), 1);
    EXPECT_EQ(moved.count() + changed.count(), 0);
    EXPECT_EQ(b.row(), 2);
}

TEST_F(KeyedListModelTest, ChangedValueNamesItsRoleOnly) {
    model.setRows({row(QStringLiteral("k"), QStringLiteral("old"), 1)});
    model.setRows({row(QStringLiteral("k"), QStringLiteral("new"), 1)});
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][2].value<QList<int>>(), QList<int>{Qt::UserRole});
}

TEST_F(KeyedListModelTest, EqualKeysAreToldApartByOccurrence) {
    model.setRows(
        {row(QStringLiteral("k"), QStringLiteral("1")), row(QStringLiteral("k"), QStringLiteral("2"))});
    inserted.clear();
    model.setRows({row(QStringLiteral("k"), QStringLiteral("1")),
                   row(QStringLiteral("k"), QStringLiteral("2")),
                   row(QStringLiteral("k"), QStringLiteral("3"))});
    EXPECT_EQ(model.count(), 3);
    EXPECT_EQ(inserted.count(), 1);
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(KeyedListModelTest, AnyListBecomesAnyOther) {
    std::mt19937 random(7); // NOLINT: the same lists each time
    std::string all = "abcdefghijkl";
    for (int round = 0; round < 500; ++round) {
        std::shuffle(all.begin(), all.end(), random);
        const std::string wanted = all.substr(0, random() % all.size());
        model.setRows(rows(wanted.c_str()));
        ASSERT_EQ(keys(model).toStdString(), wanted);
    }
}

} // namespace
