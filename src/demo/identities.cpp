#include "identities.h"

#include "identity_names.h"
#include "identity_places.h"
#include "random.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

constexpr const char *mailDomains = "example.com;example.net;example.org;mail.example;post.example";
constexpr const char *bloodTypes = "A+;A-;AB+;AB-;B+;B-;O+;O-";
constexpr const char *sports =
    "Archery;Badminton;Climbing;Fencing;Handball;Judo;Rowing;Sailing;Table tennis;Volleyball";
constexpr const char *userAgents =
    "Mozilla/5.0 (X11; Linux x86_64; rv:115.0) Gecko/20100101 Firefox/115.0|"
    "Mozilla/5.0 (X11; Linux x86_64; rv:128.0) Gecko/20100101 Firefox/128.0|"
    "Mozilla/5.0 (X11; Linux aarch64; rv:128.0) Gecko/20100101 Firefox/128.0|"
    "Mozilla/5.0 (Android 13; Mobile; rv:109.0) Gecko/115.0 Firefox/115.0|"
    "Mozilla/5.0 (Android 14; Mobile; rv:128.0) Gecko/128.0 Firefox/128.0|"
    "Mozilla/5.0 (Windows NT 10.0; Win64; x64; rv:128.0) Gecko/20100101 Firefox/128.0";
constexpr const char *quietWords =
    "amber;birch;cedar;delta;ember;fjord;grove;harbor;iris;juniper;lagoon;maple;"
    "north;orchid;pebble;quartz;river;sable;thistle;willow";

constexpr const char *animals =
    "badger;crane;dormouse;egret;finch;gecko;heron;ibis;lark;lynx;marten;newt;otter;plover;robin;stoat";

/// How people look. Men and women wear their hair differently, and where nearly everybody's is black, so is
/// everybody's here.
struct Looks {
    const char *eyes;
    const char *maleHair;
    const char *femaleHair;
};
constexpr Looks mixedLooks{"Amber;Blue;Brown;Gray;Green;Hazel",
                           "Curly, black;Shaved;Short, auburn;Short, brown;Straight, black;Wavy, blond",
                           "Bobbed, brown;Braided, blond;Curly, black;Long, auburn;Long, brown;Wavy, blond"};
constexpr Looks darkLooks{
    "Black;Brown;Dark brown;Hazel",
    "Curly, black;Shaved;Short, black;Short, dark brown;Straight, black;Wavy, black",
    "Bobbed, black;Braided, black;Curly, black;Long, black;Long, dark brown;Straight, black"};

const Looks &looksOf(const NameRow &names) {
    for (const char *dark : {"arabic", "Bengali", "persian", "indonesian", "japanese", "kazakh", "korean",
                             "nepali", "vietnamese", "chinese"})
        if (QLatin1String(names.nameSet) == QLatin1String(dark)) return darkLooks;
    return mixedLooks;
}

/// The choices of one person. Where the person served before took from one half of a list, this one takes
/// from the other, so that no two in a row share a value.
class Draw {
public:
    Draw(quint64 seed, quint64 number) : random_(mix(seed, number)), half_(static_cast<int>(number % 2)) {}

    /// 0 <= result < bound; bound > 1.
    int below(int bound) {
        const int lower = bound / 2;
        return half_ == 0 ? random_.below(lower) : lower + random_.below(bound - lower);
    }

    QString from(const char *list, QChar separator = u';') {
        const QStringList entries = QString::fromUtf8(list).split(separator);
        return entries[below(static_cast<int>(entries.size()))];
    }

    /// "#" becomes a digit; the last one is even or odd in turn.
    QString digits(QString pattern) {
        qsizetype last = pattern.lastIndexOf(u'#');
        for (qsizetype i = 0; i < pattern.size(); ++i)
            if (pattern[i] == u'#')
                pattern[i] = QChar(u'0' + (i == last ? 2 * random_.below(5) + half_ : random_.below(10)));
        return pattern;
    }

    Random &free() { return random_; }

private:
    Random random_;
    int half_;
};

QString formOf(const QString &surname, bool female) {
    return surname.contains(u'/') ? surname.section(u'/', female ? 1 : 0, female ? 1 : 0) : surname;
}

/// A Latin name as the front of a mail address; empty for a name in another script.
QString asciiOf(const QString &name) {
    static const QHash<QChar, QString> letters{{u'ß', u"ss"_s}, {u'æ', u"ae"_s}, {u'ø', u"o"_s},
                                               {u'đ', u"d"_s},  {u'ð', u"d"_s},  {u'þ', u"th"_s},
                                               {u'ł', u"l"_s},  {u'ı', u"i"_s}};
    QString kept;
    for (const QChar c : name.toLower().normalized(QString::NormalizationForm_D)) {
        if (c.isMark() || c == u' ') continue;
        const QString letter = letters.value(c, QString(c));
        if (letter[0] < u'a' || letter[0] > u'z') return {};
        kept += letter;
    }
    return kept;
}

double rounded(double number, int decimals) {
    return QString::number(number, 'f', decimals).toDouble();
}

struct Person {
    QString given;
    QString surname;
    QString mother; ///< her maiden name
    bool female = false;
};

Person drawPerson(Draw &draw, const NameRow &names, bool female) {
    const QString given = draw.from(female ? names.female : names.male);
    const QString surname = draw.from(names.surnames);
    QString mother = draw.from(names.surnames);
    // Nobody's mother was born with the name that the family has.
    const QStringList all = QString::fromUtf8(names.surnames).split(u';');
    if (mother == surname) {
        const qsizetype half = all.size() / 2;
        const qsizetype at = all.indexOf(surname);
        mother = all[at < half ? (at + 1) % half : half + (at + 1 - half) % (all.size() - half)];
    }
    return {given, formOf(surname, female), formOf(mother, true), female};
}

