#include "messages.h"

#include "message_texts.h"
#include "random.h"

#include <QDateTime>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

constexpr qint64 second = 1'000'000;
constexpr qint64 hour = 3600 * second;
constexpr qint64 day = 24 * hour;

qint64 floorDivided(qint64 value, qint64 divisor) {
    const qint64 quotient = value / divisor;
    return value % divisor < 0 ? quotient - 1 : quotient;
}

QString digits(int count, Random &random) {
    QString text;
    for (int i = 0; i < count; ++i)
        text += QChar(u'0' + random.below(10));
    return text;
}

QString letters(int count, Random &random) {
    static const QString alphabet = u"ABCDEFGHJKLMNPQRSTUVWXYZ23456789"_s;
    QString text;
    for (int i = 0; i < count; ++i)
        text += random.pick(alphabet);
    return text;
}

QString code(Random &random) {
    switch (random.below(8)) {
    case 0: return digits(4, random);
    case 1: return digits(5, random);
    case 2: return digits(3, random) + u'-' + digits(3, random);
    case 3: return digits(3, random) + u' ' + digits(3, random);
    case 4: return digits(8, random);
    case 5: return digits(7, random);
    default: return digits(6, random);
    }
}

QString oneTimeWord(Random &random) {
    return random.oneIn(2) ? letters(3, random) + u'-' + letters(3, random) : letters(8, random);
}

QString link(const QString &service, Random &random) {
    QString host;
    for (const QChar c : service.toLower()) {
        if (c.unicode() < 128 && c.isLetterOrNumber()) host += c;
    }
    switch (random.below(5)) {
    case 0: return u"https://example.com/v/"_s + letters(6, random);
    case 1: return u"https://go.example.org/"_s + letters(4, random).toLower();
    case 2: return u"https://pay.example.net/?id="_s + digits(5, random) + u"&ref=sms&lang=x"_s;
    case 3: return u"www.example.com/"_s + letters(5, random).toLower();
    default: return u"https://"_s + host + u".example/verify?c="_s + letters(7, random);
    }
}

QString amount(Random &random) {
    return QString::number(1 + random.below(900)) + u'.' + digits(2, random);
}

QString clockTime(Random &random) {
    return u"%1:%2"_s.arg(8 + random.below(9), 2, 10, QChar(u'0'))
        .arg(random.below(12) * 5, 2, 10, QChar(u'0'));
}

/// Values are drawn in a fixed order whether used or not, so a new place in a text moves no other value.
QString filledIn(QString text, const QString &service, const LanguageTexts &language, Random &random) {
    const std::array<std::pair<QString, QString>, 8> places{{
        {u"{service}"_s, service},
        {u"{code}"_s, code(random)},
        {u"{alnum}"_s, oneTimeWord(random)},
        {u"{link}"_s, link(service, random)},
        {u"{minutes}"_s, QString::number(2 + random.below(14))},
        {u"{amount}"_s, amount(random)},
        {u"{name}"_s, QString::fromUtf8(random.pick(language.names))},
        {u"{time}"_s, clockTime(random)},
    }};
    for (const auto &[place, value] : places)
        text.replace(place, value);
    return text;
}

const LanguageTexts &textsIn(const QString &code) {
    const auto &all = languageTexts();
    const auto found = std::ranges::find_if(
        all, [&](const LanguageTexts &t) { return QString::fromUtf8(t.language) == code; });
    return found == all.end() ? all.front() : *found;
}

/// Half of what arrives is in the country's first language, a quarter in one of its others, and the rest from
/// anywhere, as the numbers are used from all over the world.
const LanguageTexts &drawLanguage(const QStringList &languages, Random &random) {
    const int draw = random.below(8);
    if (draw < 4) return textsIn(languages.front());
    if (draw < 6) return textsIn(random.pick(languages));
    return draw == 6 ? textsIn(u"en"_s) : random.pick(languageTexts());
}

