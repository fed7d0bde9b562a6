#pragma once

#include <QStringList>

#include <optional>

namespace orl {

/// A number to start with.
struct ChosenNumber {
    QString country;
    QString number;

    bool operator==(const ChosenNumber &) const = default;
};

/// What the command line asks for.
struct Options {
    QString endpointsFile; ///< empty: ORL_ENDPOINTS, or the constants of the build
    QString dataFolder;    ///< empty: the desktop's
    std::optional<ChosenNumber> choose;
    QString picture;           ///< empty: run as usual
    bool resetConsent = false; ///< ask again about tracking and advertising
    bool gallery = false;      ///< show the components instead

    bool operator==(const Options &) const = default;
};

/// What the command line means: options to run with, or a text to print and an exit code.
struct CommandLine {
    std::optional<Options> options;
    QString text;
    int exitCode = 0;
};

/// `arguments` begins with the program's name.
CommandLine readCommandLine(const QStringList &arguments);

} // namespace orl
