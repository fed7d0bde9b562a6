#include "page.h"

#include "page_furniture.h"
#include "random.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

QString reference(char32_t c, Random &random) {
    return random.oneIn(2) ? u"&#%1;"_s.arg(quint32(c)) : u"&#x%1;"_s.arg(quint32(c), 0, 16);
}

/// Characters that a page may not or does not like to write plainly, with the ways to write them.
QString encodedCharacter(char32_t c, Random &random) {
    switch (c) {
    case U'&': return random.oneIn(4) ? reference(c, random) : u"&amp;"_s;
    case U'<': return random.oneIn(4) ? reference(c, random) : u"&lt;"_s;
    case U'>': return random.oneIn(3) ? u">"_s : u"&gt;"_s;
    case U'\'': return random.oneIn(2) ? u"&#39;"_s : u"'"_s;
    case U'"': return random.oneIn(2) ? u"&quot;"_s : u"\""_s;
    case U'\u00a0': return random.oneIn(2) ? u"&nbsp;"_s : u"&#160;"_s;
    case U'é': return random.oneIn(2) ? u"&eacute;"_s : u"é"_s;
    case U'ü': return random.oneIn(2) ? u"&uuml;"_s : u"ü"_s;
    case U'\n': return random.oneIn(2) ? u"<br>"_s : u"<br />"_s;
    default: break;
    }
    const bool rarelyPlain = c > 0xffff || c == 0x2028;
    return rarelyPlain && !random.oneIn(3) ? reference(c, random) : QString::fromUcs4(&c, 1);
}

QString quoted(const QString &value, Random &random, bool doubleOnly) {
    static const QRegularExpression bare(u"\\A[A-Za-z0-9_-]+\\z"_s);
    QString safe = value;
    safe.replace(u'&', u"&amp;"_s);
    if (!doubleOnly && random.oneIn(3) && bare.match(value).hasMatch()) return safe;
    if (!doubleOnly && random.oneIn(3)) return u'\'' + safe.replace(u'\'', u"&#39;"_s) + u'\'';
    return u'"' + safe.replace(u'"', u"&quot;"_s) + u'"';
}

QString filledIn(const char *text, const PageParts &parts) {
    QString path = parts.path;
    path.remove(QRegularExpression(u"[^A-Za-z0-9/_.-]"_s));
    return QString::fromUtf8(text)
        .replace(u"@TITLE@"_s, parts.title.toHtmlEscaped())
        .replace(u"@SITE@"_s, parts.siteName)
        .replace(u"@PATH@"_s, path)
        .replace(u"@NONCE@"_s, QString::number(mix(parts.seed, u"nonce"), 36));
}

/// The spacing classes a framework brings along: much text between "{" and "}", no element.
QString utilityStyles() {
    QString css = u"<style type=\"text/css\">\n/*! utilities > v5 <!-- kept --> */\n"_s;
    for (const QString &side :
         {u"m"_s, u"mt"_s, u"mb"_s, u"ms"_s, u"me"_s, u"p"_s, u"pt"_s, u"pb"_s, u"px"_s}) {
        for (int size = 0; size < 6; ++size)
            css += u".%1-%2{%1:calc(var(--gap)*%2/4)!important}"_s.arg(side).arg(size);
    }
    return css + u"\n</style>\n"_s;
}

/// The body's look-alikes, where a parser must take them for text.
QString quotedDecoys(const QString &decoy) {
    QString inScript = decoy;
    inScript.replace(u"</"_s, u"<\\/"_s);
    return u"<!-- old layout, remove after the relaunch\n%1\n-->\n"
           "<script type='text/x-template' id=row-template>\n%1\n</script>\n"
           "<script>var template = \"%2\"; if (a<b) { render(template); }</script>\n"
           "<textarea readonly hidden rows=2 cols=20>%1</textarea>\n"_s.arg(
               decoy, inScript.remove(u'\n').replace(u'"', u"\\\""_s));
}

QString languageMenu(Random &random) {
    QString menu = u"<ul class=\"lang-list list-inline\">\n"_s;
    for (const char *language : furniture::siteLanguages) {
        menu += u"<li%1><a%2>%3</a>\n"_s.arg(
            written({{u"class"_s, u"list-inline-item"_s}}, random),
            written({{u"href"_s, u"/?setlang=%1&back=%2"_s.arg(random.below(99)).arg(random.below(9999))},
                     {u"rel"_s, u"nofollow"_s},
                     {u"data-v"_s, QString::number(random.below(1000))}},
                    random),
            encoded(QString::fromUtf8(language), random));
    }
    return menu + u"</ul>\n"_s;
}

