#include "letters.h"

#include "../message_texts.h"
#include "../random.h"
#include "letter_texts.h"

#include <array>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

enum class Kind { Welcome, Code, Note, Photos, Newsletter, Broken, Latin, PlainCode, Receipt, Report };

constexpr std::array<Kind, openingLetters> opening{Kind::Welcome, Kind::Code,       Kind::Note,
                                                   Kind::Photos,  Kind::Newsletter, Kind::Broken,
                                                   Kind::Latin,   Kind::PlainCode};

Kind kindOf(int number, Random &random) {
    constexpr std::array later{Kind::Code,      Kind::Code,       Kind::Note,   Kind::Note,
                               Kind::Photos,    Kind::Newsletter, Kind::Broken, Kind::Latin,
                               Kind::PlainCode, Kind::Receipt,    Kind::Report, Kind::Receipt};
    return number < openingLetters ? opening[size_t(number)] : random.pick(later);
}

QString hostOf(const QString &service) {
    QString host;
    for (const QChar c : service.toLower())
        if (c.unicode() < 128 && c.isLetterOrNumber()) host += c;
    return (host.isEmpty() ? u"service"_s : host) + u".example"_s;
}

struct Writer {
    Random random;
    QByteArray host;
    QString address;
    QString service = QString::fromUtf8(random.pick(serviceNames()).name);
    QString code = QString::number(100'000 + random.below(900'000));
    QString number = QString::number(1 + random.below(9'999));

    QByteArray filled(const char *page) const {
        const QString link = u"http://%1/mail/pages/%2?from=mail"_s.arg(QString::fromUtf8(host), number);
        const QString to = address.isEmpty() ? u"your address"_s : address.toHtmlEscaped();
        const std::pair<const char *, QString> places[] = {{"@SERVICE@", service.toHtmlEscaped()},
                                                           {"@HOST@", QString::fromUtf8(host)},
                                                           {"@CODE@", code},
                                                           {"@LINK@", link},
                                                           {"@ADDRESS@", to},
                                                           {"@NUMBER@", number}};
        QByteArray text = page;
        for (const auto &[place, value] : places)
            text.replace(place, value.toUtf8());
        return text;
    }

    Letter from(const QString &subject, QByteArray html, QByteArray text = {},
                QList<LetterFile> files = {}) const {
        return {service,         u"hello@"_s + hostOf(service), subject, std::move(html), std::move(text),
                std::move(files)};
    }

    Letter note() {
        const NoteText &note = random.pick(noteTexts());
        return {QString::fromUtf8(note.sender),
                QString::fromUtf8(note.address),
                QString::fromUtf8(note.subject),
                {},
                note.text,
                {}};
    }

    Letter photos() {
        const QByteArray page = filled(photosPage);
        return {u"Maya Okafor"_s,
                u"maya@okafor.example"_s,
                u"Photos of Sunday"_s,
                page,
                {},
                {{u"Harbour at noon.JPG"_s, "image/jpeg"},
                 {u"us.png"_s, "image/png"},
                 {u"addresses.pdf"_s, "application/pdf"},
                 {u"choir.ics"_s, "text/calendar"}}};
    }

    Letter plainCode() const {
        const QString text =
            u"%1 code: %2\n\nValid for 10 minutes. Never give it to anybody.\n"_s.arg(service, code);
        return from(u"%1 is your %2 code"_s.arg(code, service), {}, text.toUtf8());
    }

    Letter of(Kind kind) {
        switch (kind) {
        case Kind::Welcome:
            return {u"Orl"_s,
                    u"welcome@orl.example"_s,
                    u"Welcome to your inbox"_s,
                    filled(welcomePage),
                    "Mail to this address appears here by itself.\n",
                    {}};
        case Kind::Code: return from(u"Confirm your address for %1"_s.arg(service), filled(codePage));
        case Kind::Note: return note();
        case Kind::Photos: return photos();
        case Kind::Newsletter:
            return from(u"This month at %1: tea, bicycles, and three things that we got wrong"_s.arg(service),
                        filled(newsletterPage), "Read it on the web.\n");
        case Kind::Broken: return from(u"Everything must go!!! Today only"_s, filled(brokenPage));
        case Kind::Latin: return from(u"Votre commande est pr\u00eate"_s, filled(latinPage));
        case Kind::PlainCode: return plainCode();
        case Kind::Receipt:
            return from(u"Your order no. %1"_s.arg(code), filled(receiptPage), {},
                        {{u"receipt-%1.pdf"_s.arg(code), "application/pdf"}});
        case Kind::Report:
            return from(u"Your numbers of the month"_s, "<div>The table is attached.</div>\n", {},
                        {{u"visits.csv"_s, "text/csv"}, {u"chart.PNG"_s, "image/png"}});
        }
        return {};
    }
};

} // namespace

Letter letter(quint64 key, int number, const QByteArray &host, const QString &address) {
    Writer writer{Random(mix(key, quint64(number))), host, address};
    const Kind kind = kindOf(number, writer.random);
    return writer.of(kind);
}

} // namespace orl::demo
