#include "platform/endpoints.h"

#include "platform/url_reader.h"

#include <QFile>
#include <QSet>

#include <algorithm>

namespace orl {

namespace {

struct Key {
    const char *name;
    QString Endpoints::*field;
};

constexpr Key keys[] = {
    {"configurationHost", &Endpoints::configurationHost},
    {"firstWebsite", &Endpoints::firstWebsite},
    {"secondWebsite", &Endpoints::secondWebsite},
    {"mailHost", &Endpoints::mailHost},
    {"identityHost", &Endpoints::identityHost},
    {"adHost", &Endpoints::adHost},
    {"legalHost", &Endpoints::legalHost},
    {"storeHost", &Endpoints::storeHost},
    {"connectivityProbe", &Endpoints::connectivityProbe},
};

const Key *findKey(const QString &name) {
    const auto *key = std::ranges::find_if(keys, [&](const Key &k) { return name == QLatin1String(k.name); });
    return key == std::end(keys) ? nullptr : key;
}

// What is appended to a base address decides whether it ends with a slash.
QString withRightEnd(QString Endpoints::*field, QString address) {
    if (field == &Endpoints::connectivityProbe) return address;
    while (address.endsWith(QLatin1Char('/')))
        address.chop(1);
    return field == &Endpoints::secondWebsite ? address + QLatin1Char('/') : address;
}

/// Takes one line in; gives what is wrong with it, or an empty text.
QString readLine(const QString &line, Endpoints &endpoints, QSet<QString> &seen) {
    if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) return {};
    const qsizetype equals = line.indexOf(QLatin1Char('='));
    if (equals < 0) return QStringLiteral("\"key=value\" is expected");
    const QString name = line.left(equals).trimmed();
    const QString address = line.mid(equals + 1).trimmed();
    const Key *key = findKey(name);
    if (!key) return QStringLiteral("unknown key \"%1\"").arg(name);
    if (seen.contains(name)) return QStringLiteral("\"%1\" stands here for the second time").arg(name);
    seen.insert(name);
    if (address.isEmpty()) return {};
    if (!makeUrl(address)) return QStringLiteral("\"%1\" is no http or https URL").arg(address);
    endpoints.*key->field = withRightEnd(key->field, address);
    return {};
}

} // namespace

Result<Endpoints> readEndpointsFile(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return Error{QStringLiteral("%1: %2").arg(path, file.errorString())};
    Endpoints endpoints;
    QSet<QString> seen;
    for (int number = 1; !file.atEnd(); ++number) {
        const QString wrong = readLine(QString::fromUtf8(file.readLine()).trimmed(), endpoints, seen);
        if (!wrong.isEmpty()) return Error{QStringLiteral("%1:%2: %3").arg(path).arg(number).arg(wrong)};
    }
    return endpoints;
}

} // namespace orl
