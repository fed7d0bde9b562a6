#include "cli/commands.h"

#include "cli/identity_command.h"
#include "cli/port_watch.h"
#include "numbers/moments.h"
#include "numbers/text_helpers.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <chrono>
#include <utility>

namespace orl {

using namespace std::chrono_literals;

namespace {

constexpr qsizetype shortestCode = 3;

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

/// The first code of a message, or its first link where it has none.
QString firstExport(const QString &content) {
    const QStringList codes = extractNumbers(shortestCode, content);
    return codes.isEmpty() ? firstLink(content).value_or(QString()) : codes.front();
}

QString localTime(double secondsSince1970) {
    return QDateTime::fromMSecsSinceEpoch(qint64(secondsSince1970 * 1000))
        .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

/// Entries of old stores hold the bare number in the place of the record.
QString historyText(const QJsonObject &entry) {
    const QJsonObject country = entry.value(QStringLiteral("country")).toObject();
    const QString number = entry.value(QStringLiteral("phoneNumber"))
                               .toObject()
                               .value(QStringLiteral("number"))
                               .toString(entry.value(QStringLiteral("number")).toString());
    return QStringLiteral("%1  %2  %3")
        .arg(localTime(entry.value(QStringLiteral("time")).toDouble()), number,
             country.value(QStringLiteral("name")).toString());
}

} // namespace

Commands::Commands(Process &process, IdleWatch &idle, const ReadWatch &reads, Output output)
    : process_(process), idle_(idle), reads_(reads), output_(std::move(output)) {}

void Commands::run(const CommandLine &line, Finished finished) {
    line_ = line;
    finished_ = std::move(finished);
    if (line_.timeout) {
        process_.platform().mainQueue.postAfter(*line_.timeout, [this] {
            if (!finished_) return;
            output_.notice(QStringLiteral("nothing came within %1 seconds").arg(line_.timeout->count()));
            finish(ExitCode::NothingFound);
        });
    }
    // What was chosen is known without any host.
    if (line_.command == CommandLine::Command::History) return showHistory();
    if (line_.command == CommandLine::Command::Identity)
        return runIdentityCommand(process_, line_, output_, [this](ExitCode code) { finish(code); });
    // The recipe first: pages read before it arrives would be read by the compiled one.
    config_ = std::make_unique<AppConfigViewModel>(process_);
    idle_.whenIdle([this] {
        requests_ = std::make_unique<RequestViewModel>(process_);
        idle_.whenIdle([this] { start(); });
    });
}

void Commands::start() {
    switch (line_.command) {
    case CommandLine::Command::Countries: return listCountries();
    case CommandLine::Command::Numbers: return listNumbers();
    case CommandLine::Command::Messages: return showMessages();
    case CommandLine::Command::Wait: return waitForMessage();
    case CommandLine::Command::Choose: return chooseNumber();
    case CommandLine::Command::History:
    case CommandLine::Command::Identity:
    case CommandLine::Command::Mail:
    case CommandLine::Command::MailShow:
    case CommandLine::Command::MailWait:
    case CommandLine::Command::Help:
    case CommandLine::Command::Version: return finish(ExitCode::WrongUse);
    }
}

void Commands::finish(ExitCode code) {
    if (const Finished finished = std::exchange(finished_, nullptr)) finished(code);
}

void Commands::finishEmpty(const QString &notice) {
    output_.notice(notice);
    finish(reads_.failures() > 0 ? ExitCode::EndpointFailed : ExitCode::NothingFound);
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
    finish(ExitCode::Done);
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
        finish(ExitCode::Done);
    });
}

void Commands::withNumber(std::function<void(const Country &, const PhoneNumber &)> next) {
    withNumbers(line_.arguments.at(0), [this, next = std::move(next)](const Country &country,
                                                                      const QList<PhoneNumber> &numbers) {
        const QString wanted = digits(line_.arguments.at(1));
        const auto found = std::ranges::find_if(
            numbers, [&wanted](const PhoneNumber &number) { return digits(number.number) == wanted; });
        if (found == numbers.end())
            return finishEmpty(QStringLiteral("no number %1 in %2").arg(line_.arguments.at(1), country.name));
        next(country, *found);
    });
}

void Commands::withMessages(std::function<void()> next) {
    withNumber([this, next = std::move(next)](const Country &country, const PhoneNumber &number) {
        requests_->chooseNumber(country, number, false);
        requests_->fetchMessages(true);
        idle_.whenIdle(next);
    });
}

void Commands::showMessages() {
    withMessages([this] {
        const QList<QJsonObject> rows = newMessages();
        if (line_.watch) {
            for (const QJsonObject &row : rows)
                output_.result(line_.json ? compact(row) : textOf(row));
            return watchMessages();
        }
        if (rows.isEmpty()) return finishEmpty(QStringLiteral("no messages"));
        print(rows, textOf);
        finish(ExitCode::Done);
    });
}

void Commands::refreshMessages(std::function<void()> seen) {
    refresh_ = process_.platform().mainQueue.every(10s, [this, seen = std::move(seen)] {
        // By force: a message may say the very same as the one before it.
        requests_->fetchMessages(true);
        idle_.whenIdle(seen);
    });
}

void Commands::watchMessages() {
    refreshMessages([this] {
        for (const QJsonObject &row : newMessages())
            output_.result(line_.json ? compact(row) : textOf(row));
    });
}

void Commands::waitForMessage() {
    withMessages([this] {
        lookForMessage();
        refreshMessages([this] { lookForMessage(); });
    });
}

/// What stands on the first page that can be read came before.
void Commands::lookForMessage() {
    const QList<QJsonObject> rows = newMessages();
    const bool came = std::exchange(sawPage_, requests_->lastFetchSucceededAt().has_value());
    if (!came || !finished_) return;
    for (QJsonObject row : rows) {
        if (line_.code) {
            const QString code = firstExport(row.value(QStringLiteral("content")).toString());
            if (code.isEmpty()) continue;
            row.insert(QStringLiteral("code"), code);
            output_.result(line_.json ? compact(row) : code);
        } else {
            output_.result(line_.json ? compact(row) : textOf(row));
        }
        return finish(ExitCode::Done);
    }
}

void Commands::chooseNumber() {
    withNumber([this](const Country &country, const PhoneNumber &number) {
        const auto current = requests_->currentNumber();
        const bool isCurrent = current && digits(current->number) == digits(number.number) &&
                               requests_->currentCountry().value_or(Country()).name == country.name;
        // Choosing the same one again would only use up the allowance.
        if (!isCurrent && !requests_->mayChoose()) {
            output_.notice(
                QStringLiteral("the limit is reached; a video watched in the application raises it"));
            return finish(ExitCode::NothingFound);
        }
        if (!isCurrent) requests_->chooseNumber(country, number, false);
        idle_.whenIdle([this, number] {
            output_.result(line_.json ? compact(number.encoded()) : number.number);
            finish(ExitCode::Done);
        });
    });
}

void Commands::showHistory() {
    requests_ = std::make_unique<RequestViewModel>(process_);
    requests_->loadHistory([this](const QList<History> &list) {
        if (list.isEmpty()) {
            output_.notice(QStringLiteral("no number was chosen yet"));
            return finish(ExitCode::NothingFound);
        }
        QList<QJsonObject> rows;
        for (const History &entry : list)
            rows.append(entry.encoded());
        print(rows, historyText);
        finish(ExitCode::Done);
    });
    // A history that cannot be read has no completion; the console has told why.
    idle_.whenIdle([this] { finish(ExitCode::NothingFound); });
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
