#pragma once

#include "platform/result.h"

#include <QString>
#include <QStringList>

namespace orl {

/// How orl-cli ends.
enum class ExitCode { Done = 0, NothingFound = 1, WrongUse = 2, EndpointFailed = 3 };

/// What the user typed, checked.
struct CommandLine {
    enum class Command { Help, Version, Countries, Numbers, Messages };

    Command command = Command::Help;
    QStringList arguments; ///< those of the command, without options
    bool json = false;
    bool watch = false;
    QString endpointsFile; ///< empty: the ones of the build

    /// An error names what is wrong with the arguments, in one line.
    static Result<CommandLine> parse(const QStringList &arguments);

    static QString help();
};

} // namespace orl
