#include "app/options.h"

#include <QCommandLineParser>

namespace orl {

namespace {

const QString usage = QStringLiteral(R"(Usage: orl [option...]
Virtual phone numbers whose messages anyone can read.

  --endpoints FILE          read from the hosts that FILE names (also: ORL_ENDPOINTS=FILE)
  --data FOLDER             keep settings and choices in FOLDER
  --choose COUNTRY NUMBER   start with this number chosen
  --reset-consent           ask again about tracking and advertising
  --picture FILE            save a picture of the home screen once it shows messages, and end;
                            exit code 3 when none came within 20 seconds
  --gallery                 show every component in each of its states instead
  --version                 print the version
  --help                    print this text
)");

CommandLine refuse(const QString &problem) {
    return {std::nullopt, QStringLiteral("orl: %1 (see orl --help)\n").arg(problem), 2};
}

} // namespace

CommandLine readCommandLine(const QStringList &arguments) {
    const QString value = QStringLiteral("value");
    const QCommandLineOption endpoints(QStringLiteral("endpoints"), {}, value);
    const QCommandLineOption data(QStringLiteral("data"), {}, value);
    const QCommandLineOption choose(QStringLiteral("choose"), {}, value);
    const QCommandLineOption picture(QStringLiteral("picture"), {}, value);
    const QCommandLineOption resetConsent(QStringLiteral("reset-consent"));
    const QCommandLineOption gallery(QStringLiteral("gallery"));
    const QCommandLineOption version(QStringLiteral("version"));
    const QCommandLineOption help(QStringLiteral("help"));
    QCommandLineParser parser;
    parser.addOptions({endpoints, data, choose, picture, resetConsent, gallery, version, help});

    if (!parser.parse(arguments)) return refuse(parser.errorText());
    if (parser.isSet(help)) return {std::nullopt, usage, 0};
    if (parser.isSet(version)) return {std::nullopt, QStringLiteral("orl " ORL_VERSION "\n"), 0};

    Options options{parser.value(endpoints), parser.value(data),         std::nullopt,
                    parser.value(picture),   parser.isSet(resetConsent), parser.isSet(gallery)};
    const QStringList rest = parser.positionalArguments(); // the parser gives an option one value only
    if (parser.isSet(choose)) {
        if (rest.size() != 1) return refuse(QStringLiteral("--choose needs a country and a number"));
        options.choose = ChosenNumber{parser.value(choose), rest.front()};
    } else if (!rest.isEmpty()) {
        return refuse(QStringLiteral("unexpected argument '%1'").arg(rest.front()));
    }
    return {options, {}, 0};
}

} // namespace orl
