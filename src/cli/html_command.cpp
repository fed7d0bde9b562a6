#include "cli/html_command.h"

#include <QCommandLineParser>
#include <QFile>
#include <orl/html/html.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

namespace orl {

namespace {

constexpr const char *usage = R"(orl-cli html COMMAND [option...] [FILE]   the document engine in a terminal

  select QUERY [FILE]          the elements that a CSS selector finds, one after the other
      --outer                  as markup; the default
      --text                   their text
      --attr NAME              an attribute of those that have it; abs:NAME makes its URL absolute
  clean [FILE] --preset NAME   markup with nothing but what a whitelist allows: none, simple-text, basic,
                               basic-with-images or relaxed
  tree [FILE]                  the tree of a page, one node a line

Without FILE the page comes from standard input.
Exit code: 0 done, 1 nothing found, 2 wrong use.
)";

/// A mistake of whoever typed the command, in one line.
struct WrongUse {
    QString text;
};

struct Preset {
    const char *name;
    html::Whitelist (*make)();
};
constexpr std::array presets{
    Preset{"none", html::Whitelist::none},
    Preset{"simple-text", html::Whitelist::simpleText},
    Preset{"basic", html::Whitelist::basic},
    Preset{"basic-with-images", html::Whitelist::basicWithImages},
    Preset{"relaxed", html::Whitelist::relaxed},
};

std::string textOf(const QString &text) {
    return text.toStdString();
}

// ---- The tree

/// The form in which parser test suites write a node down.
std::string lineOf(const html::Node &node) {
    if (node.is<html::TextNode>()) return '"' + node.as<html::TextNode>().getWholeText() + '"';
    if (node.is<html::DataNode>()) return '"' + node.as<html::DataNode>().getWholeData() + '"';
    if (node.is<html::Comment>()) return "<!-- " + node.as<html::Comment>().getData() + " -->";
    if (!node.is<html::DocumentType>()) return '<' + node.nodeName() + '>';
    const std::string publicId = node.attr("publicId"), systemId = node.attr("systemId");
    std::string line = "<!DOCTYPE " + node.attr("name");
    if (!publicId.empty() || !systemId.empty())
        line.append(" \"").append(publicId).append("\" \"").append(systemId).append("\"");
    return line + '>';
}

class TreePrinter final : public html::NodeVisitor {
public:
    explicit TreePrinter(const PageStreams &streams) : streams_(streams) {}

    void head(const html::Node &node, int depth) override {
        if (depth == 0) return; // the document itself
        const std::string margin = "| " + std::string(2 * std::size_t(depth - 1), ' ');
        streams_.result(margin + lineOf(node));
        if (!node.is<html::Element>()) return;
        std::vector<std::pair<std::string, std::string>> attributes;
        for (const html::Attribute &attribute : node.getAttributes())
            attributes.emplace_back(attribute.getKey(), attribute.getValue());
        std::ranges::sort(attributes);
        for (const auto &[key, value] : attributes)
            streams_.result(margin + "  " + key + "=\"" + value + '"');
    }
    void tail(const html::Node &, int) override {}

private:
    const PageStreams &streams_;
};

// ---- The commands

class HtmlCommand {
public:
    HtmlCommand(const QStringList &arguments, const PageStreams &streams) : streams_(streams) {
        parser_.addOptions({{QStringLiteral("text"), {}},
                            {QStringLiteral("attr"), {}, QStringLiteral("NAME")},
                            {QStringLiteral("outer"), {}},
                            {QStringLiteral("preset"), {}, QStringLiteral("NAME")},
                            {{QStringLiteral("help"), QStringLiteral("h")}, {}}});
        if (!parser_.parse(QStringList{QStringLiteral("orl-cli")} + arguments))
            throw WrongUse{parser_.errorText()};
        arguments_ = parser_.positionalArguments();
    }

