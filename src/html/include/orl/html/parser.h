#pragma once

#include <orl/html/document.h>
#include <orl/html/export.h>
#include <orl/html/parse_error_list.h>
#include <orl/html/parse_settings.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orl::html {

class TreeBuilder;

/// Makes trees of markup. Any text is a page: what is wrong in it is put right as browsers do, and recorded
/// where asked for. What is not well-formed UTF-8 counts as U+FFFD. Costs are linear in the length of the
/// page; a page must be shorter than 2 GiB, or an IllegalArgumentException says so.
///
/// A parser is used by one thread at a time; different ones are independent.
class ORL_HTML_API Parser {
public:
    // ---- Without errors being recorded, with HTML's settings.

    /// A page: the document always has html, head and body (or a frameset).
    static Document parse(std::string_view html, std::string_view baseUri);
    /// The nodes of a piece of markup as they would come if it stood inside `context`, which may be nothing.
    /// They have no parent.
    static std::vector<Node> parseFragment(std::string_view fragment, const Element &context,
                                           std::string_view baseUri);
    /// The nodes of a piece of XML, without a parent.
    static std::vector<Node> parseXmlFragment(std::string_view fragment, std::string_view baseUri);
    /// A document with the fragment as its body.
    static Document parseBodyFragment(std::string_view bodyHtml, std::string_view baseUri);
    static Document parseBodyFragmentRelaxed(std::string_view bodyHtml, std::string_view baseUri) {
        return parseBodyFragment(bodyHtml, baseUri);
    }
    /// The text with its character references resolved. In an attribute a name without a semicolon counts
    /// only where the text does not go on like the query of an address.
    static std::string unescapeEntities(std::string_view text, bool inAttribute);

    // ---- With choices.

    /// Reads HTML, names in lower case.
    static Parser htmlParser();
    /// Reads XML, names as they are written.
    static Parser xmlParser();

    /// With the settings that the builder has by default.
    explicit Parser(std::shared_ptr<TreeBuilder> treeBuilder);

    Document parseInput(std::string_view html, std::string_view baseUri);

    const std::shared_ptr<TreeBuilder> &getTreeBuilder() const { return treeBuilder_; }
    Parser &setTreeBuilder(std::shared_ptr<TreeBuilder> treeBuilder);

    bool isTrackErrors() const { return maxErrors_ > 0; }
    /// How many errors of a page are recorded; 0, which is where a parser starts, for none.
    Parser &setTrackErrors(std::size_t maxErrors);
    /// Of the last page.
    const ParseErrorList &getErrors() const { return errors_; }

    Parser &settings(const ParseSettings &settings);
    const ParseSettings &settings() const { return settings_; }

private:
    std::shared_ptr<TreeBuilder> treeBuilder_;
    std::size_t maxErrors_ = 0;
    ParseErrorList errors_ = ParseErrorList::noTracking();
    ParseSettings settings_;
};

/// Parser::parse and the like, by short names. Without a base URI relative addresses stay unresolved.
ORL_HTML_API Document parse(std::string_view html, std::string_view baseUri = {});
ORL_HTML_API Document parse(std::string_view html, std::string_view baseUri, Parser &parser);
ORL_HTML_API Document parseBodyFragment(std::string_view bodyHtml, std::string_view baseUri = {});

} // namespace orl::html
