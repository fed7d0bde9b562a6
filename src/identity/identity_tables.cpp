#include "identity/identity_tables.h"

#include <array>

namespace orl {

namespace {

using enum FakeCountry;

struct NameSetRow {
    FakeNameSet nameSet;
    const char *rawValue;
    const char *displayText;
    QList<FakeCountry> countries;
};

// "Bengali" with its capital, "Da nsk" and "montenegrin" below are what the host and the pickers have.
const auto &nameSetRows() {
    static const std::array rows{
        NameSetRow{
            FakeNameSet::English,
            "english",
            "English",
            {UnitedStates, Australia, Canada, UnitedKingdom, NewZealand, Philippines, Uganda, SouthAfrica}},
        NameSetRow{FakeNameSet::Spanish, "spanish", "Spanish - español", {Argentina, Spain, Peru, Venezuela}},
        NameSetRow{FakeNameSet::French, "french", "French - français", {Belgium, Canada, France}},
        NameSetRow{FakeNameSet::Arabic, "arabic", "Arabic - العربية", {Jordan}},
        NameSetRow{FakeNameSet::Bulgarian, "bulgarian", "Bulgarian - български", {Bulgaria}},
        NameSetRow{FakeNameSet::Bengali, "Bengali", "Bengali - বাংলাদেশ", {Bangladesh}},
        NameSetRow{FakeNameSet::Czech, "czech", "Czech - čeština", {CzechRepublic}},
        NameSetRow{FakeNameSet::Danish, "danish", "Danish - Da nsk", {Denmark}},
        NameSetRow{FakeNameSet::German, "german", "German - Deutsch", {Austria, Germany}},
        NameSetRow{FakeNameSet::Greek, "greek", "Greek - Ελληνικά", {Greece}},
        NameSetRow{FakeNameSet::Persian, "persian", "Persian - فارسی", {Iran}},
        NameSetRow{FakeNameSet::Finnish, "finnish", "Finnish - suomi", {Finland}},
        NameSetRow{FakeNameSet::Hungarian, "hungarian", "Hungarian - magyar", {Hungary}},
        NameSetRow{FakeNameSet::Armenian, "armenian", "Armenian - Հայերեն", {Armenia}},
        NameSetRow{FakeNameSet::Indonesian, "indonesian", "Indonesian - Bahasa Indonesia", {Indonesia}},
        NameSetRow{FakeNameSet::Icelandic, "icelandic", "Icelandic - íslenska", {Iceland}},
        NameSetRow{FakeNameSet::Italian, "italian", "Italian - italiano", {Italy}},
        NameSetRow{FakeNameSet::Japanese, "japanese", "Japanese - 日本語", {Japan}},
        NameSetRow{FakeNameSet::Georgian, "georgian", "Georgian - ქართული", {Georgia}},
        NameSetRow{FakeNameSet::Kazakh, "kazakh", "Kazakh - Қазақ", {Kazakhstan}},
        NameSetRow{FakeNameSet::Korean, "korean", "Korean - 한국어", {SouthKorea}},
        NameSetRow{FakeNameSet::Latvian, "latvian", "Latvian - Latviešu", {Latvia}},
        NameSetRow{FakeNameSet::Montenegro, "montenegro", "Montenegro - Црна Гора", {Montenegrin}},
        NameSetRow{FakeNameSet::Nepali, "nepali", "Nepali - नेपाली", {Nepal}},
        NameSetRow{FakeNameSet::Dutch, "dutch", "Dutch - Nederlands", {Belgium, Netherlands}},
        NameSetRow{FakeNameSet::Norwegian, "norwegian", "Norwegian - norsk", {Norway}},
        NameSetRow{FakeNameSet::Polish, "polish", "Polish - polski", {Poland}},
        NameSetRow{FakeNameSet::Portuguese, "portuguese", "Portuguese - português", {Brazil, Portugal}},
        NameSetRow{FakeNameSet::Romanian, "romanian", "Romanian - România", {Moldova, Romania}},
        NameSetRow{FakeNameSet::Russian, "russian", "Russian - русский", {Russia}},
        NameSetRow{FakeNameSet::Slovak, "slovak", "Slovak - Slovenčina", {Slovakia}},
        NameSetRow{FakeNameSet::Slovenian, "slovenian", "Slovenian - Slovenščina", {Slovenia}},
        NameSetRow{
            FakeNameSet::Serbian, "serbian", "Serbian - Српски језик", {CyrillicSerbia, LatinSerbia, Serbia}},
        NameSetRow{FakeNameSet::Swedish, "swedish", "Swedish - svenska", {Sweden}},
        NameSetRow{FakeNameSet::Turkish, "turkish", "Turkish - Türkçe", {Turkey}},
        NameSetRow{FakeNameSet::Ukrainian, "ukrainian", "Ukrainian - українська", {Ukraine}},
        NameSetRow{FakeNameSet::Vietnamese, "vietnamese", "Vietnamese - Tiếng Việt", {Vietnam}},
        NameSetRow{FakeNameSet::Chinese, "chinese", "Chinese - 中文", {China, Taiwan}},
    };
    return rows;
}

struct CountryRow {
    FakeCountry country;
    const char *rawValue;
    const char *displayText;
};

constexpr std::array countryRows{
    CountryRow{UnitedStates, "united-states", "United States"},
    CountryRow{Jordan, "jordan", "Jordan - الأردن"},
    CountryRow{Bulgaria, "bulgaria", "Bulgaria - България"},
    CountryRow{Bangladesh, "bangladesh", "Bangladesh - বাংলাদেশ"},
    CountryRow{CzechRepublic, "czech-republic", "Czech Republic - Česká republika"},
    CountryRow{Denmark, "denmark", "Denmark - Danmark"},
    CountryRow{Austria, "austria", "Austria - Österreich"},
    CountryRow{Germany, "germany", "Germany - Deutschland"},
    CountryRow{Greece, "greece", "Greece - Ελλάδα"},
    CountryRow{Australia, "australia", "Australia"},
    CountryRow{Canada, "canada", "Canada"},
    CountryRow{UnitedKingdom, "united-kingdom", "United Kingdom"},
    CountryRow{NewZealand, "new-zealand", "New Zealand"},
    CountryRow{Philippines, "philippines", "Philippines"},
    CountryRow{Uganda, "uganda", "Uganda"},
    CountryRow{SouthAfrica, "south-africa", "South Africa"},
    CountryRow{Argentina, "argentina", "Argentina"},
    CountryRow{Spain, "spain", "Spain - España"},
    CountryRow{Peru, "peru", "Peru - Perú"},
    CountryRow{Venezuela, "venezuela", "Venezuela"},
    CountryRow{Iran, "iran", "Iran - ایران"},
    CountryRow{Finland, "finland", "Finland - Suomi"},
    CountryRow{Belgium, "belgium", "Belgium - Belgique"},
    CountryRow{France, "france", "France"},
    CountryRow{Hungary, "hungary", "Hungary - Magyarország"},
    CountryRow{Armenia, "armenia", "Armenia - Հայաստան"},
    CountryRow{Indonesia, "indonesia", "Indonesia"},
    CountryRow{Iceland, "iceland", "Iceland - Ísland"},
    CountryRow{Italy, "italy", "Italy - Italia"},
    CountryRow{Japan, "japan", "Japan - 日本"},
    CountryRow{Georgia, "georgia", "Georgia - საქართველო"},
    CountryRow{Kazakhstan, "kazakhstan", "Kazakhstan - Қазақстан"},
    CountryRow{SouthKorea, "south-korea", "South Korea - 대한민국"},
    CountryRow{Latvia, "latvia", "Latvia - Latvija"},
    CountryRow{Montenegrin, "montenegrin", "Montenegrin - Црногорски"},
    CountryRow{Nepal, "nepal", "Nepal - नेपाल"},
    CountryRow{Netherlands, "netherlands", "Netherlands - Nederland"},
    CountryRow{Norway, "norway", "Norway - Norge"},
    CountryRow{Poland, "poland", "Poland - Polska"},
    CountryRow{Brazil, "brazil", "Brazil - Brasil"},
    CountryRow{Portugal, "portugal", "Portugal"},
    CountryRow{Moldova, "moldova", "Moldova"},
    CountryRow{Romania, "romania", "Romania - România"},
    CountryRow{Russia, "russia", "Russia - Россия"},
    CountryRow{Slovakia, "slovakia", "Slovakia - Slovenská"},
    CountryRow{Slovenia, "slovenia", "Slovenia - Slovenija"},
    CountryRow{CyrillicSerbia, "cyrillic-serbia", "Cyrillic, Serbia - Ћирилица, српски"},
    CountryRow{LatinSerbia, "latin-serbia", "Latin, Serbia - Latin, Srbija"},
    CountryRow{Serbia, "serbia", "Serbia - Србија"},
    CountryRow{Sweden, "sweden", "Sweden - Sverige"},
    CountryRow{Turkey, "turkey", "Turkey - Türkiye"},
    CountryRow{Ukraine, "ukraine", "Ukraine - Україна"},
    CountryRow{Vietnam, "vietnam", "Vietnam - Việt Nam"},
    CountryRow{China, "china", "China - 中国"},
    CountryRow{Taiwan, "taiwan", "Taiwan - 台灣"},
};

struct GenderRow {
    FakeGender gender;
    const char *rawValue;
    const char *caseName;
};

constexpr std::array genderRows{GenderRow{FakeGender::Random, "random", "Random"},
                                GenderRow{FakeGender::Male, "male", "Male"},
                                GenderRow{FakeGender::Female, "female", "Female"}};

// The rows stand in the order of the enumerators.
const GenderRow &row(FakeGender gender) {
    return genderRows[std::size_t(gender)];
}
const NameSetRow &row(FakeNameSet nameSet) {
    return nameSetRows()[std::size_t(nameSet)];
}
const CountryRow &row(FakeCountry country) {
    return countryRows[std::size_t(country)];
}

template<class Value, class Rows, class Row>
QList<Value> valuesOf(const Rows &rows, Value Row::*value) {
    QList<Value> values;
    for (const Row &entry : rows)
        values.append(entry.*value);
    return values;
}

} // namespace

const QList<FakeGender> &allGenders() {
    static const QList<FakeGender> all = valuesOf(genderRows, &GenderRow::gender);
    return all;
}

const QList<FakeNameSet> &allNameSets() {
    static const QList<FakeNameSet> all = valuesOf(nameSetRows(), &NameSetRow::nameSet);
    return all;
}

const QList<FakeCountry> &allCountries() {
    static const QList<FakeCountry> all = valuesOf(countryRows, &CountryRow::country);
    return all;
}

QString rawValue(FakeGender gender) {
    return QString::fromUtf8(row(gender).rawValue);
}
QString rawValue(FakeNameSet nameSet) {
    return QString::fromUtf8(row(nameSet).rawValue);
}
QString rawValue(FakeCountry country) {
    return QString::fromUtf8(row(country).rawValue);
}

QString displayText(FakeNameSet nameSet) {
    return QString::fromUtf8(row(nameSet).displayText);
}
QString displayText(FakeCountry country) {
    return QString::fromUtf8(row(country).displayText);
}

QString caseName(FakeGender gender) {
    return QString::fromUtf8(row(gender).caseName);
}
QString pictureName(FakeGender gender) {
    return QStringLiteral("ic_gender_") + rawValue(gender);
}

const QList<FakeCountry> &countries(FakeNameSet nameSet) {
    return row(nameSet).countries;
}

std::optional<FakeGender> genderOf(const QString &rawValue) {
    for (const GenderRow &entry : genderRows)
        if (rawValue == QLatin1String(entry.rawValue)) return entry.gender;
    return std::nullopt;
}

} // namespace orl
