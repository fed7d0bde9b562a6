#include "first_website.h"

#include "message_texts.h"
#include "messages.h"
#include "page.h"
#include "random.h"

#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

/// Twins of what the page really shows, for the places where a parser must not look.
const QString messageDecoy =
    uR"(<div class="shadow-sm bg-light rounded border-start border-info border-5"><label class="mb-1">From: Decoy</label>
<span class="placeholder text-break">000000 is no message</span></div><div class="mt-3"><time data-created="2001-01-01T00:00:00.000000Z">then</time></div>)"_s;
const QString numberDecoy = uR"(<div class="fw-bold text-primary placeholder">+10000000000</div>)"_s;
const QString countryDecoy =
    uR"(<div class="container-fluid mt-3 p-0"><div class="col-sm-12 col-md-6 col-lg-4"><a href="/en/countries/atlantis"><span class="placeholder h5">Atlantis</span></a></div></div>)"_s;

/// Elements that differ from a message in one class or in the order of classes; a whole-attribute lookup
/// passes them by. They carry nothing that could be taken for a time.
const QString hiddenNearMisses =
    uR"(<div hidden class="shadow-sm bg-light rounded border-start border-info border-4"><span class="text-break placeholder">skeleton</span></div>
<div class="shadow-sm bg-light rounded border-start border-info border-5 d-none" aria-hidden=true><label class="mb-2">From: nobody</label><span class="placeholder text-break ">&nbsp;</span><i class="mt-30 not-mt-3"></i></div>
)"_s;

QString firstBoldCode(QString html) {
    static const QRegularExpression code(u"(?<![#\\w;/=&.-])[0-9]{4,8}(?![\\w;-])"_s);
    const auto match = code.match(html);
    if (match.hasMatch())
        html.replace(match.capturedStart(), match.capturedLength(), u"<b>%1</b>"_s.arg(match.captured()));
    return html;
}

QString senderMarkup(const ReceivedMessage &message, Random &random) {
    static const QStringList prefixes{u""_s, u""_s, u"From: "_s, u"From:"_s, u"From "_s};
    const QString prefix = random.pick(prefixes);
    const QString name = encoded(message.sender, random);
    const QString label =
        random.oneIn(3) ? u"<a href=\"/en/messages/%1\">%2</a>"_s.arg(random.below(90000)).arg(name) : name;
    return u"<label%1>%2%3</label>"_s.arg(written({{u"class"_s, u"mb-1"_s}}, random), prefix, label);
}

QString contentMarkup(const ReceivedMessage &message, Random &random) {
    QString html = encoded(message.text, random);
    if (random.oneIn(3)) html = firstBoldCode(html);
    return u"<span%1>%2</span>"_s.arg(
        written({{u"class"_s, u"placeholder text-break"_s}, {u"dir"_s, u"auto"_s}}, random), html);
}

/// The stamp stands in the last attribute, so that what ends it is a quote and the end of the tag.
QString timeMarkup(const ReceivedMessage &message, double now, Random &random) {
    const auto age = static_cast<qint64>(std::floor(now * 1e6)) - message.microseconds;
    const QString stamp = timeStamp(message.microseconds);
    const QString words = ageInWords(age);
    if (random.oneIn(2))
        return u"<time%1>%2</time>"_s.arg(written({{u"class"_s, u"mt-3 small"_s},
                                                   {u"title"_s, words + u" & counting"_s},
                                                   {u"data-created"_s, stamp}},
                                                  random, true),
                                          words);
    return u"<div%1><svg width=12 height=12><use href=#i3></use></svg> <time%2>%3</time></div>"_s.arg(
        written({{u"class"_s, u"mt-3"_s}, {u"data-n"_s, QString::number(random.below(99))}}, random),
        written({{u"class"_s, u"text-muted"_s}, {u"data-created"_s, stamp}}, random, true), words);
}

/// Time first or message first: only the order among the messages and among the times counts.
QString messageMarkup(const ReceivedMessage &message, double now) {
    Random random(message.key);
    const QString box = u"<div%1>\n<p class=small-caps>%2\n%3</div>"_s.arg(
        written({{u"class"_s, u"shadow-sm bg-light rounded border-start border-info border-5"_s},
                 {u"data-id"_s, QString::number(message.key, 36)},
                 {u"role"_s, u"article"_s}},
                random),
        senderMarkup(message, random), contentMarkup(message, random));
    const QString time = timeMarkup(message, now, random);
    const QString share =
        u"<a class='btn btn-sm' href=\"/en/share?m=%1&copy=1\"><b>Copy <i>it</b></i></a>"_s.arg(
            random.below(100000));
    return u"<div class='row g-2 message-row'><div class=col-12>"_s +
           (random.oneIn(2) ? box + time : time + box) + share + u"</span></div></div>\n"_s;
}

QString countryMarkup(const DemoCountry &country, quint64 seed) {
    Random random(mix(seed, country.slug));
    const QString link = written({{u"href"_s, u"/en/countries/"_s + country.slug},
                                  {u"class"_s, u"text-decoration-none"_s},
                                  {u"data-c"_s, country.icon}},
                                 random);
    return u"<div%1><a%2><img src=\"/assets/flags/%3.svg?v=2&amp;s=32\" width=32 height=24 alt "
           u"loading=lazy%4>\n"
           "<span%5>%6</span></a><p class='badge bg-info'>%7 numbers</div>\n"_s.arg(
               written({{u"class"_s, u"col-sm-12 col-md-6 col-lg-4"_s}, {u"id"_s, u"c-"_s + country.icon}},
                       random),
               link, country.icon, random.oneIn(2) ? u" /"_s : QString(),
               written({{u"class"_s, u"placeholder h5"_s}, {u"lang"_s, u"en"_s}}, random),
               encoded(country.pageName, random), QString::number(country.first.size()));
}

