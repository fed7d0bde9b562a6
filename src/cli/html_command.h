#pragma once

#include "cli/command_line.h"

#include <QByteArray>
#include <QStringList>

#include <functional>
#include <string_view>

namespace orl {

/// What a command that reads a page has beside its arguments.
struct PageStreams {
    std::function<QByteArray()> input;            ///< all of standard input
    std::function<void(std::string_view)> result; ///< a line of what was asked for, in UTF-8
    std::function<void(const QString &)> notice;  ///< what went wrong, for people
};

/// `orl-cli html`: the document engine for a terminal. It needs neither a phone nor an endpoint.
///
///     select QUERY [FILE]   what a selector finds: as markup, --text, --attr NAME
///     clean [FILE]          markup by one of the engine's whitelists, --preset NAME
///     tree [FILE]           a line a node
///
/// Without FILE the page is standard input. `arguments` are those behind "html". A selector that is none, and
/// a file that cannot be read, are wrong use.
ExitCode runHtmlCommand(const QStringList &arguments, const PageStreams &streams);

} // namespace orl
