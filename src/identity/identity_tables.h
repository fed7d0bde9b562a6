#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace orl {

/// What may be asked for. Random is a request, not a result: an identity is Male or Female.
enum class FakeGender { Random, Male, Female };

/// In the order of the pickers, here and below.
enum class FakeNameSet {
    English,
    Spanish,
    French,
    Arabic,
    Bulgarian,
    Bengali,
    Czech,
    Danish,
    German,
    Greek,
    Persian,
    Finnish,
    Hungarian,
    Armenian,
    Indonesian,
    Icelandic,
    Italian,
    Japanese,
    Georgian,
    Kazakh,
    Korean,
    Latvian,
    Montenegro,
    Nepali,
    Dutch,
    Norwegian,
    Polish,
    Portuguese,
    Romanian,
    Russian,
    Slovak,
    Slovenian,
    Serbian,
    Swedish,
    Turkish,
    Ukrainian,
    Vietnamese,
    Chinese
};

enum class FakeCountry {
    UnitedStates,
    Jordan,
    Bulgaria,
    Bangladesh,
    CzechRepublic,
    Denmark,
    Austria,
    Germany,
    Greece,
    Australia,
    Canada,
    UnitedKingdom,
    NewZealand,
    Philippines,
    Uganda,
    SouthAfrica,
    Argentina,
    Spain,
    Peru,
    Venezuela,
    Iran,
    Finland,
    Belgium,
    France,
    Hungary,
    Armenia,
    Indonesia,
    Iceland,
    Italy,
    Japan,
    Georgia,
    Kazakhstan,
    SouthKorea,
    Latvia,
    Montenegrin,
    Nepal,
    Netherlands,
    Norway,
    Poland,
    Brazil,
    Portugal,
    Moldova,
    Romania,
    Russia,
    Slovakia,
    Slovenia,
    CyrillicSerbia,
    LatinSerbia,
    Serbia,
    Sweden,
    Turkey,
    Ukraine,
    Vietnam,
    China,
    Taiwan
};

// Each of the three is a closed vocabulary: all its values in order, and for a value the text that the
// identity host and stored records know it by.

const QList<FakeGender> &allGenders();
const QList<FakeNameSet> &allNameSets();
const QList<FakeCountry> &allCountries();

QString rawValue(FakeGender gender);
QString rawValue(FakeNameSet nameSet);
QString rawValue(FakeCountry country);

/// What pickers and labels show.
QString displayText(FakeNameSet nameSet);
QString displayText(FakeCountry country);

QString caseName(FakeGender gender);    ///< "Random", "Male", "Female"
QString pictureName(FakeGender gender); ///< of the picker's segment

/// The countries that go with a name set, never none. The first one is chosen with it.
const QList<FakeCountry> &countries(FakeNameSet nameSet);

std::optional<FakeGender> genderOf(const QString &rawValue);

} // namespace orl