    ExitCode run() {
        if (isSet("help")) {
            streams_.result(std::string_view(usage, std::char_traits<char>::length(usage) - 1));
            return ExitCode::Done;
        }
        if (arguments_.isEmpty()) throw WrongUse{QStringLiteral("html needs a command")};
        const QString command = arguments_.takeFirst();
        if (command == QLatin1String("select")) return select();
        if (command == QLatin1String("clean")) return clean();
        if (command == QLatin1String("tree")) return tree();
        throw WrongUse{QStringLiteral("unknown command \"html %1\"").arg(command)};
    }

private:
    bool isSet(const char *option) const { return parser_.isSet(QLatin1String(option)); }

    ExitCode select() {
        const int ways = int(isSet("text")) + int(isSet("attr")) + int(isSet("outer"));
        if (arguments_.isEmpty() || ways > 1 || isSet("preset"))
            throw WrongUse{
                QStringLiteral("usage: orl-cli html select QUERY [FILE] [--text | --attr NAME | --outer]")};
        const std::string query = textOf(arguments_.takeFirst());
        const html::EvaluatorPtr evaluator = html::QueryParser::parse(query); // fails before the page is read
        const html::Document page = readPage();
        page.outputSettings().prettyPrint(false);
        const std::string key = textOf(parser_.value(QStringLiteral("attr")));
        if (isSet("attr") && key.empty()) throw WrongUse{QStringLiteral("--attr needs a name")};
        bool found = false;
        for (const html::Element &element : html::CssSelector::select(evaluator, page)) {
            if (isSet("attr") && !element.hasAttr(key)) continue;
            found = true;
            streams_.result(isSet("text")   ? element.text()
                            : isSet("attr") ? element.attr(key)
                                            : element.outerHtml());
        }
        if (!found) streams_.notice(QStringLiteral("nothing found"));
        return found ? ExitCode::Done : ExitCode::NothingFound;
    }

    ExitCode clean() {
        const QString name = parser_.value(QStringLiteral("preset"));
        if (!isSet("preset") || isSet("text") || isSet("attr") || isSet("outer"))
            throw WrongUse{QStringLiteral("usage: orl-cli html clean [FILE] --preset NAME")};
        const auto *preset =
            std::ranges::find_if(presets, [&name](const Preset &p) { return name == QLatin1String(p.name); });
        if (preset == presets.end())
            throw WrongUse{
                QStringLiteral("unknown preset \"%1\": none, simple-text, basic, basic-with-images "
                               "and relaxed are known")
                    .arg(name)};
        streams_.result(html::clean(readText().toStdString(), preset->make()));
        return ExitCode::Done;
    }

    ExitCode tree() {
        if (isSet("text") || isSet("attr") || isSet("outer") || isSet("preset"))
            throw WrongUse{QStringLiteral("usage: orl-cli html tree [FILE]")};
        TreePrinter printer(streams_);
        readPage().traverse(printer);
        return ExitCode::Done;
    }

    html::Document readPage() { return html::parse(readText().toStdString()); }

    QByteArray readText() {
        if (arguments_.size() > 1)
            throw WrongUse{QStringLiteral("one file at a time, not \"%1\" too").arg(arguments_.at(1))};
        QByteArray text;
        if (arguments_.isEmpty()) {
            text = streams_.input();
        } else {
            QFile file(arguments_.first());
            if (!file.open(QIODevice::ReadOnly))
                throw WrongUse{
                    QStringLiteral("cannot read %1: %2").arg(arguments_.first(), file.errorString())};
            text = file.readAll();
        }
        return text.startsWith("\xef\xbb\xbf") ? text.mid(3) : text;
    }

    const PageStreams &streams_;
    QCommandLineParser parser_;
    QStringList arguments_;
};

} // namespace

ExitCode runHtmlCommand(const QStringList &arguments, const PageStreams &streams) {
    try {
        return HtmlCommand(arguments, streams).run();
    } catch (const WrongUse &wrong) {
        streams.notice(wrong.text + QStringLiteral(" (see orl-cli html --help)"));
    } catch (const html::Exception::Error &error) {
        streams.notice(QString::fromStdString(error.Message));
    }
    return ExitCode::WrongUse;
}

} // namespace orl
