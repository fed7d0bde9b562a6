#include "cli/command_line.h"

#include <QCommandLineParser>

#include <algorithm>
#include <array>

namespace orl {

namespace {

struct Shape {
    CommandLine::Command command;
    const char *name;
    int fewest; ///< arguments
    int most;
    const char *usage;
};

constexpr std::array shapes{
    Shape{CommandLine::Command::Countries, "countries", 0, 1, "countries [TERM]"},
    Shape{CommandLine::Command::Numbers, "numbers", 1, 1, "numbers COUNTRY"},
    Shape{CommandLine::Command::Messages, "messages", 2, 2, "messages COUNTRY NUMBER [--watch]"},
};

const Shape *shapeOf(const QString &name) {
    const auto found =
        std::ranges::find(shapes, name, [](const Shape &shape) { return QLatin1String(shape.name); });
    return found == shapes.end() ? nullptr : &*found;
}

Error wrong(const QString &text) {
    return Error{text};
}

} // namespace

Result<CommandLine> CommandLine::parse(const QStringList &arguments) {
    QCommandLineParser parser;
    parser.addOptions({{QStringLiteral("json"), {}},
                       {QStringLiteral("watch"), {}},
                       {{QStringLiteral("help"), QStringLiteral("h")}, {}},
                       {QStringLiteral("version"), {}},
                       {QStringLiteral("endpoints"), {}, QStringLiteral("FILE")}});
    if (!parser.parse(arguments)) return wrong(parser.errorText());

    CommandLine line;
    line.json = parser.isSet(QStringLiteral("json"));
    line.watch = parser.isSet(QStringLiteral("watch"));
    line.endpointsFile = parser.value(QStringLiteral("endpoints"));
    line.arguments = parser.positionalArguments();
    if (parser.isSet(QStringLiteral("help"))) return line;
    if (parser.isSet(QStringLiteral("version"))) {
        line.command = Command::Version;
        return line;
    }
    if (line.arguments.isEmpty()) return wrong(QStringLiteral("a command is missing"));

    const QString name = line.arguments.takeFirst();
    const Shape *shape = shapeOf(name);
    if (!shape) return wrong(QStringLiteral("unknown command \"%1\"").arg(name));
    const qsizetype count = line.arguments.size();
    if (count < shape->fewest || count > shape->most)
        return wrong(QStringLiteral("usage: orl-cli ") + QLatin1String(shape->usage));
    if (line.watch && shape->command != Command::Messages)
        return wrong(QStringLiteral("--watch goes with messages only"));
    line.command = shape->command;
    return line;
}

QString CommandLine::help() {
    return QStringLiteral(R"(orl-cli COMMAND [option...]   Orl in a terminal

  countries [TERM]             the countries with numbers; TERM is a part of a name or of a dialling prefix
  numbers COUNTRY              the numbers of a country
  messages COUNTRY NUMBER      the messages of a number, newest at the bottom
      --watch                  stay, and print each new message as it arrives

  html COMMAND                 the document engine for files of your own: orl-cli html --help

  --json                       JSON instead of text: one list, with --watch one object per line
  --endpoints FILE             read the endpoints of FILE (lines of key=value) instead of those of the build;
                               ORL_ENDPOINTS names such a file too
  --help, --version

Everybody can read the messages of a public number. Without endpoints the program reads its own demo host.
Exit code: 0 done, 1 nothing found, 2 wrong use, 3 an endpoint failed.
)");
}

} // namespace orl
