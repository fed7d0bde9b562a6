#include "cli/identity_command.h"

#include <QJsonDocument>

#include <algorithm>

namespace orl {

namespace {

template<class Value>
Result<Value> valueNamed(const QString &name, const QList<Value> &values, const char *what) {
    QStringList names;
    for (const Value value : values) {
        names << rawValue(value);
        if (names.back().compare(name, Qt::CaseInsensitive) == 0) return value;
    }
    return Error{QStringLiteral("no %1 \"%2\"; there are %3")
                     .arg(QLatin1String(what), name, names.join(QStringLiteral(", ")))};
}

FakeNameSet nameSetOf(FakeCountry country) {
    return *std::ranges::find_if(
        allNameSets(), [country](FakeNameSet nameSet) { return countries(nameSet).contains(country); });
}

/// A heading of the output and its rows, lined up.
void printRows(const QList<ExtraInfo> &rows, const Commands::Output &output) {
    constexpr int longestTitle = 20; // "Mother's maiden name"
    for (const ExtraInfo &row : rows)
        output.result(QStringLiteral("%1  %2").arg(row.title, -longestTitle).arg(row.content));
}

void print(const FakeIdentity &identity, bool json, const Commands::Output &output) {
    if (json)
        return output.result(
            QString::fromUtf8(QJsonDocument(identity.encoded()).toJson(QJsonDocument::Indented)).trimmed());
    QString address = identity.address;
    printRows({{QStringLiteral("Name"), identity.full_name},
               {QStringLiteral("Address"), address.replace(QLatin1Char('\n'), QStringLiteral(", "))},
               {QStringLiteral("Gender"), caseName(identity.gender)}},
              output);
    for (const auto &section : {identity.more_section, identity.phone_section, identity.body_section,
                                identity.internet_section, identity.other_section})
        printRows(section, output);
}

} // namespace

Result<IdentityChoice> IdentityChoice::of(const QString &gender, const QString &nameSet,
                                          const QString &country) {
    IdentityChoice choice;
    if (!gender.isEmpty()) {
        const auto named = valueNamed(gender, allGenders(), "gender");
        if (!named) return named.error();
        choice.gender = named.value();
    }
    if (!nameSet.isEmpty()) {
        const auto named = valueNamed(nameSet, allNameSets(), "name set");
        if (!named) return named.error();
        choice.nameSet = named.value();
        choice.country = countries(choice.nameSet).first();
    }
    if (!country.isEmpty()) {
        const auto named = valueNamed(country, allCountries(), "country");
        if (!named) return named.error();
        choice.country = named.value();
        if (nameSet.isEmpty()) choice.nameSet = nameSetOf(choice.country);
    }
    return choice;
}

void runIdentityCommand(Process &process, const CommandLine &line, Commands::Output output,
                        Commands::Finished finished) {
    const Platform &platform = process.platform();
    const Result<IdentityChoice> choice = IdentityChoice::of(line.gender, line.nameSet, line.country);
    if (!choice) {
        return platform.mainQueue.post([output, finished, error = choice.error()] {
            output.notice(error.description);
            finished(ExitCode::WrongUse);
        });
    }
    platform.globalQueue.post([platform, choice = choice.value(), json = line.json, output, finished] {
        const IdentityPath path = identityPath(platform, choice.gender, choice.nameSet, choice.country);
        const auto end = [&](const std::optional<FakeIdentity> &made) {
            platform.mainQueue.post([made, json, output, finished] {
                if (made)
                    print(*made, json, output);
                else
                    output.notice(QStringLiteral("no identity came"));
                finished(made ? ExitCode::Done : ExitCode::EndpointFailed);
            });
        };
        if (!path.url) return end(std::nullopt);
        fetchIdentity(platform, path.url, path.gender, end);
    });
}

} // namespace orl
