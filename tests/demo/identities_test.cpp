#include "client.h"
#include "demo/identities.h"

#include <QDate>
#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <cmath>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace orl::demo {
namespace {

constexpr double now = 1'795'000'000;

struct NameLaw {
    const char *nameSet;
    QChar::Script script;
};

const NameLaw nameLaws[] = {
    {"english", QChar::Script_Latin},       {"spanish", QChar::Script_Latin},
    {"french", QChar::Script_Latin},        {"arabic", QChar::Script_Arabic},
    {"bulgarian", QChar::Script_Cyrillic},  {"Bengali", QChar::Script_Bengali},
    {"czech", QChar::Script_Latin},         {"danish", QChar::Script_Latin},
    {"german", QChar::Script_Latin},        {"greek", QChar::Script_Greek},
    {"persian", QChar::Script_Arabic},      {"finnish", QChar::Script_Latin},
    {"hungarian", QChar::Script_Latin},     {"armenian", QChar::Script_Armenian},
    {"indonesian", QChar::Script_Latin},    {"icelandic", QChar::Script_Latin},
    {"italian", QChar::Script_Latin},       {"japanese", QChar::Script_Han},
    {"georgian", QChar::Script_Georgian},   {"kazakh", QChar::Script_Cyrillic},
    {"korean", QChar::Script_Hangul},       {"latvian", QChar::Script_Latin},
    {"montenegro", QChar::Script_Cyrillic}, {"nepali", QChar::Script_Devanagari},
    {"dutch", QChar::Script_Latin},         {"norwegian", QChar::Script_Latin},
    {"polish", QChar::Script_Latin},        {"portuguese", QChar::Script_Latin},
    {"romanian", QChar::Script_Latin},      {"russian", QChar::Script_Cyrillic},
    {"slovak", QChar::Script_Latin},        {"slovenian", QChar::Script_Latin},
    {"serbian", QChar::Script_Cyrillic},    {"swedish", QChar::Script_Latin},
    {"turkish", QChar::Script_Latin},       {"ukrainian", QChar::Script_Cyrillic},
    {"vietnamese", QChar::Script_Latin},    {"chinese", QChar::Script_Han},
};

/// What holds for whoever lives there: the script of the town and the street, the shape of postal codes and
/// phone numbers, and the corners of the country.
struct CountryLaw {
    const char *country;
    QChar::Script script;
    const char *postal;
    const char *phone;
    double south, north, west, east;
};

const CountryLaw countryLaws[] = {
    {"united-states", QChar::Script_Latin, ", [A-Z]{2} \\d{5}$", "\\(\\d{3}\\) 555-01\\d\\d", 24, 50, -125,
     -66},
    {"jordan", QChar::Script_Arabic, " \\d{5}$", "0\\d 000 00\\d\\d", 29, 33.5, 34, 40},
    {"bulgaria", QChar::Script_Cyrillic, "\\n\\d{4} ", "0[\\d ]{8,9}\\d", 41, 44.5, 22, 29},
    {"bangladesh", QChar::Script_Bengali, " \\d{4}$", "0\\d{1,3}-\\d{6,8}", 20, 27, 88, 93},
    {"czech-republic", QChar::Script_Latin, "\\n\\d{3} \\d\\d ", "\\d{3} 000 0\\d\\d", 48, 51.5, 12, 19},
    {"denmark", QChar::Script_Latin, "\\n\\d{4} ", "\\d\\d \\d\\d \\d\\d \\d\\d", 54, 58, 8, 13},
    {"austria", QChar::Script_Latin, "\\n\\d{4} ", "0\\d{1,3} 0[\\d ]{7,8}", 46, 49.1, 9, 17.5},
    {"germany", QChar::Script_Latin, "\\n\\d{5} ", "0(30 23125 |40 66969 |221 4710 |89 99998 )\\d{3}", 47,
     55.2, 5, 15.5},
    {"greece", QChar::Script_Greek, "\\n\\d{3} \\d\\d ", "2\\d{2,4} 0[\\d ]{5,8}", 34, 42, 19, 30},
    {"australia", QChar::Script_Latin, " [A-Z]{2,3} \\d{4}$", "\\(0[2378]\\) 5550 \\d{4}", -44, -10, 112,
     154},
    {"canada", QChar::Script_Latin, "[A-Z]\\d[A-Z] \\d[A-Z]\\d$", "\\d{3}-555-01\\d\\d", 42, 70, -141, -52},
    {"united-kingdom", QChar::Script_Latin, "\\n[A-Z]{2}\\d \\d[A-Z]{2}$",
     "(0113 496 0|0117 496 0|0131 496 0|01632 960)\\d{3}", 49, 61, -8, 2},
    {"new-zealand", QChar::Script_Latin, " \\d{4}$", "0\\d 000 0\\d{3}", -48, -34, 166, 179},
    {"philippines", QChar::Script_Latin, "\\n\\d{4} ", "\\(0\\d{1,2}\\) 0[\\d ]{5,8}", 4, 21, 116, 127},
    {"uganda", QChar::Script_Latin, "\\nP\\.O\\. Box \\d{3}\\n", "04\\d\\d 000 0\\d\\d", -2, 5, 29, 36},
    {"south-africa", QChar::Script_Latin, "\\n\\d{4}$", "0\\d\\d 000 00\\d\\d", -35, -22, 16, 33},
    {"argentina", QChar::Script_Latin, "\\n[A-Z]\\d{4}[A-Z]{3} ", "0\\d{3} 000-00\\d\\d", -56, -21, -74, -53},
    {"spain", QChar::Script_Latin, "\\n\\d{5} ", "9\\d\\d 000 \\d{3}", 35, 44, -10, 5},
    {"peru", QChar::Script_Latin, " \\d{5}$", "0\\d{1,2} [\\d ]{7,8}", -19, 0, -82, -68},
    {"venezuela", QChar::Script_Latin, " \\d{4}, ", "02\\d\\d-000\\.00\\.\\d\\d", 0, 13, -74, -59},
    {"iran", QChar::Script_Arabic, "\\n\\d{5}-\\d{5}$", "0\\d\\d 0000 00\\d\\d", 25, 40, 44, 64},
    {"finland", QChar::Script_Latin, "\\n\\d{5} ", "0\\d{1,2} 000 00\\d\\d", 59, 71, 20, 32},
    {"belgium", QChar::Script_Latin, "\\n\\d{4} ", "0[\\d ]{10,11}", 49, 52, 2, 7},
    {"france", QChar::Script_Latin, "\\n\\d{5} ", "(02 61 91|03 53 01|04 65 71|05 36 49) \\d\\d \\d\\d", 41,
     52, -6, 10},
    {"hungary", QChar::Script_Latin, "\\n\\d{4}$", "06 \\d{1,2} 000 0\\d{2,3}", 45, 49, 16, 23},
    {"armenia", QChar::Script_Armenian, "\\n\\d{4} ", "0\\d{2,3} \\d{1,2}-\\d\\d-\\d\\d", 38, 42, 43, 47},
    {"indonesia", QChar::Script_Latin, " \\d{5}$", "\\(0\\d{2,3}\\) 0[\\d ]{6,7}", -11, 6, 95, 141},
    {"iceland", QChar::Script_Latin, "\\n\\d{3} ", "000 0\\d{3}", 63, 67, -25, -13},
    {"italy", QChar::Script_Latin, "\\n\\d{5} .*\\([A-Z]{2}\\)$", "0\\d{2,3} 0[\\d ]{6,7}", 36, 47.1, 6, 19},
    {"japan", QChar::Script_Han, "^〒\\d{3}-\\d{4}\\n", "0\\d\\d-000-00\\d\\d", 24, 46, 123, 146},
    {"georgia", QChar::Script_Georgian, "\\n\\d{4} ", "0\\d{2,3} [\\d ]{8,9}", 41, 43.6, 40, 47},
    {"kazakhstan", QChar::Script_Cyrillic, " \\d{6}$", "8 \\(7\\d{2,3}\\) [\\d-]{8,9}", 40, 56, 46, 88},
    {"south-korea", QChar::Script_Hangul, "\\n\\d{5}$", "0\\d\\d-000-00\\d\\d", 33, 39, 125, 130},
    {"latvia", QChar::Script_Latin, ", LV-\\d{4}$", "60 000 \\d{3}", 55, 58.1, 20, 29},
    {"montenegrin", QChar::Script_Cyrillic, "\\n\\d{5} ", "0\\d\\d 000 0\\d\\d", 41, 44, 18, 21},
    {"nepal", QChar::Script_Devanagari, " \\d{5}$", "0\\d{1,2}-0+\\d\\d", 26, 31, 80, 89},
    {"netherlands", QChar::Script_Latin, "\\n\\d{4} [A-Z]{2} ", "0\\d\\d 000 00\\d\\d", 50, 54, 3, 8},
    {"norway", QChar::Script_Latin, "\\n\\d{4} ", "\\d\\d \\d\\d \\d\\d \\d\\d", 57, 72, 4, 32},
    {"poland", QChar::Script_Latin, "\\n\\d\\d-\\d{3} ", "\\d\\d 000 00 \\d\\d", 49, 55, 14, 25},
    {"brazil", QChar::Script_Latin, "\\n\\d{5}-\\d{3}$", "\\(\\d\\d\\) 0000-00\\d\\d", -34, 6, -74, -34},
    {"portugal", QChar::Script_Latin, "\\n\\d{4}-\\d{3} ", "2\\d\\d 000 0\\d\\d", 36, 43, -10, -6},
    {"moldova", QChar::Script_Latin, "\\nMD-\\d{4} ", "0\\d{2,3} \\d{2,3}-0\\d\\d", 45, 49, 26, 31},
    {"romania", QChar::Script_Latin, "\\n\\d{6} ", "02\\d\\d 000 0\\d\\d", 43, 49, 20, 30},
    {"russia", QChar::Script_Cyrillic, "\\n\\d{6}$", "8 \\(\\d{3,4}\\) [\\d-]{8,9}", 41, 78, 19, 180},
    {"slovakia", QChar::Script_Latin, "\\n\\d{3} \\d\\d ", "0\\d\\d/000 00 \\d\\d", 47, 50, 16, 23},
    {"slovenia", QChar::Script_Latin, "\\n\\d{4} ", "0\\d 000 00 \\d\\d", 45, 47, 13, 17},
    {"cyrillic-serbia", QChar::Script_Cyrillic, "\\n\\d{5} ", "0\\d\\d 000 0\\d{2,3}", 42, 46.2, 18, 23},
    {"latin-serbia", QChar::Script_Latin, "\\n\\d{5} ", "0\\d\\d 000 0\\d{2,3}", 42, 46.2, 18, 23},
    {"serbia", QChar::Script_Cyrillic, "\\n\\d{5} ", "0\\d\\d 000 0\\d\\d", 42, 46.2, 18, 23},
    {"sweden", QChar::Script_Latin, "\\n\\d{3} \\d\\d ",
     "(08-465 004 |031-390 06 |040-628 04 |0980-319 2)\\d\\d", 55, 70, 11, 25},
    {"turkey", QChar::Script_Latin, "\\n\\d{5} ", "\\(0\\d{3}\\) 000 00 \\d\\d", 36, 43, 26, 45},
    {"ukraine", QChar::Script_Cyrillic, "\\n\\d{5}$", "\\(0\\d{2,3}\\) [\\d-]{8,9}", 44, 53, 22, 41},
    {"vietnam", QChar::Script_Latin, " \\d{6}$", "02\\d{1,2} 0[\\d ]{5,8}", 8, 24, 102, 110},
    {"china", QChar::Script_Han, "\\n\\d{6}$", "0\\d{2,3}-000000\\d\\d", 18, 54, 73, 135},
    {"taiwan", QChar::Script_Han, "^\\d{3}\\n",
     "\\(0\\d\\) [\\d]{3,4}-0[\\d]{3}|\\(0\\d\\) \\d{3}-0\\d\\d\\d", 21, 26, 119, 123},
};

QJsonObject identityOf(const Identities &host, const QString &path) {
    const Reply reply = host.answer({path, now});
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.type, "application/json");
    return QJsonDocument::fromJson(reply.body).object();
}

