#include "identity_phone.h"

#include <QSet>

namespace orl {
namespace {

TEST(IdentityTables, EveryRawValueNamesOneCase) {
    QSet<QString> sets;
    QSet<QString> countryNames;
    for (const FakeNameSet nameSet : allNameSets())
        sets.insert(rawValue(nameSet));
    for (const FakeCountry country : allCountries())
        countryNames.insert(rawValue(country));
    EXPECT_EQ(sets.size(), 38);
    EXPECT_EQ(countryNames.size(), 55);
    for (const FakeGender gender : allGenders())
        EXPECT_EQ(genderOf(rawValue(gender)), gender);
    EXPECT_EQ(genderOf(QStringLiteral("Male")), std::nullopt);
}

// The rows are found by the number of their case: a row out of order would answer for its neighbour.
TEST(IdentityTables, RowsStandInTheOrderOfTheirCases) {
    for (qsizetype i = 0; i < allNameSets().size(); ++i)
        EXPECT_EQ(qsizetype(allNameSets()[i]), i);
    for (qsizetype i = 0; i < allCountries().size(); ++i)
        EXPECT_EQ(qsizetype(allCountries()[i]), i);
}

TEST(IdentityTables, EveryCountryCanBeReachedThroughANameSet) {
    QSet<FakeCountry> offered;
    for (const FakeNameSet nameSet : allNameSets()) {
        ASSERT_FALSE(countries(nameSet).isEmpty());
        for (const FakeCountry country : countries(nameSet))
            offered.insert(country);
    }
    EXPECT_EQ(offered.size(), allCountries().size());
}

TEST(IdentityTables, DefaultCountryIsTheFirstOfTheNameSet) {
    struct Case {
        FakeNameSet nameSet;
        FakeCountry country;
        qsizetype count;
    };
    const Case cases[] = {
        {FakeNameSet::English, FakeCountry::UnitedStates, 8},
        {FakeNameSet::Spanish, FakeCountry::Argentina, 4},
        {FakeNameSet::French, FakeCountry::Belgium, 3},
        {FakeNameSet::German, FakeCountry::Austria, 2},
        {FakeNameSet::Montenegro, FakeCountry::Montenegrin, 1},
        {FakeNameSet::Portuguese, FakeCountry::Brazil, 2},
        {FakeNameSet::Serbian, FakeCountry::CyrillicSerbia, 3},
        {FakeNameSet::Chinese, FakeCountry::China, 2},
    };
    for (const Case &row : cases) {
        EXPECT_EQ(countries(row.nameSet).first(), row.country) << rawValue(row.nameSet).toStdString();
        EXPECT_EQ(countries(row.nameSet).size(), row.count) << rawValue(row.nameSet).toStdString();
    }
}

TEST(IdentityTables, OddSpellingsAreKept) {
    EXPECT_EQ(rawValue(FakeNameSet::Bengali), QStringLiteral("Bengali"));
    EXPECT_EQ(displayText(FakeNameSet::Danish), QStringLiteral("Danish - Da nsk"));
    EXPECT_EQ(rawValue(FakeCountry::Montenegrin), QStringLiteral("montenegrin"));
    EXPECT_EQ(displayText(FakeCountry::CyrillicSerbia),
              QStringLiteral("Cyrillic, Serbia - Ћирилица, српски"));
    EXPECT_EQ(pictureName(FakeGender::Random), QStringLiteral("ic_gender_random"));
}

} // namespace
} // namespace orl
