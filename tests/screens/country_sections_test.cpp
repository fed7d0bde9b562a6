#include "screens/country_sections.h"
#include "screens_phone.h"

using namespace orl;

namespace {

const QList<Country> catalogue{
    test::country(QStringLiteral("United Kingdom"), QStringLiteral("Europe"), QStringLiteral("44")),
    test::country(QStringLiteral("Angola"), QStringLiteral("Africa"), QStringLiteral("244")),
    test::country(QStringLiteral("Barbados"), QStringLiteral("North_America"), QStringLiteral("+1246")),
    test::country(QStringLiteral("Atlantis"), QStringLiteral("Ocean"), QStringLiteral("44")),
};

struct FilterCase {
    const char *name;
    const char *term;
    const char *continent;
    QStringList found;
};

class FilteredCountries : public testing::TestWithParam<FilterCase> {};

TEST_P(FilteredCountries, KeepsTheMatchesOfAContinent) {
    const FilterCase &row = GetParam();
    const QList<Country> found =
        filteredCountries(catalogue, QString::fromUtf8(row.term), QString::fromUtf8(row.continent));
    EXPECT_EQ(test::names(found), row.found);
}

INSTANTIATE_TEST_SUITE_P(
    Table, FilteredCountries,
    testing::Values(FilterCase{"no_term", "", "europe", {QStringLiteral("United Kingdom")}},
                    FilterCase{"two_word_continent", "", "north america", {QStringLiteral("Barbados")}},
                    FilterCase{"part_of_the_prefix", "44", "africa", {QStringLiteral("Angola")}},
                    FilterCase{
                        "part_of_the_name_in_any_case", "KING", "europe", {QStringLiteral("United Kingdom")}},
                    FilterCase{"plus_is_literal", "+44", "europe", {}},
                    FilterCase{"plus_in_the_prefix", "+12", "north america", {QStringLiteral("Barbados")}}),
    [](const auto &row) { return row.param.name; });

TEST(FindsNothing, LooksAtTheWholeCatalogueAndNeverForAnEmptyTerm) {
    EXPECT_FALSE(findsNothing(catalogue, QStringLiteral("")));
    EXPECT_FALSE(findsNothing(catalogue, QStringLiteral("atlantis")));
    EXPECT_TRUE(findsNothing(catalogue, QStringLiteral("xyz")));
    EXPECT_FALSE(findsNothing({}, QStringLiteral("")));
    EXPECT_TRUE(findsNothing({}, QStringLiteral("a")));
}

} // namespace