/// Whether all letters are of the script, and there is one.
bool isWrittenIn(const QString &text, QChar::Script script) {
    bool any = false;
    for (const QChar c : text) {
        if (!c.isLetter()) continue;
        if (c.script() != script) return false;
        any = true;
    }
    return any;
}

bool matches(const char *pattern, const QString &text) {
    return QRegularExpression(QString::fromUtf8(pattern)).match(text).hasMatch();
}

bool isPhone(const char *pattern, const QString &text) {
    return matches(("^(" + QByteArray(pattern) + ")$").constData(), text);
}

/// The first law of a person that is broken; empty for none.
std::string brokenPersonLaw(const QJsonObject &json, QChar::Script nameScript) {
    if (!isWrittenIn(json[u"name"_s].toString(), nameScript)) return "script of the name";
    const QString maiden = json[u"maiden_name"_s].toString();
    if (!isWrittenIn(maiden, nameScript)) return "script of the maiden name";
    if (maiden[0] != maiden[0].toTitleCase()) return "capital of the maiden name";
    const QDate today = QDateTime::fromMSecsSinceEpoch(qint64(now * 1000), Qt::UTC).date();
    const QDate birth = QDate::fromString(json[u"birth_data"_s].toString(), u"yyyy-MM-dd"_s);
    if (!birth.isValid() || birth.addYears(18) > today || birth.addYears(80) < today) return "birthday";
    // Of an adult in centimetres and kilograms; inches or pounds would be far outside.
    const double height = json[u"height"_s].toDouble();
    const double index = json[u"weight"_s].toDouble() / (height * height / 1e4);
    if (height < 150 || height > 200) return "height";
    if (index < 18.5 || index > 30) return "weight for the height";
    if (!matches("^(A|B|AB|O)[+-]$", json[u"blood"_s].toString())) return "blood";
    if (!matches("^[a-z0-9.]{3,40}$", json[u"email_u"_s].toString())) return "mail";
    if (!matches("^(example\\.(com|net|org)|[a-z]+\\.example)$", json[u"email_d"_s].toString()))
        return "mail domain";
    if (!matches("^Mozilla/5.0 \\(.*\\) .*\\d$", json[u"useragent"_s].toString())) return "useragent";
    for (const char *key : {"username", "company", "eye", "hair", "sport"})
        if (json[QLatin1String(key)].toString().isEmpty()) return key;
    return {};
}

