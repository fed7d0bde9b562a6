#pragma once

#include <orl/html/document.h>
#include <orl/html/export.h>
#include <orl/html/output_settings.h>
#include <orl/html/whitelist.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace orl::html {

/// Makes trees that hold nothing but what a whitelist allows, by building them anew. Elements that are not
/// allowed leave their children behind in the nearest element that is; scripts, styles and comments leave
/// nothing.
class ORL_HTML_API Cleaner {
public:
    explicit Cleaner(Whitelist whitelist) : whitelist_(std::move(whitelist)) {}

    /// A new document of what is allowed in the other one's body; that one stays as it is.
    Document clean(const Document &dirtyDocument) const;
    /// Whether the body has nothing that clean() would leave out. A document without a body is not valid.
    bool isValid(const Document &dirtyDocument) const;

private:
    class CleaningVisitor;

    /// How many nodes and attributes were left out.
    std::size_t copySafeNodes(const Element &source, const Element &destination) const;

    Whitelist whitelist_;
};

/// The markup, which is to stand inside a body, with nothing in it but what the whitelist allows.
ORL_HTML_API std::string clean(std::string_view bodyHtml, const Whitelist &whitelist);
/// Relative links are seen from the base URI.
ORL_HTML_API std::string clean(std::string_view bodyHtml, std::string_view baseUri,
                               const Whitelist &whitelist);
ORL_HTML_API std::string clean(std::string_view bodyHtml, std::string_view baseUri,
                               const Whitelist &whitelist, const OutputSettings &outputSettings);
ORL_HTML_API bool isValid(std::string_view bodyHtml, const Whitelist &whitelist);

} // namespace orl::html
