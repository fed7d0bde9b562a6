#include "client.h"
#include "demo/messages.h"

#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

/// The page without comments, scripts, styles and text fields: what is left between "<" and ">" are tags.
QString withoutText(QString page) {
    static const QRegularExpression quoted(u"<!--.*?-->|<(script|style|textarea|title)\\b[^>]*>.*?</\\1>"_s,
                                           QRegularExpression::DotMatchesEverythingOption |
                                               QRegularExpression::CaseInsensitiveOption);
    return page.remove(quoted);
}

/// The class attributes of all elements, in order.
QStringList classAttributes(const QString &page) {
    static const QRegularExpression tag(u"<([a-zA-Z][a-zA-Z0-9]*)((?:\"[^\"]*\"|'[^']*'|[^'\">])*)>"_s);
    static const QRegularExpression classes(u"\\sclass=(?:\"([^\"]*)\"|'([^']*)'|([^\\s>]*))"_s);
    QStringList attributes;
    const QString markup = withoutText(page);
    for (auto it = tag.globalMatch(markup); it.hasNext();) {
        const auto match = it.next();
        const auto value = classes.match(match.captured(2));
        attributes << value.captured(1) + value.captured(2) + value.captured(3);
    }
    return attributes;
}

/// How many elements a lookup finds: of several words it wants the whole attribute, of one any word of it.
qsizetype count(const QStringList &attributes, const QString &name) {
    return std::ranges::count_if(attributes, [&](const QString &value) {
        return value.compare(name, Qt::CaseInsensitive) == 0 ||
               value.split(u' ').contains(name, Qt::CaseInsensitive);
    });
}

qsizetype count(const QString &page, const QString &name) {
    return count(classAttributes(page), name);
}

const QString messageClass = u"shadow-sm bg-light rounded border-start border-info border-5"_s;

QStringList stamps(const QString &page) {
    static const QRegularExpression stamp(u"<(?:time|div)[^>]* data-created=\"([^\"]*)\">"_s);
    QStringList list;
    const QString markup = withoutText(page);
    for (auto it = stamp.globalMatch(markup); it.hasNext();)
        list << it.next().captured(1);
    return list;
}

class PagesTest : public testing::Test {
protected:
    const Catalogue catalogue{1};
    const DemoCountry &country = *catalogue.countryBySlug(u"germany"_s);
    PlayedHost played;

    static QString numberPath(const Number &number) { return u"/first/en/numbers/"_s + number.digits; }
    QString secondPath() const {
        return u"/second/%1/%2/page1"_s.arg(country.secondPath, country.second.front().digits);
    }
};