/// Neither the paragraphs nor the sections are closed by the book.
QString questionsAndAnswers(Random &random) {
    QString html = u"<section class=faq><h2>Questions &amp; answers</h2>\n"_s;
    for (const furniture::Question &entry : furniture::questions) {
        html += u"<div class=\"accordion-item\"><h3>%1</h3><p>%2%3</div>\n"_s.arg(
            QString::fromUtf8(entry.question), QString::fromUtf8(entry.answer),
            random.oneIn(2)
                ? u"<p>Was this helpful? <input type=radio name=h> yes <input type=radio name=h /> no"_s
                : u"</p></p>"_s);
    }
    return html + u"<p>More in the <a href=/en/faq>long list</a>.\n</section>\n"_s;
}

QString spriteSheet(Random &random) {
    QString svg = u"<svg style=display:none aria-hidden=true><defs>\n"_s;
    for (int icon = 0; icon < 12; ++icon) {
        svg += u"<symbol id=i%1 viewBox='0 0 24 24'><path fill=\"none\" d=\"M%2 %3"_s.arg(icon)
                   .arg(random.below(24))
                   .arg(random.below(24));
        for (int corner = 0; corner < 14; ++corner)
            svg += u"L%1.%2 %3"_s.arg(random.below(24)).arg(random.below(10)).arg(random.below(24));
        svg += u"z\"/></symbol>\n"_s;
    }
    return svg + u"</defs></svg>\n"_s;
}

QString farmLink(const QStringList &texts, Random &random) {
    const QString text = random.pick(texts);
    return u"<li%1><a%2>%3</a>\n"_s.arg(
        random.oneIn(3) ? u" class=nav-sm"_s : QString(),
        written({{u"href"_s, u"/en/t/%1?from=farm&pos=%2"_s.arg(random.below(100000)).arg(random.below(900))},
                 {u"title"_s, u"Receive \"%1\" SMS online & free"_s.arg(text)},
                 {u"data-track"_s, u"f%1"_s.arg(random.below(1000))}},
                random),
        encoded(text, random));
}

/// Enough links to bring the page to `bytes`.
QString linkFarm(const QStringList &texts, qsizetype bytes, Random &random) {
    QString farm = u"<div class=\"farm columns-4\"><h4>Popular</h4><ul>\n"_s;
    for (qsizetype written = 0; written < bytes;) {
        const QString link = farmLink(texts, random);
        written += link.toUtf8().size();
        farm += link;
    }
    return farm + u"</ul></div>\n"_s;
}

} // namespace

QString encoded(const QString &text, Random &random) {
    QString html;
    const auto characters = text.toUcs4();
    for (const uint c : characters)
        html += encodedCharacter(c, random);
    return html;
}

QString written(Attributes attributes, Random &random, bool lastStaysLast) {
    const int movable = static_cast<int>(attributes.size()) - (lastStaysLast ? 1 : 0);
    for (int i = movable - 1; i > 0; --i)
        std::swap(attributes[static_cast<std::size_t>(i)],
                  attributes[static_cast<std::size_t>(random.below(i + 1))]);
    QString text;
    for (int i = 0; i < static_cast<int>(attributes.size()); ++i) {
        const auto &[name, value] = attributes[static_cast<std::size_t>(i)];
        text += u' ' + name + u'=' + quoted(value, random, i >= movable);
    }
    return text;
}

QByteArray realWorldPage(const PageParts &parts) {
    Random random(mix(parts.seed, parts.path));
    const qsizetype target = 70'000 + random.below(38'000);
    const QString before = filledIn(furniture::head, parts) + filledIn(furniture::header, parts) +
                           utilityStyles() + spriteSheet(random) + languageMenu(random) +
                           quotedDecoys(parts.decoy);
    const QString after = questionsAndAnswers(random);
    const QByteArray start = (before + parts.body + after).toUtf8();
    const QByteArray end = filledIn(furniture::footer, parts).toUtf8();
    return start + linkFarm(parts.linkTexts, target - start.size() - end.size(), random).toUtf8() + end;
}

} // namespace orl::demo
