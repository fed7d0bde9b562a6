#include "second_website.h"

#include "first_website.h"
#include "messages.h"
#include "page.h"
#include "random.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

const QString messageDecoy =
    uR"(<div class="direct-chat-msg left"><span class="direct-chat-name">Decoy</span><div class="direct-chat-text">no message</div></div>)"_s;
const QString numberDecoy =
    uR"(<div class="col-sm-6 col-md-4 col-lg-3 col-xs-12"><span class="info-box-number">+1 000 000 0000</span></div>)"_s;

QString numberMarkup(const Number &number, const DemoCountry &country, quint64 seed) {
    Random random(mix(seed, number.digits));
    return u"<div%1><a%2><div class='info-box'><span class='info-box-icon bg-aqua'><i class=\"fa "
           u"fa-phone\"></i></span>\n"
           "<div class=info-box-content><span class=info-box-text>%3<br><b%4>%5</b><p>Open</div></div></a></div>\n"_s
               .arg(written({{u"class"_s, u"col-sm-6 col-md-4 col-lg-3 col-xs-12"_s},
                             {u"data-k"_s, number.digits.right(4)}},
                            random),
                    written({{u"href"_s, u"/%1/%2/page1"_s.arg(country.secondPath, number.digits)},
                             {u"rel"_s, u"next"_s}},
                            random),
                    country.name, written({{u"class"_s, u"info-box-number"_s}, {u"dir"_s, u"ltr"_s}}, random),
                    number.text);
}

/// Some senders stand in the right-hand corner, with the usual place left empty.
QString headMarkup(const ReceivedMessage &message, double now, Random &random) {
    const bool corner = random.oneIn(6);
    const QString name = encoded(message.sender, random);
    const auto age = static_cast<qint64>(std::floor(now * 1e6)) - message.microseconds;
    return u"<div class='direct-chat-info clearfix'><span%1>%2</span> <span%3>%4</span>\n<small%5>%6</small></div>"_s
        .arg(written({{u"class"_s, u"direct-chat-name"_s}}, random), corner ? QString() : name,
             written({{u"class"_s, u"pull-right"_s}}, random), corner ? name : u"<!-- -->"_s,
             written({{u"class"_s, u"timeago direct-chat-timestamp pull-left"_s}, {u"data-live"_s, u"1"_s}},
                     random),
             ageInWords(age));
}

QString messageMarkup(const ReceivedMessage &message, double now) {
    Random random(message.key);
    return u"<div%1>\n%2\n<img class=direct-chat-img src=\"/img/u.png?a=1&b=2\" alt=''>\n<div%3>%4</div></p></div>\n"_s
        .arg(written(
                 {{u"class"_s, u"direct-chat-msg left"_s}, {u"data-m"_s, QString::number(message.key, 36)}},
                 random),
             headMarkup(message, now, random),
             written({{u"class"_s, u"direct-chat-text"_s}, {u"lang"_s, u"und"_s}}, random),
             encoded(message.text, random));
}

} // namespace

Reply SecondWebsite::answer(const Request &request) const {
    const QStringList parts = request.path.split(u'/', Qt::SkipEmptyParts);
    const DemoCountry *country = parts.isEmpty() ? nullptr : catalogue_.countryBySecondPath(parts.front());
    if (country && parts.size() == 1) return numbers(*country, request);
    const Number *number =
        country && parts.size() == 3 ? catalogue_.number(parts[1], Website::Second) : nullptr;
    if (number && catalogue_.countryOf(*number) == country && parts[2] == u"page1"_s)
        return messages(*number, request);
    return notFoundPage();
}

Reply SecondWebsite::numbers(const DemoCountry &country, const Request &request) const {
    QString cells;
    for (const Number &number : country.second)
        cells += numberMarkup(number, country, seed_);
    const QString body =
        u"<div id=content class=content-wrapper><h2>%1 <small>temporary</h2></small>\n"
        "<div class=row>\n%2<div class=\"col-sm-6 col-md-4 col-lg-3 col-xs-12 ad\">Ad</div></div></div>\n"_s
            .arg(country.name, cells);
    return page(country.name + u" temporary phone numbers"_s, body, numberDecoy, request);
}

Reply SecondWebsite::messages(const Number &number, const Request &request) const {
    const MessageSchedule schedule(seed_, number);
    QString list;
    for (const ReceivedMessage &message : schedule.newest(request.now, 0, schedule.pageSize()))
        list += messageMarkup(message, request.now);
    const QString body =
        u"<div id=content class='box direct-chat'><h2 class=pull-right>%1</h2>\n"
        "<div class=\"direct-chat-msg right\" hidden><div class=direct-chat-text>you</div></div>\n"
        "<div class=direct-chat-messages>\n%2</div></div>\n"_s.arg(number.text, list);
    return page(number.text + u" messages"_s, body, messageDecoy, request);
}

Reply SecondWebsite::page(const QString &title, const QString &body, const QString &decoy,
                          const Request &request) const {
    return {200, "text/html; charset=utf-8",
            realWorldPage(
                {u"tpn"_s, title, request.path, body, decoy, farmTexts(catalogue_), mix(seed_, u"second")})};
}

} // namespace orl::demo
