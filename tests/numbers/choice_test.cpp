#include "numbers/choice_allowance.h"
#include "numbers_phone.h"

#include <gtest/gtest.h>

namespace orl {

namespace {

const QString historyKey = QStringLiteral("history_key");
const QString countKey = QStringLiteral("chose_numbers_count_key");
const QString numberKey = QStringLiteral("chosen_phone_number_new");

struct ChoiceTest : NumbersTest {
    const Country norway = test::country(QStringLiteral("Norway"));

    PhoneNumber choose(const QString &number, bool returnHome = false) {
        PhoneNumber chosen = test::phoneNumber(number);
        numbers->chooseNumber(norway, chosen, returnHome);
        phone.settle();
        return chosen;
    }

    QStringList stored() {
        const auto list = decodeJsonList(phone.store.data(historyKey).value_or("[]"), History::decode);
        return list ? shown(list.value()) : QStringList{QStringLiteral("unreadable")};
    }

    static QStringList shown(const QList<History> &list) {
        QStringList all;
        for (const History &entry : list)
            all.append(entry.shownNumber());
        return all;
    }

    ChoiceAllowance &allowance() { return process->shared<ChoiceAllowance>(); }

    void setRewards(bool on) {
        AppConfiguration configuration;
        configuration.admob.rewardAdEnabled = on;
        process->shared<ValuesInForce>().currentConfiguration->set(configuration);
    }

