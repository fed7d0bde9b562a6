#include "cli/command_line.h"

#include "mail/address.h"

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

constexpr char mailUsage[] = "mail ADDRESS [--watch], mail ADDRESS show ID [--text] or mail ADDRESS wait";

constexpr std::array shapes{
    Shape{CommandLine::Command::Countries, "countries", 0, 1, "countries [TERM]"},
    Shape{CommandLine::Command::Numbers, "numbers", 1, 1, "numbers COUNTRY"},
    Shape{CommandLine::Command::Messages, "messages", 2, 2, "messages COUNTRY NUMBER [--watch]"},
    Shape{CommandLine::Command::History, "history", 0, 0, "history"},
    Shape{CommandLine::Command::Choose, "choose", 2, 2, "choose COUNTRY NUMBER"},
    Shape{CommandLine::Command::Wait, "wait", 2, 2, "wait COUNTRY NUMBER [--code] [--timeout SECONDS]"},
    Shape{CommandLine::Command::Mail, "mail", 1, 3, mailUsage},
    Shape{CommandLine::Command::Identity, "identity", 0, 0,
          "identity [--gender GENDER] [--name-set NAMES] [--country COUNTRY]"},
};

const Shape *shapeOf(const QString &name) {
    const auto found =
        std::ranges::find(shapes, name, [](const Shape &shape) { return QLatin1String(shape.name); });
    return found == shapes.end() ? nullptr : &*found;
}

Error wrong(const QString &text) {
    return Error{text};
}

/// What is wrong with options that a command does not take, or an empty text.
QString misplacedOption(const CommandLine &line, bool hasTimeout) {
    using Command = CommandLine::Command;
    const bool waits = line.command == Command::Wait || line.command == Command::MailWait;
    if (line.watch && line.command != Command::Messages && line.command != Command::Mail)
        return QStringLiteral("--watch goes with messages and mail only");
    if (line.code && !waits) return QStringLiteral("--code goes with wait only");
    if (hasTimeout && !waits) return QStringLiteral("--timeout goes with wait only");
    if (line.text && line.command != Command::MailShow)
        return QStringLiteral("--text goes with mail ADDRESS show only");
    if (!line.dataFolder.isEmpty() && !line.usesData())
        return QStringLiteral("--data goes with history and choose only");
    if (!(line.gender + line.nameSet + line.country).isEmpty() && line.command != Command::Identity)
        return QStringLiteral("--gender, --name-set and --country go with identity only");
    return {};
}

/// What follows an address; nothing for words that are no command.
std::optional<CommandLine::Command> mailCommand(const QStringList &arguments) {
    if (arguments.size() == 1) return CommandLine::Command::Mail;
    if (arguments.size() == 3 && arguments[1] == QLatin1String("show")) return CommandLine::Command::MailShow;
    if (arguments.size() == 2 && arguments[1] == QLatin1String("wait")) return CommandLine::Command::MailWait;
    return std::nullopt;
}

constexpr int longestTimeout = 7 * 24 * 60 * 60; // seconds

std::optional<std::chrono::seconds> secondsFrom(const QString &text) {
    bool isNumber = false;
    const int seconds = text.toInt(&isNumber);
    if (!isNumber || seconds < 1 || seconds > longestTimeout) return std::nullopt;
    return std::chrono::seconds(seconds);
}

} // namespace

Result<CommandLine> CommandLine::parse(const QStringList &arguments) {
    QCommandLineParser parser;
    parser.addOptions({{QStringLiteral("json"), {}},
                       {QStringLiteral("watch"), {}},
                       {QStringLiteral("code"), {}},
                       {QStringLiteral("text"), {}},
                       {QStringLiteral("timeout"), {}, QStringLiteral("SECONDS")},
                       {QStringLiteral("data"), {}, QStringLiteral("FOLDER")},
                       {QStringLiteral("gender"), {}, QStringLiteral("GENDER")},
                       {QStringLiteral("name-set"), {}, QStringLiteral("NAMES")},
                       {QStringLiteral("country"), {}, QStringLiteral("COUNTRY")},
                       {{QStringLiteral("help"), QStringLiteral("h")}, {}},
                       {QStringLiteral("version"), {}},
                       {QStringLiteral("endpoints"), {}, QStringLiteral("FILE")}});
    if (!parser.parse(arguments)) return wrong(parser.errorText());

    CommandLine line;
    line.json = parser.isSet(QStringLiteral("json"));
    line.watch = parser.isSet(QStringLiteral("watch"));
    line.code = parser.isSet(QStringLiteral("code"));
    line.text = parser.isSet(QStringLiteral("text"));
    line.gender = parser.value(QStringLiteral("gender"));
    line.nameSet = parser.value(QStringLiteral("name-set"));
    line.country = parser.value(QStringLiteral("country"));
    line.dataFolder = parser.value(QStringLiteral("data"));
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
    line.command = shape->command;
    if (line.command == Command::Mail) {
        const std::optional<Command> command = mailCommand(line.arguments);
        if (!command) return wrong(QStringLiteral("usage: orl-cli ") + QLatin1String(mailUsage));
        if (!isWellFormedAddress(line.arguments[0]))
            return wrong(QStringLiteral("\"%1\" is no mail address").arg(line.arguments[0]));
        line.command = *command;
    }
    const QString timeout = parser.value(QStringLiteral("timeout"));
    if (const QString problem = misplacedOption(line, !timeout.isEmpty()); !problem.isEmpty())
        return wrong(problem);
    line.timeout = secondsFrom(timeout);
    if (!timeout.isEmpty() && !line.timeout) return wrong(QStringLiteral("--timeout needs whole seconds"));
    return line;
}

QString CommandLine::help() {
    return QStringLiteral(R"(orl-cli COMMAND [option...]   Orl in a terminal

  countries [TERM]             the countries with numbers; TERM is a part of a name or of a dialling prefix
  numbers COUNTRY              the numbers of a country
  messages COUNTRY NUMBER      the messages of a number, newest at the bottom
      --watch                  stay, and print each new message as it arrives
  wait COUNTRY NUMBER          the next message that arrives; earlier ones do not count
      --code                   its first code or link alone; messages without either do not count
      --timeout SECONDS        give up after so long
  choose COUNTRY NUMBER        make a number the one that the application shows
  history                      the numbers that were chosen, newest first
      --data FOLDER            of both: the application's data in FOLDER

  mail ADDRESS                 the mails of an inbox, newest at the bottom; any address has one
      --watch                  stay, and print each new mail as it arrives
  mail ADDRESS show ID         a mail as it was sent
      --text                   its words alone
  mail ADDRESS wait            the next mail that arrives; earlier ones do not count
      --code, --timeout        as for wait; the code may be in the subject

  identity                     a made-up person
      --gender GENDER          male or female; random if left open
      --name-set NAMES         whose names, such as english or japanese
      --country COUNTRY        where the person lives, such as united-states

  qr TEXT                      a text as a QR code: orl-cli qr --help
  html COMMAND                 the document engine for files of your own: orl-cli html --help

  --json                       JSON instead of text: one list, with --watch one object per line
  --endpoints FILE             read the endpoints of FILE (lines of key=value) instead of those of the build;
                               ORL_ENDPOINTS names such a file too
  --help, --version

Everybody can read the messages of a public number, and the mails of an address. Without endpoints the program reads its own demo host.
Exit code: 0 done, 1 nothing found or come, 2 wrong use, 3 an endpoint failed.
)");
}

} // namespace orl
