#include "cli/commands.h"
#include "cli/html_command.h"
#include "cli/mail_command.h"
#include "cli/port_watch.h"
#include "cli/qr_command.h"
#include "demo/endpoints_in_force.h"
#include "platform/qt/linux_platform.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <cstdio>

namespace {

using namespace orl;

void printLine(std::FILE *stream, const QString &line) {
    std::fprintf(stream, "%s\n", line.toUtf8().constData());
    std::fflush(stream);
}

int endWith(ExitCode code, const QString &notice) {
    printLine(stderr, QStringLiteral("orl-cli: ") + notice);
    return int(code);
}

/// Showing a number's messages makes it the current one; the application's own choice changes only where that
/// was asked for.
QString dataFolderFor(const CommandLine &line, const QTemporaryDir &scratch) {
    if (!line.usesData()) return scratch.path();
    return line.dataFolder.isEmpty() ? LinuxPlatform::defaultDataFolder() : line.dataFolder;
}

int runCommand(const CommandLine &line, const Endpoints &endpoints) {
    const QTemporaryDir scratch;
    LinuxPlatform phone(
        {.dataFolder = dataFolderFor(line, scratch),
         .endpoints = endpoints,
         .infoValues = {{QStringLiteral("CFBundleDisplayName"), QStringLiteral("Orl")},
                        {QStringLiteral("CFBundleShortVersionString"), QStringLiteral(ORL_VERSION)}}});
    const Platform ports = phone.platform();
    IdleWatch idle(ports.globalQueue, ports.mainQueue);
    ReadWatch reads(ports.urlReader);
    ConsoleWatch console(ports.console);
    NoNetwork noNetwork;
    const bool offline = line.command == CommandLine::Command::History;
    Process process(ports.with(idle, reads, console, offline ? noNetwork : ports.reachability));
    const Commands::Output output{
        [](const QString &result) { printLine(stdout, result); },
        [](const QString &notice) { printLine(stderr, QStringLiteral("orl-cli: ") + notice); }};
    const auto end = [](ExitCode code) { QCoreApplication::exit(int(code)); };
    Commands commands(process, idle, reads, output);
    MailCommand mail(process, idle, reads, output);
    if (line.isAboutMail())
        mail.run(line, end);
    else
        commands.run(line, end);
    const int code = QCoreApplication::exec();
    console.end();
    phone.stop();
    return code;
}

/// Nothing is flushed in between: a page may have many lines.
int runHtml(const QStringList &arguments) {
    const ExitCode code = runHtmlCommand(
        arguments, {[] {
                        QFile input;
                        return input.open(stdin, QIODevice::ReadOnly) ? input.readAll() : QByteArray();
                    },
                    [](std::string_view line) {
                        std::fwrite(line.data(), 1, line.size(), stdout);
                        std::fputc('\n', stdout);
                    },
                    [](const QString &notice) { printLine(stderr, QStringLiteral("orl-cli: ") + notice); }});
    return int(code);
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("orl"));

    const QStringList typed = QCoreApplication::arguments();
    if (typed.value(1) == QLatin1String("html")) return runHtml(typed.mid(2));
    if (typed.value(1) == QLatin1String("qr")) {
        return int(runQrCommand(
            typed.mid(2), [](const QString &result) { printLine(stdout, result); },
            [](const QString &notice) { printLine(stderr, QStringLiteral("orl-cli: ") + notice); }));
    }

    const Result<CommandLine> line = CommandLine::parse(typed);
    if (!line.ok())
        return endWith(ExitCode::WrongUse, line.error().description + QStringLiteral(" (see --help)"));
    if (line.value().command == CommandLine::Command::Help) {
        printLine(stdout, CommandLine::help().trimmed());
        return int(ExitCode::Done);
    }
    if (line.value().command == CommandLine::Command::Version) {
        printLine(stdout, QStringLiteral("orl-cli " ORL_VERSION));
        return int(ExitCode::Done);
    }
    const Result<std::shared_ptr<EndpointsInForce>> inForce =
        EndpointsInForce::open(line.value().endpointsFile);
    if (!inForce.ok()) return endWith(ExitCode::WrongUse, inForce.error().description);
    return runCommand(line.value(), inForce.value()->endpoints());
}
