#include "identity/saved_identities.h"
#include "identity/valid_ssn.h"
#include "identity_phone.h"

#include <limits>

namespace orl {
namespace {

using testing::ElementsAre;

const QString storeKey = QStringLiteral("identity_history_key");

struct SavedIdentitiesTest : testing::Test {
    SavedIdentities &saved() { return process->shared<SavedIdentities>(); }

    void save(const QString &name, const FakeIdentity &identity = test::identity(QStringLiteral("Ada"))) {
        published.clear();
        saved().save(name, identity,
                     [this](const SavedIdentities::List &list) { published.append(names(list)); });
    }

    void restart() {
        phone.endProcess();
        process = std::make_unique<Process>(phone.platform());
    }

    static QStringList names(const SavedIdentities::List &list) {
        QStringList all;
        for (const IdentityHistory &record : list)
            all << record.name;
        return all;
    }
    QStringList loaded() { return names(saved().load().value_or(SavedIdentities::List())); }

    PlayedPlatform phone;
    std::unique_ptr<Process> process = std::make_unique<Process>(phone.platform());
    QList<QStringList> published; ///< by the last save
};

TEST_F(SavedIdentitiesTest, EverySaveComesToTheFrontAndSurvivesARestart) {
    const FakeIdentity ada = test::identity(QStringLiteral("Ada"), FakeGender::Female);
    phone.clock.setNow(1700000000.5);
    save(QStringLiteral("work"), ada);
    EXPECT_EQ(published, QList<QStringList>{{QStringLiteral("work")}});
    save(QStringLiteral("work"), ada);
    save(QStringLiteral("  "), test::identity(QStringLiteral("\"Bob\", \\ 日本"), FakeGender::Male));
    EXPECT_EQ(published,
              (QList<QStringList>{{QStringLiteral("work"), QStringLiteral("work")},
                                  {QStringLiteral("  "), QStringLiteral("work"), QStringLiteral("work")}}));
    const auto before = saved().load();
    restart();
    const auto after = saved().load();
    ASSERT_TRUE(after);
    EXPECT_EQ(*after, *before);
    EXPECT_EQ(after->at(1).identity, ada);
    EXPECT_EQ(after->at(1).time, 1700000000.5);
    save(QStringLiteral("later"));
    restart();
    EXPECT_THAT(loaded(), ElementsAre(QStringLiteral("later"), QStringLiteral("  "), QStringLiteral("work"),
                                      QStringLiteral("work")));
}

TEST_F(SavedIdentitiesTest, StoredListIsTheBaseOfAChangeWhoeverWroteIt) {
    save(QStringLiteral("ours"));
    IdentityHistory other{QStringLiteral("another program's"), 1, test::identity(QStringLiteral("Eve"))};
    QJsonDocument written(QJsonArray{other.encoded()});
    phone.store.values[storeKey] = written.toJson(QJsonDocument::Indented);
    EXPECT_THAT(loaded(), ElementsAre(QStringLiteral("another program's")));
    save(QStringLiteral("new"));
    phone.store.values[storeKey] = QByteArray(" [ ] ");
    save(QStringLiteral("first of none"));
    restart();
    EXPECT_THAT(loaded(), ElementsAre(QStringLiteral("first of none")));
}

TEST_F(SavedIdentitiesTest, WhatDoesNotDecodeIsPassedOverAndOverwritten) {
    const QByteArray record =
        encodeJson(IdentityHistory{QStringLiteral("n"), 1, test::identity(QStringLiteral("Ada"))}.encoded());
    const auto list = [](const QByteArray &inner) { return StoredValue("[" + inner + "]"); };
    struct Case {
        const char *name;
        std::optional<StoredValue> stored;
    };
    const Case cases[] = {
        {"nothing", std::nullopt},
        {"text", StoredValue(QString::fromUtf8("[" + record + "]"))},
        {"no JSON", StoredValue(QByteArray("\xff\xfe"))},
        {"empty", StoredValue(QByteArray())},
        {"an object", StoredValue(record)},
        {"cut off", StoredValue("[" + record)},
        {"one bad among good", list(record + "," + QByteArray(record).replace("\"time\"", "\"when\""))},
        {"unknown gender", list(QByteArray(record).replace("\"female\"", "\"none\""))},
        {"time as text", list(QByteArray(record).replace("\"time\":1", "\"time\":\"1\""))},
        {"row without content", list(QByteArray(record).replace("\"content\"", "\"text\""))},
    };
    for (const Case &row : cases) {
        restart();
        if (row.stored)
            phone.store.values[storeKey] = *row.stored;
        else
            phone.store.values.erase(storeKey);
        EXPECT_FALSE(saved().load()) << row.name;
        save(QStringLiteral("anew"));
        EXPECT_EQ(published, QList<QStringList>{{QStringLiteral("anew")}}) << row.name;
        restart();
        EXPECT_THAT(loaded(), ElementsAre(QStringLiteral("anew"))) << row.name;
        EXPECT_TRUE(phone.console.lines.isEmpty()) << row.name;
    }
}

TEST_F(SavedIdentitiesTest, WhatCannotBeEncodedIsPublishedForThisRunOnly) {
    save(QStringLiteral("kept"));
    const auto before = phone.store.values;
    phone.clock.setNow(std::numeric_limits<double>::quiet_NaN());
    save(QStringLiteral("not kept"));
    EXPECT_EQ(published.last(), (QStringList{QStringLiteral("not kept"), QStringLiteral("kept")}));
    EXPECT_EQ(phone.store.values, before);
    EXPECT_THAT(loaded(), ElementsAre(QStringLiteral("kept")));
}

TEST(ValidSSNTest, SurvivesJsonAndNeedsAllSixTexts) {
    const ValidSSN ssn{QStringLiteral("000-00-0000"), QStringLiteral("Ohio"), QStringLiteral("1970"),
                       QStringLiteral("1975"),        QStringLiteral("51"),   QStringLiteral("Valid")};
    const auto decoded = decodeJson(encodeJson(ssn.encoded()), ValidSSN::decode);
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded.value(), ssn);
    EXPECT_NE(ssn.id(), ssn.id());
    const QStringList keys = ssn.encoded().keys();
    EXPECT_EQ(keys.size(), 6);
    for (const QString &key : keys) {
        QJsonObject without = ssn.encoded();
        without.remove(key);
        EXPECT_FALSE(decodeJson(encodeJson(without), ValidSSN::decode)) << key.toStdString();
    }
}

} // namespace
} // namespace orl