/// A surname that stands alone begins with a capital: "van der Meer" becomes "Van der Meer".
QString alone(QString surname) {
    surname[0] = surname[0].toTitleCase(); // Georgian has capitals, and begins no word with one
    return surname;
}

QString fullName(const Person &person, const NameRow &names) {
    QString name;
    for (const char *c = names.format; *c; ++c)
        name += *c == 'g' ? person.given : *c == 's' ? person.surname : QString(QLatin1Char(*c));
    return name;
}

void putMail(QJsonObject &json, Draw &draw, const Person &person) {
    const QString given = asciiOf(person.given);
    const QString surname = asciiOf(person.surname);
    const QString words = draw.from(quietWords) + u'.' + draw.from(animals);
    const bool latin = !given.isEmpty() && !surname.isEmpty();
    json[u"email_u"_s] = draw.digits((latin ? given + u'.' + surname : words) + u"##"_s);
    json[u"email_d"_s] = draw.from(mailDomains);
    json[u"username"_s] = draw.digits(draw.from(quietWords) + draw.from(animals) + u"##"_s);
}

/// Where somebody lives, and the numbers of that town.
void putAddress(QJsonObject &json, Draw &draw, const PlaceRow &place) {
    const QStringList cities = QString::fromUtf8(place.cities).split(u';');
    const int at = draw.below(static_cast<int>(cities.size()));
    const QStringList city = cities[at].split(u'|');
    QString address = QString::fromUtf8(place.address);
    address.replace(u'/', u'\n');
    address.replace(u"{n}"_s, QString::number(1 + draw.below(98)));
    address.replace(u"{street}"_s, draw.from(place.streets));
    address.replace(u"{city}"_s, city[0]);
    address.replace(u"{zip}"_s, draw.digits(city[1]));
    address.replace(u"{region}"_s, city[4]);
    json[u"address"_s] = address;
    // Within two kilometres of the middle of the town.
    constexpr int spread = 2000; // of a hundred thousandth of a degree
    json[u"latitude"_s] = rounded(city[2].toDouble() + (draw.below(2 * spread) - spread) / 1e5, 5);
    json[u"longitude"_s] = rounded(city[3].toDouble() + (draw.below(2 * spread) - spread) / 1e5, 5);
    const QString phone = QString::fromUtf8(place.phones).split(u';')[at];
    const QString home = draw.digits(phone);
    QString work = draw.digits(phone);
    while (work == home)
        work = draw.digits(phone);
    json[u"phone_h"_s] = home;
    json[u"phone_w"_s] = work;
}

/// Grown up, and the birthday is a day of the calendar.
void putBirth(QJsonObject &json, Draw &draw, double now) {
    const QDate today = QDateTime::fromMSecsSinceEpoch(qint64(now * 1000), Qt::UTC).date();
    constexpr int youngest = 18;
    constexpr int span = 60;
    json[u"birth_data"_s] =
        today.addYears(-youngest - draw.below(span)).addDays(-draw.free().below(365)).toString(Qt::ISODate);
}

/// Centimetres and kilograms that one body can have.
void putBody(QJsonObject &json, Draw &draw, const Looks &looks, bool female) {
    const double height = (female ? 152 : 164) + draw.below(300) / 10.0;
    const double index = 19 + draw.below(100) / 10.0; // kilograms per square metre
    json[u"height"_s] = rounded(height, 1);
    json[u"weight"_s] = rounded(index * height * height / 1e4, 1);
    json[u"blood"_s] = draw.from(bloodTypes);
    json[u"eye"_s] = draw.from(looks.eyes);
    json[u"hair"_s] = draw.from(female ? looks.femaleHair : looks.maleHair);
}

QJsonObject person(const NameRow &names, const PlaceRow &place, bool female, Draw draw, double now) {
    const Person drawn = drawPerson(draw, names, female);
    QJsonObject json{{u"name"_s, fullName(drawn, names)}, {u"maiden_name"_s, alone(drawn.mother)}};
    putAddress(json, draw, place);
    putBirth(json, draw, now);
    putMail(json, draw, drawn);
    json[u"useragent"_s] = draw.from(userAgents, u'|');
    json[u"company"_s] =
        QString::fromUtf8(place.company).replace(u"{s}"_s, alone(formOf(draw.from(names.surnames), false)));
    putBody(json, draw, looksOf(names), female);
    json[u"sport"_s] = draw.from(sports);
    return json;
}

} // namespace

Reply Identities::answer(const Request &request) const {
    const QStringList path = request.path.split(u'/');
    if (path.size() != 3 || (path[2] != u"male"_s && path[2] != u"female"_s)) return notFoundPage();
    // A country has dashes of its own; no name set has.
    const QString nameSet = path[1].section(u'-', 0, 0);
    const QString country = path[1].section(u'-', 1);
    const NameRow *names = nameRow(nameSet, country);
    const PlaceRow *place = placeRow(country, nameSet);
    if (!names || !place) return notFoundPage();
    // Which half of the lists comes first is left to the time: otherwise each run began with the same one.
    const auto served = served_.try_emplace(request.path, quint64(request.now) % 2).first;
    const Draw draw(mix(seed_, request.path), quint64(request.now) / 2 * 2 + served->second++);
    const bool female = path[2] == u"female"_s;
    return {200, "application/json",
            QJsonDocument(person(*names, *place, female, draw, request.now)).toJson(QJsonDocument::Compact)};
}

} // namespace orl::demo
