#include "mail/address.h"

#include <QRegularExpression>

namespace orl {

namespace {

template<class... Texts>
QStringList list(Texts... texts) {
    return {QStringView(texts).toString()...};
}

} // namespace

QStringList Constants::loginSuggestions() {
    return list(u"hello", u"admin", u"support", u"help", u"noreply", u"service", u"news", u"test");
}

QStringList Constants::domains() {
    return list(ORL_MAIL_DOMAINS);
}

QString composedAddress(const QString &login, const QString &domain) {
    QString address = login + QLatin1Char('@') + domain;
    return address.replace(QLatin1Char(' '), QLatin1Char('-'));
}

bool isWellFormedAddress(const QString &address) {
    static const QRegularExpression form(
        QStringLiteral(R"(\A(?:[A-Z0-9a-z._%+-]+@[A-Za-z0-9.-]+\.[A-Za-z]{2,64})\z)"));
    return form.match(address).hasMatch();
}

} // namespace orl