std::string brokenPlaceLaw(const QJsonObject &json, const CountryLaw &law) {
    const QString address = json[u"address"_s].toString();
    if (!matches(law.postal, address)) return "postal code";
    if (address.contains(u'#') || address.contains(u'{')) return "address";
    QString words = address;
    words.remove(QRegularExpression(u"P\\.O\\. Box"_s));
    if (!isWrittenIn(words.remove(u'º'), law.script)) return "script of the address";
    for (const char *key : {"phone_h", "phone_w"})
        if (!isPhone(law.phone, json[QLatin1String(key)].toString())) return key;
    const double latitude = json[u"latitude"_s].toDouble();
    const double longitude = json[u"longitude"_s].toDouble();
    if (latitude < law.south || latitude > law.north) return "latitude";
    if (longitude < law.west || longitude > law.east) return "longitude";
    return {};
}

QChar::Script nameScript(const NameLaw &name, const CountryLaw &country) {
    const bool latinSerbian =
        name.nameSet == QLatin1String("serbian") && country.country == QLatin1String("latin-serbia");
    return latinSerbian ? QChar::Script_Latin : name.script;
}

} // namespace

TEST(IdentitiesTest, EveryNameSetAndCountryKeepsItsLaws) {
    const Identities host(1);
    for (const NameLaw &name : nameLaws) {
        for (const CountryLaw &country : countryLaws) {
            for (const char *gender : {"male", "female"}) {
                const QString path = u"/%1-%2/%3"_s.arg(
                    QLatin1String(name.nameSet), QLatin1String(country.country), QLatin1String(gender));
                const QJsonObject json = identityOf(host, path);
                ASSERT_EQ(json.size(), 19) << path.toStdString();
                EXPECT_EQ(brokenPersonLaw(json, nameScript(name, country)), "")
                    << path.toStdString() << QJsonDocument(json).toJson().toStdString();
                EXPECT_EQ(brokenPlaceLaw(json, country), "")
                    << path.toStdString() << QJsonDocument(json).toJson().toStdString();
            }
        }
    }
}