QString numberMarkup(const Number &number, quint64 seed) {
    Random random(mix(seed, number.digits));
    const bool split = random.oneIn(3);
    const QString text = split ? number.text.left(4) + u"<wbr>"_s + number.text.mid(4) : number.text;
    return u"<div class='col-sm-6 col-md-4'><div class=card><a%1><div%2>\n  %3\n</div></a>"
           "<small class=text-muted>%4</small></div></div>\n"_s.arg(
               written({{u"href"_s, u"/en/numbers/"_s + number.digits}, {u"class"_s, u"stretched-link"_s}},
                       random),
               written({{u"class"_s, u"fw-bold text-primary placeholder"_s}, {u"data-s"_s, u"online"_s}},
                       random),
               text, number.quiet ? u"quiet"_s : u"<b>busy</b> &#128293;"_s);
}

/// Cells of the same class outside of the main content.
QString popularCountries(const std::vector<DemoCountry> &countries) {
    QString html = u"<aside class=row>\n"_s;
    for (std::size_t i = 0; i < 3 && i < countries.size(); ++i)
        html += u"<div class=\"col-sm-12 col-md-6 col-lg-4\"><a href=/en/countries/%1>Popular: "
                "<span class=\"placeholder h5\">%2</span></a></div>\n"_s.arg(countries[i].slug,
                                                                             countries[i].name);
    return html + u"</aside>\n"_s;
}

QString pageLinks(const QString &digits, int current) {
    QString html = u"<ul class=pagination>"_s;
    for (int page = 1; page <= lastPage; ++page)
        html += u"<li%1><a href='/en/numbers/%2%3'>%4</a>"_s
                    .arg(page == current ? u" class=active"_s : QString(), digits,
                         page == 1 ? QString() : u'/' + QString::number(page))
                    .arg(page);
    return html + u"</ul>\n"_s;
}

} // namespace

QStringList farmTexts(const Catalogue &catalogue) {
    QStringList texts;
    for (const DemoCountry &country : catalogue.countries())
        texts << country.name;
    for (const ServiceName &service : serviceNames())
        texts << QString::fromUtf8(service.name);
    return texts;
}

Reply FirstWebsite::answer(const Request &request) const {
    const QStringList parts = request.path.split(u'/', Qt::SkipEmptyParts);
    if (parts.isEmpty() || parts == QStringList{u"en"_s}) return countries(request);
    if (parts.front() != u"en"_s || parts.size() < 3 || parts.size() > 4) return notFoundPage();
    if (parts[1] == u"countries"_s && parts.size() == 3) {
        const DemoCountry *country = catalogue_.countryBySlug(parts[2]);
        return country ? numbers(*country, request) : notFoundPage();
    }
    const Number *number = catalogue_.number(parts[2], Website::First);
    const int page = parts.size() == 4 ? parts[3].toInt() : 1;
    if (parts[1] != u"numbers"_s || !number || page < 1 || page > lastPage) return notFoundPage();
    return messages(*number, page, request);
}

Reply FirstWebsite::countries(const Request &request) const {
    QString list;
    for (const DemoCountry &country : catalogue_.countries())
        list += countryMarkup(country, seed_);
    const QString body =
        u"<main id=content><h1>Receive SMS <small>online</h1></small>\n"
        "<div class=\"container-fluid mt-3 p-0\"><div class=row>\n%1</div></div>\n%2</main>\n"_s.arg(
            list, popularCountries(catalogue_.countries()));
    return page(u"Free phone numbers by country"_s, body, countryDecoy, request);
}

Reply FirstWebsite::numbers(const DemoCountry &country, const Request &request) const {
    QString list;
    for (const Number &number : country.first)
        list += numberMarkup(number, seed_);
    const QString body =
        u"<main id=content><h1>%1</h1><p>Choose a number.\n"
        "<div hidden class=\"fw-bold placeholder text-primary\">+10000000001</div>\n<div class=row>\n%2</div></main>\n"_s
            .arg(country.pageName.toHtmlEscaped(), list);
    return page(country.name + u" phone numbers"_s, body, numberDecoy, request);
}

Reply FirstWebsite::messages(const Number &number, int page, const Request &request) const {
    const MessageSchedule schedule(seed_, number);
    QString list;
    for (const ReceivedMessage &message :
         schedule.newest(request.now, (page - 1) * schedule.pageSize(), schedule.pageSize())) {
        list += messageMarkup(message, request.now);
        if (mix(message.key, u"ad") % 5 == 0)
            list +=
                u"<ins class='ads' data-slot=\"%1\" style=display:block></ins>\n"_s.arg(message.key % 100000);
    }
    if (list.isEmpty()) list = u"<p class=text-muted>No messages here yet &#128564;"_s;
    const QString body = u"<main id=content><h1>%1</h1>\n%2%3%4</main>\n"_s.arg(
        number.text, hiddenNearMisses, list, pageLinks(number.digits, page));
    return this->page(number.text + u" messages"_s, body, messageDecoy, request);
}

Reply FirstWebsite::page(const QString &title, const QString &body, const QString &decoy,
                         const Request &request) const {
    return {200, "text/html; charset=utf-8",
            realWorldPage({u"sms24"_s, title, request.path, body, decoy, farmTexts(catalogue_), seed_})};
}

} // namespace orl::demo
