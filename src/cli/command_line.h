#pragma once

#include "platform/result.h"

#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

namespace orl {

/// How orl-cli ends.
enum class ExitCode { Done = 0, NothingFound = 1, WrongUse = 2, EndpointFailed = 3 };

/// What the user typed, checked.
struct CommandLine {
    enum class Command {
        Help,
        Version,
        Countries,
        Numbers,
        Messages,
        History,
        Choose,
        Wait,
        Mail,
        MailShow,
        MailWait,
        Identity
    };

    Command command = Command::Help;
    QStringList arguments; ///< those of the command, without options
    bool json = false;
    bool watch = false;
    bool code = false;
    bool text = false;                           ///< of MailShow
    std::optional<std::chrono::seconds> timeout; ///< of the waits; nothing: as long as it takes
    QString gender, nameSet, country;            ///< of Identity, as typed
    QString dataFolder;                          ///< of History and Choose; empty: the application's own
    QString endpointsFile;                       ///< empty: the ones of the build

    /// Whether the command is about what the application keeps. All others leave no trace.
    bool usesData() const { return command == Command::History || command == Command::Choose; }

    bool isAboutMail() const {
        return command == Command::Mail || command == Command::MailShow || command == Command::MailWait;
    }

    /// An error names what is wrong with the arguments, in one line.
    static Result<CommandLine> parse(const QStringList &arguments);

    static QString help();
};

} // namespace orl