TEST_F(PagesTest, EveryKindOfPageIsAsLargeAsARealOneAndWellEncoded) {
    QStringList paths{u"/first/en"_s, u"/second/germany/"_s, secondPath(),
                      u"/first/en/countries/antarctica"_s};
    for (const DemoCountry &any : catalogue.countries()) {
        paths << u"/first/en/countries/"_s + any.slug << numberPath(any.first.front())
              << numberPath(any.first.back()) << numberPath(any.first.front()) + u"/2"_s;
    }
    for (const QString &path : paths) {
        const Answer answer = played.get(path);
        SCOPED_TRACE(qPrintable(path));
        EXPECT_EQ(answer.status, 200);
        EXPECT_EQ(answer.announced(), answer.body.size());
        EXPECT_GE(answer.body.size(), 60'000);
        EXPECT_LE(answer.body.size(), 120'000);
        EXPECT_TRUE(answer.body.startsWith("<!doctype html>"));
        QStringDecoder decoder(QStringDecoder::Utf8);
        const QString text = decoder(answer.body);
        EXPECT_FALSE(decoder.hasError());
        EXPECT_FALSE(text.contains(u'@' + u"TITLE@"_s) || text.contains(u"%1"_s));
    }
}

TEST_F(PagesTest, ListPageNamesEveryCountryOnceInsideTheMainContent) {
    const QString page = played.text(u"/first/en"_s);
    ASSERT_EQ(count(page, u"container-fluid mt-3 p-0"_s), 1);
    const QString main =
        page.mid(page.lastIndexOf(u"<div class=\"container-fluid mt-3 p-0\">"_s)).section(u"<aside"_s, 0, 0);
    const auto cells = count(main, u"col-sm-12 col-md-6 col-lg-4"_s);
    EXPECT_EQ(cells, static_cast<qsizetype>(catalogue.countries().size()));
    EXPECT_EQ(count(main, u"placeholder h5"_s), cells);
    for (const DemoCountry &any : catalogue.countries())
        EXPECT_EQ(main.count(QRegularExpression(u"/en/countries/%1[\"' ]"_s.arg(any.slug))), 1)
            << qPrintable(any.slug);
}

TEST_F(PagesTest, NumberListShowsExactlyTheNumbersOfTheCountry) {
    for (const DemoCountry &any : catalogue.countries()) {
        const QString page = played.text(u"/first/en/countries/"_s + any.slug);
        EXPECT_EQ(count(page, u"fw-bold text-primary placeholder"_s),
                  static_cast<qsizetype>(any.first.size()));
        for (const Number &number : any.first)
            EXPECT_TRUE(page.contains(u"/en/numbers/"_s + number.digits));
    }
}

TEST_F(PagesTest, MessagesAndTimesPairUpOnEveryNumber) {
    for (const DemoCountry &any : catalogue.countries()) {
        for (const QString &path : {numberPath(any.first.front()), numberPath(any.first.front()) + u"/2"_s,
                                    numberPath(any.first.back())}) {
            SCOPED_TRACE(qPrintable(path));
            const QString page = played.text(path);
            const QStringList attributes = classAttributes(page);
            const auto boxes = count(attributes, messageClass);
            EXPECT_GT(boxes, 2);
            EXPECT_EQ(count(attributes, u"mt-3"_s), boxes);
            EXPECT_EQ(count(attributes, u"mb-1"_s), boxes);
            EXPECT_EQ(count(attributes, u"placeholder text-break"_s), boxes);
            EXPECT_EQ(stamps(page).size(), boxes);
        }
    }
}

TEST_F(PagesTest, TimesAreTrueAndNewestFirstAcrossPages) {
    const Number &number = country.first.front();
    const MessageSchedule schedule(1, number);
    QStringList expected;
    for (const ReceivedMessage &message : schedule.newest(played.now, 0, 2 * schedule.pageSize()))
        expected << timeStamp(message.microseconds);
    EXPECT_EQ(stamps(played.text(numberPath(number))) + stamps(played.text(numberPath(number) + u"/2"_s)),
              expected);
    EXPECT_TRUE(std::is_sorted(expected.rbegin(), expected.rend()));
    EXPECT_GE(schedule.pageSize(), 8) << "fewer would hide the second page";
}

TEST_F(PagesTest, QuietNumberHasFewerMessagesThanAFullPage) {
    for (const DemoCountry &any : catalogue.countries()) {
        for (const Number &number : any.first) {
            if (!number.quiet) continue;
            EXPECT_LT(stamps(played.text(numberPath(number))).size(), 8);
            EXPECT_EQ(stamps(played.text(numberPath(number) + u"/2"_s)).size(), 0);
            return;
        }
    }
    FAIL() << "no quiet number";
}

TEST_F(PagesTest, NewMessageIsThereWithinFifteenSeconds) {
    const QString path = numberPath(country.first.front());
    for (int look = 0; look < 20; ++look) {
        const QString before = stamps(played.text(path)).front();
        played.advance(15);
        EXPECT_GT(stamps(played.text(path)).front(), before);
    }
}

TEST_F(PagesTest, RestartedHostServesTheSameBytes) {
    const PlayedHost again, other(played.now, 2);
    for (const QString &path : {u"/first/en"_s, u"/first/en/countries/germany"_s,
                                numberPath(country.first.front()), u"/second/germany/"_s, secondPath()})
        EXPECT_EQ(played.get(path).body, again.get(path).body) << qPrintable(path);
    EXPECT_NE(played.get(u"/first/en/countries/germany"_s).body,
              other.get(u"/first/en/countries/germany"_s).body);
}

TEST_F(PagesTest, SecondWebsiteShowsItsOwnNumbersAndMessages) {
    const QString numbers = played.text(u"/second/germany/"_s);
    const auto cells = count(numbers, u"col-sm-6 col-md-4 col-lg-3 col-xs-12"_s);
    EXPECT_EQ(cells, static_cast<qsizetype>(country.second.size()));
    for (const Number &number : country.second)
        EXPECT_TRUE(numbers.contains(u'>' + number.text + u'<')) << qPrintable(number.text);

    const QString page = played.text(secondPath());
    const auto shown = count(page, u"direct-chat-msg left"_s);
    EXPECT_GE(shown, 9);
    for (const QString &name : {u"direct-chat-name"_s, u"timeago direct-chat-timestamp pull-left"_s})
        EXPECT_EQ(count(page, name), shown) << qPrintable(name);
    EXPECT_EQ(count(page, u"pull-right"_s), shown + 1) << "one per message and the heading";
    static const QRegularExpression age(u"<small[^>]*>[0-9]+ (second|minute)s? ago</small>"_s);
    EXPECT_EQ(page.count(age), shown);
}

TEST_F(PagesTest, UnknownAddressesAreMissing) {
    const QString digits = country.first.front().digits, second = country.second.front().digits;
    for (const QString &path :
         {u"/first/en/countries/atlantis"_s, u"/first/en/numbers/1"_s, u"/first/en/numbers/"_s + second,
          u"/first/en/numbers/"_s + digits + u"/6"_s, u"/first/en/numbers/"_s + digits + u"/0"_s,
          u"/first/en/numbers/"_s + digits + u"/x"_s, u"/first/de"_s, u"/second/"_s, u"/second/atlantis/"_s,
          u"/second/france/"_s + second + u"/page1"_s, u"/second/germany/"_s + digits + u"/page1"_s,
          u"/second/germany/"_s + second + u"/page2"_s, u"/config/nothing.json"_s, u"/nowhere"_s}) {
        const Answer answer = played.get(path);
        EXPECT_EQ(answer.status, 404) << qPrintable(path);
        EXPECT_TRUE(answer.body.contains("<html"));
    }
}

TEST_F(PagesTest, LinksFromTheRootLeadToTheFirstWebsite) {
    EXPECT_EQ(played.get(u"/en/countries/germany"_s).status, 200);
    EXPECT_EQ(played.get(u"/"_s).status, 200);
}

} // namespace
} // namespace orl::demo