// Over every entry of a table, and not only over those that the first answers use.
TEST(IdentitiesTest, ManyPeopleOfEachCountryKeepItsLaws) {
    const Identities host(2);
    for (const CountryLaw &country : countryLaws) {
        const QString path = u"/english-%1/female"_s.arg(QLatin1String(country.country));
        for (int i = 0; i < 60; ++i) {
            const QJsonObject json = identityOf(host, path);
            ASSERT_EQ(brokenPlaceLaw(json, country), "")
                << path.toStdString() << QJsonDocument(json).toJson().toStdString();
        }
    }
    for (const NameLaw &name : nameLaws) {
        const QString path = u"/%1-jordan/male"_s.arg(QLatin1String(name.nameSet));
        for (int i = 0; i < 60; ++i) {
            const QJsonObject json = identityOf(host, path);
            ASSERT_EQ(brokenPersonLaw(json, name.script), "")
                << path.toStdString() << QJsonDocument(json).toJson().toStdString();
        }
    }
}

TEST(IdentitiesTest, PeopleInARowDifferInEveryValue) {
    const Identities host(3);
    for (const NameLaw &name : nameLaws) {
        const QString path = u"/%1-france/female"_s.arg(QLatin1String(name.nameSet));
        QJsonObject before = identityOf(host, path);
        for (int i = 0; i < 30; ++i) {
            const QJsonObject next = identityOf(host, path);
            for (const QString &key : before.keys())
                ASSERT_NE(next[key], before[key]) << path.toStdString() << ' ' << key.toStdString();
            before = next;
        }
    }
}

