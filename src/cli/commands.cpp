#include "cli/commands.h"

#include "cli/port_watch.h"
#include "numbers/moments.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <chrono>

namespace orl {

using namespace std::chrono_literals;

namespace {

QString compact(const QJsonObject &object) {
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QString digits(const QString &number) {
    QString kept;
    for (const QChar c : number)
        if (c >= QLatin1Char('0') && c <= QLatin1Char('9')) kept += c;
    return kept;
}

bool isAd(const Message &message) {
    return message.content == QLatin1String("NativeAd") && message.sender.id == QLatin1String("NativeAd");
}

std::optional<double> momentOf(const Message &message) {
    return message.time ? messageMoment(*message.time) : message.timeDateForTPN;
}

/// What stays the same when the page is read again: ids are fresh each time, and so are the moments that the
/// second website tells in words only.
QString identity(const Message &message) {
    return message.sender.name + QChar(0x1f) + message.time.value_or(QString()) + QChar(0x1f) +
           message.content;
}

QJsonObject jsonOf(const Message &message) {
    QJsonObject object{{QStringLiteral("sender"), message.sender.name},
                       {QStringLiteral("content"), message.content}};
    if (const std::optional<double> moment = momentOf(message))
        object.insert(
            QStringLiteral("time"),
            QDateTime::fromMSecsSinceEpoch(qint64(*moment * 1000), Qt::UTC).toString(Qt::ISODateWithMs));
    return object;
}

QString textOf(const QJsonObject &message) {
    const QDateTime time =
        QDateTime::fromString(message.value(QStringLiteral("time")).toString(), Qt::ISODateWithMs)
            .toLocalTime();
    const QString when = time.isValid() ? time.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")) : QString();
    return QStringLiteral("%1  %2: %3")
        .arg(when, -19)
        .arg(message.value(QStringLiteral("sender")).toString(),
             message.value(QStringLiteral("content")).toString());
}

} // namespace

Commands::Commands(Process &process, IdleWatch &idle, const ReadWatch &reads, Output output)
    : process_(process), idle_(idle), reads_(reads), output_(std::move(output)) {}

void Commands::run(const CommandLine &line, Finished finished) {
    line_ = line;
    finished_ = std::move(finished);
    // The recipe first: pages read before it arrives would be read by the compiled one.
    config_ = std::make_unique<AppConfigViewModel>(process_);
    idle_.whenIdle([this] {
        requests_ = std::make_unique<RequestViewModel>(process_);
        idle_.whenIdle([this] {
            switch (line_.command) {
            case CommandLine::Command::Countries: return listCountries();
            case CommandLine::Command::Numbers: return listNumbers();
            case CommandLine::Command::Messages: return showMessages();
            case CommandLine::Command::Help:
            case CommandLine::Command::Version: return finished_(ExitCode::WrongUse);
            }
        });
    });
}

void Commands::finishEmpty(const QString &notice) {
    output_.notice(notice);
    finished_(reads_.failures() > 0 ? ExitCode::EndpointFailed : ExitCode::NothingFound);
}

void Commands::print(const QList<QJsonObject> &rows,
                     const std::function<QString(const QJsonObject &)> &text) {
    if (!line_.json) {
        for (const QJsonObject &row : rows)
            output_.result(text(row));
        return;
    }
    QJsonArray array;
    for (const QJsonObject &row : rows)
        array.append(row);
    output_.result(QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Indented)).trimmed());
}

void Commands::listCountries() {
    const QString term = line_.arguments.value(0);
    QList<QJsonObject> rows;
    for (const Country &country : requests_->countries())
        if (country.prefix.contains(term, Qt::CaseInsensitive) ||
            country.name.contains(term, Qt::CaseInsensitive))
            rows.append(country.encoded());
    // An unreadable catalogue leaves the local one in place, which says nothing about where numbers are.
    if (rows.isEmpty() || reads_.failures() > 0) return finishEmpty(QStringLiteral("no countries found"));
    print(rows, [](const QJsonObject &row) {
        return QStringLiteral("%1 %2")
            .arg(row.value(QStringLiteral("prefix")).toString(), -6)
            .arg(row.value(QStringLiteral("name")).toString());
    });
    finished_(ExitCode::Done);
}

void Commands::withCountry(const QString &name, std::function<void(const Country &)> next) {
    const QList<Country> countries = requests_->countries();
    const auto found = std::ranges::find_if(countries, [&name](const Country &country) {
        return country.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    if (found == countries.end()) return finishEmpty(QStringLiteral("no country \"%1\"").arg(name));
    next(*found);
}

void Commands::withNumbers(const QString &country,
                           std::function<void(const Country &, const QList<PhoneNumber> &)> next) {
    withCountry(country, [this, next = std::move(next)](const Country &found) {
        // The completion runs once per website; the last list holds all numbers.
        auto numbers = std::make_shared<QList<PhoneNumber>>();
        requests_->fetchNumbers(found, [numbers](const QList<PhoneNumber> &list) { *numbers = list; });
        idle_.whenIdle([this, numbers, next, found] {
            if (numbers->isEmpty()) return finishEmpty(QStringLiteral("no numbers in %1").arg(found.name));
            next(found, *numbers);
        });
    });
}

void Commands::listNumbers() {
    withNumbers(line_.arguments.at(0), [this](const Country &, const QList<PhoneNumber> &numbers) {
        QList<QJsonObject> rows;
        for (const PhoneNumber &number : numbers)
            rows.append(number.encoded());
        print(rows, [](const QJsonObject &row) { return row.value(QStringLiteral("number")).toString(); });
        finished_(ExitCode::Done);
    });
}

void Commands::showMessages() {
    withNumbers(line_.arguments.at(0), [this](const Country &country, const QList<PhoneNumber> &numbers) {
        const QString wanted = digits(line_.arguments.at(1));
        const auto found = std::ranges::find_if(
            numbers, [&wanted](const PhoneNumber &number) { return digits(number.number) == wanted; });
        if (found == numbers.end())
            return finishEmpty(QStringLiteral("no number %1 in %2").arg(line_.arguments.at(1), country.name));
        requests_->chooseNumber(country, *found, false);
        requests_->fetchMessages(true);
        idle_.whenIdle([this] {
            const QList<QJsonObject> rows = newMessages();
            if (rows.isEmpty() && !line_.watch) return finishEmpty(QStringLiteral("no messages"));
            if (line_.watch) {
                for (const QJsonObject &row : rows)
                    output_.result(line_.json ? compact(row) : textOf(row));
                return watchMessages();
            }
            print(rows, textOf);
            finished_(ExitCode::Done);
        });
    });
}

void Commands::watchMessages() {
    refresh_ = process_.platform().mainQueue.every(10s, [this] {
        requests_->fetchMessages(false);
        idle_.whenIdle([this] {
            for (const QJsonObject &row : newMessages())
                output_.result(line_.json ? compact(row) : textOf(row));
        });
    });
}

QList<QJsonObject> Commands::newMessages() {
    QList<QJsonObject> rows;
    QHash<QString, int> onPage;
    for (const Message &message : requests_->messages()) {
        if (isAd(message)) continue;
        const QString key = identity(message);
        if (++onPage[key] > shown_.value(key)) rows.prepend(jsonOf(message));
    }
    for (auto [key, count] : onPage.asKeyValueRange())
        shown_[key] = std::max(shown_.value(key), count);
    return rows;
}

} // namespace orl