    const QString one = QStringLiteral("+1");
    const QString two = QStringLiteral("+2");
};

} // namespace

TEST_F(ChoiceTest, AChoiceSurvivesARestart) {
    make();
    const PhoneNumber chosen = choose(one);
    EXPECT_EQ(numbers->currentNumber(), chosen);
    restart();
    make();
    EXPECT_EQ(numbers->currentNumber(), chosen);
    EXPECT_EQ(numbers->currentCountry(), norway);
    EXPECT_EQ(allowance().chosenNumbersCount(), 1);
    numbers->loadHistory();
    phone.settle();
    EXPECT_EQ(shown(numbers->historyList()), QStringList{one});
}

TEST_F(ChoiceTest, CountryAndNumberAreStoredAheadOfEverythingElse) {
    make();
    choose(one);
    EXPECT_EQ(phone.store.writes.mid(0, 2), (QStringList{QStringLiteral("chosen_country"), numberKey}));
    EXPECT_TRUE(std::holds_alternative<QByteArray>(*phone.store.value(numberKey)));
}

TEST_F(ChoiceTest, AHalfOrBrokenChoiceIsNotRestored) {
    make();
    choose(one);
    const auto whole = phone.store.values;
    const QByteArray stored = *phone.store.data(numberKey);
    struct Case {
        const char *name;
        std::optional<StoredValue> number;
    };
    const Case cases[] = {
        {"missing", {}},
        {"text instead of data", StoredValue(QString::fromUtf8(stored))},
        {"no JSON", StoredValue(QByteArray("{"))},
        {"unknown website", StoredValue(QByteArray(stored).replace("SMS24", "SMS25"))},
    };
    for (const Case &row : cases) {
        phone.store.values = whole;
        phone.store.values.erase(numberKey);
        if (row.number) phone.store.values.emplace(numberKey, *row.number);
        phone.console.lines.clear();
        restart();
        make();
        EXPECT_FALSE(numbers->currentNumber()) << row.name;
        EXPECT_FALSE(numbers->currentCountry()) << row.name;
        EXPECT_TRUE(phone.console.lines.isEmpty()) << row.name;
    }
}

TEST_F(ChoiceTest, RestoringAgainKeepsTheChoiceWhereNothingReadableIsStored) {
    make();
    const PhoneNumber chosen = choose(one);
    phone.store.values.erase(numberKey);
    numbers->restoreChosenNumber();
    EXPECT_EQ(numbers->currentNumber(), chosen);
}

TEST_F(ChoiceTest, TheFirstChoiceStandsInBothLists) {
    make();
    choose(one);
    EXPECT_EQ(stored(), QStringList{one});
    EXPECT_EQ(shown(numbers->historyList()), QStringList{one});
    EXPECT_EQ(numbers->historyList().first().time, phone.clock.now());
}

TEST_F(ChoiceTest, TheSecondChoiceIsMissingFromThePublishedListUntilItIsLoaded) {
    make();
    choose(one);
    numbers->chooseNumber(norway, test::phoneNumber(two), false);
    EXPECT_EQ(shown(numbers->historyList()), (QStringList{two, one}));
    phone.settle();
    EXPECT_EQ(stored(), (QStringList{two, one}));
    EXPECT_EQ(shown(numbers->historyList()), QStringList{one});
    numbers->loadHistory();
    phone.settle();
    EXPECT_EQ(shown(numbers->historyList()), (QStringList{two, one}));
}

TEST_F(ChoiceTest, TheSameNumberTwiceStandsTwice) {
    make();
    choose(one);
    choose(one);
    EXPECT_EQ(stored(), (QStringList{one, one}));
}

TEST_F(ChoiceTest, AnUnreadableHistoryStaysInTheStore) {
    phone.store.values.emplace(historyKey, QByteArray("[{}]"));
    make();
    choose(one);
    EXPECT_EQ(phone.store.data(historyKey), QByteArray("[{}]"));
    EXPECT_EQ(shown(numbers->historyList()), QStringList{one});
    EXPECT_EQ(allowance().chosenNumbersCount(), 1);
    ASSERT_EQ(phone.console.lines.size(), 1);
    EXPECT_TRUE(phone.console.lines[0].startsWith(QLatin1String("Failed to update history: ")));
}

TEST_F(ChoiceTest, AnOldEntryWithABareNumberIsKept) {
    make();
    choose(one);
    const QByteArray old =
        R"([{"country":)" + encodeJson(norway.encoded()) + R"(,"number":"+47 old","time":5}])";
    phone.store.values.insert_or_assign(historyKey, old);
    choose(two);
    EXPECT_EQ(stored(), (QStringList{two, QStringLiteral("+47 old")}));
}

TEST_F(ChoiceTest, LoadingGivesTheListToTheCompletionFirst) {
    make();
    choose(one);
    numbers->chooseNumber(norway, test::phoneNumber(two), false);
    phone.settle();
    QList<QStringList> seen;
    numbers->loadHistory([&](const QList<History> &list) {
        seen = {shown(list), shown(numbers->historyList())};
    });
    phone.settle();
    EXPECT_EQ(seen, (QList{QStringList{two, one}, QStringList{one}}));
}

TEST_F(ChoiceTest, LoadingNothingCompletesAndLeavesTheList) {
    make();
    const auto published = notified(&RequestViewModel::historyListChanged);
    int completions = 0;
    numbers->loadHistory([&](const QList<History> &list) { completions += list.isEmpty(); });
    phone.settle();
    EXPECT_EQ(completions, 1);
    EXPECT_EQ(*published, 0);
}

TEST_F(ChoiceTest, ReturningHomeTakesAMoment) {
    make().setSelectedTab(Tab::profile);
    choose(one, false);
    phone.advance(std::chrono::seconds(1));
    EXPECT_EQ(numbers->selectedTab(), Tab::profile);
    choose(one, true);
    phone.advance(std::chrono::milliseconds(199));
    EXPECT_EQ(numbers->selectedTab(), Tab::profile);
    phone.advance(std::chrono::milliseconds(1));
    EXPECT_EQ(numbers->selectedTab(), Tab::home);
    choose(one, true);
    numbers.reset();
    phone.advance(std::chrono::seconds(1));
}

TEST_F(ChoiceTest, TheHistoryIsSavedEvenIfTheObjectIsGone) {
    make().chooseNumber(norway, test::phoneNumber(one), false);
    numbers.reset();
    process.reset();
    phone.settle();
    EXPECT_EQ(stored(), QStringList{one});
}

TEST_F(ChoiceTest, TheAllowanceHoldsBackOnlyWhileRewardsCanRefillIt) {
    struct Case {
        qint64 count;
        bool rewards;
        bool may;
    };
    for (const Case &row : {Case{0, true, true}, Case{2, true, true}, Case{3, true, false},
                            Case{7, true, false}, Case{3, false, true}, Case{7, false, true}}) {
        phone.store.values.insert_or_assign(countKey, row.count);
        restart();
        setRewards(row.rewards);
        EXPECT_EQ(make().mayChoose(), row.may) << row.count << row.rewards;
    }
}

TEST_F(ChoiceTest, ARewardedVideoStartsTheAllowanceAfresh) {
    make();
    for (int i = 0; i < 5; ++i)
        choose(one);
    EXPECT_EQ(allowance().chosenNumbersCount(), 5);
    EXPECT_EQ(phone.store.integer(countKey), 5);
    EXPECT_FALSE(numbers->mayChoose());
    int rewards = 0;
    QObject::connect(&allowance(), &ChoiceAllowance::rewardUser,
                     [&] { rewards += phone.store.integer(countKey) == 0; });
    numbers->resetAllowance();
    EXPECT_EQ(rewards, 1);
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(numbers->mayChoose()) << i;
        choose(one);
    }
    EXPECT_FALSE(numbers->mayChoose());
}

TEST_F(ChoiceTest, TheCountIsReadOnceAndTheStoreIsTheBaseOfEachChoice) {
    make();
    EXPECT_EQ(allowance().chosenNumbersCount(), 0);
    phone.store.values.insert_or_assign(countKey, qint64(6));
    EXPECT_EQ(allowance().chosenNumbersCount(), 0);
    choose(one);
    EXPECT_EQ(allowance().chosenNumbersCount(), 7);
}

} // namespace orl