// Of people who share the family's table, the woman carries her form of the name.
TEST(IdentitiesTest, SurnamesFollowTheGender) {
    const Identities host(4);
    for (int i = 0; i < 40; ++i) {
        EXPECT_TRUE(
            identityOf(host, u"/czech-czech-republic/female"_s)[u"name"_s].toString().endsWith(u"ová"_s));
        EXPECT_FALSE(
            identityOf(host, u"/czech-czech-republic/male"_s)[u"name"_s].toString().endsWith(u"ová"_s));
        EXPECT_TRUE(
            identityOf(host, u"/icelandic-iceland/female"_s)[u"name"_s].toString().endsWith(u"dóttir"_s));
        EXPECT_FALSE(identityOf(host, u"/english-canada/male"_s)[u"name"_s].toString().contains(u'/'));
    }
}

TEST(IdentitiesTest, HairAndEyesFitThePerson) {
    const Identities host(5);
    for (const char *nameSet : {"japanese", "nepali", "vietnamese", "arabic"}) {
        for (int i = 0; i < 30; ++i) {
            const QJsonObject json = identityOf(host, u"/%1-japan/female"_s.arg(QLatin1String(nameSet)));
            EXPECT_TRUE(matches("black|dark brown", json[u"hair"_s].toString()))
                << nameSet << ' ' << json[u"hair"_s].toString().toStdString();
            EXPECT_FALSE(matches("Amber|Blue|Gray|Green", json[u"eye"_s].toString()))
                << nameSet << ' ' << json[u"eye"_s].toString().toStdString();
        }
    }
    for (int i = 0; i < 30; ++i)
        EXPECT_NE(identityOf(host, u"/danish-denmark/female"_s)[u"hair"_s], u"Shaved"_s);
}

// A program that is started anew asks for its first person again.
TEST(IdentitiesTest, FirstPersonsComeFromTheWholeOfTheLists) {
    const QString path = u"/danish-denmark/male"_s;
    QSet<QString> names;
    for (int second = 0; second < 200; ++second) {
        const Reply reply = Identities(6).answer({path, now + second});
        names << QJsonDocument::fromJson(reply.body).object()[u"name"_s].toString().section(u' ', 0, 0);
    }
    EXPECT_EQ(names.size(), 8) << "of eight given names";
}

TEST(IdentitiesTest, UnknownAddressesHaveNoIdentity) {
    const PlayedHost played;
    for (const char *path :
         {"/identity/english-united-states/random", "/identity/english-united-states",
          "/identity/English-united-states/male", "/identity/bengali-bangladesh/male",
          "/identity/english-atlantis/male", "/identity/english-united-states/male/", "/identity/"})
        EXPECT_EQ(played.get(QLatin1String(path)).status, 404) << path;
}

TEST(IdentitiesTest, FailsOnDemand) {
    PlayedHost played;
    const QString path = u"/identity/Bengali-bangladesh/male"_s;
    EXPECT_EQ(QJsonDocument::fromJson(played.get(path).body).object().size(), 19);
    played.host.setFault(u"/identity"_s, Fault::Kind::MissingKey);
    EXPECT_EQ(QJsonDocument::fromJson(played.get(path).body).object().size(), 18);
    played.host.setFault(u"/identity"_s, Fault::Kind::NotFound);
    EXPECT_EQ(played.get(path).status, 404);
    played.host.setFault(u"/identity"_s, Fault::Kind::Dead);
    EXPECT_EQ(played.get(path).status, 0);
    played.host.clearFaults();
    EXPECT_EQ(played.get(path).status, 200);
}

} // namespace orl::demo