QString numericSender(Random &random) {
    return random.oneIn(2) ? digits(5, random) : u"+1202555"_s + u"01"_s + digits(2, random);
}

/// Small indices come up more often, as few services write most of the messages.
const QString &pickSkewed(const std::vector<QString> &list, Random &random) {
    const int size = static_cast<int>(list.size());
    return list[static_cast<std::size_t>(std::min(random.below(size), random.below(size)))];
}

} // namespace

MessageSchedule::MessageSchedule(quint64 seed, const Number &number)
    : seed_(mix(seed, number.digits)), languages_(number.languages) {
    Random random(seed_);
    slotLength_ = number.quiet ? 6 * hour : 7 * second;
    spread_ = slotLength_ * 5 / 7;
    phase_ = static_cast<qint64>(random.next() % static_cast<quint64>(slotLength_));
    pageSize_ = 9 + random.below(4);
    kept_ = number.quiet || number.brief ? 3 + random.below(5) : lastPage * pageSize_;
    for (int i = 0; i < 9; ++i)
        services_.push_back(QString::fromUtf8(random.pick(serviceNames()).name));
    for (int i = 0; i < 3; ++i)
        others_.push_back(QString::fromUtf8(random.pick(genericSenders())));
    others_.push_back(QString::fromUtf8(random.pick(textsIn(languages_.front()).senders)));
    others_.push_back(numericSender(random));
}

qint64 MessageSchedule::arrival(qint64 slot) const {
    const quint64 draw = mix(seed_, static_cast<quint64>(slot));
    return phase_ + slot * slotLength_ + static_cast<qint64>(draw % static_cast<quint64>(spread_));
}

qint64 MessageSchedule::lastSlot(double now) const {
    const auto microseconds = static_cast<qint64>(std::floor(now * second));
    const qint64 slot = floorDivided(microseconds - phase_, slotLength_);
    return arrival(slot) <= microseconds ? slot : slot - 1;
}

ReceivedMessage MessageSchedule::message(qint64 slot) const {
    ReceivedMessage message;
    message.key = mix(seed_ + 1, static_cast<quint64>(slot));
    message.microseconds = arrival(slot);
    Random random(message.key);
    const LanguageTexts &language = drawLanguage(languages_, random);
    const bool fromService = random.below(3) > 0;
    message.sender = pickSkewed(fromService ? services_ : others_, random);
    const QString service =
        fromService ? message.sender : QString::fromUtf8(random.pick(serviceNames()).name);
    const bool isCode = fromService || random.oneIn(3);
    const char *text = random.pick(isCode ? language.codes : language.notices);
    message.text = filledIn(QString::fromUtf8(text), service, language, random);
    return message;
}

std::vector<ReceivedMessage> MessageSchedule::newest(double now, int skip, int count) const {
    std::vector<ReceivedMessage> messages;
    const qint64 last = lastSlot(now);
    for (int i = skip; i < std::min(skip + count, kept_); ++i)
        messages.push_back(message(last - i));
    return messages;
}

QString timeStamp(qint64 microseconds) {
    const qint64 seconds = floorDivided(microseconds, second);
    const QDateTime time = QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
    return time.toString(u"yyyy-MM-dd'T'HH:mm:ss"_s) +
           u".%1Z"_s.arg(microseconds - seconds * second, 6, 10, QChar(u'0'));
}

QString ageInWords(qint64 microseconds) {
    struct Unit {
        qint64 length;
        const char16_t *name;
    };
    static constexpr std::array<Unit, 6> units{{{365 * day, u"year"},
                                                {30 * day, u"month"},
                                                {day, u"day"},
                                                {hour, u"hour"},
                                                {60 * second, u"minute"},
                                                {second, u"second"}}};
    for (const Unit &unit : units) {
        const qint64 count = microseconds / unit.length;
        if (count > 0)
            return u"%1 %2%3 ago"_s.arg(count).arg(QStringView(unit.name)).arg(count == 1 ? u"" : u"s");
    }
    return u"0 seconds ago"_s;
}

} // namespace orl::demo
