#pragma once

#include <orl/html/element.h>
#include <orl/html/elements.h>
#include <orl/html/export.h>
#include <orl/html/output_settings.h>

#include <string>
#include <string_view>

namespace orl::html {

/// How far a page asked to be rendered as pages of old were.
enum class QuirksMode : unsigned char { noQuirks, quirks, limitedQuirks };

/// The root of a page. Its tag is "#root" and its node name "#document".
class ORL_HTML_API Document : public Element {
public:
    /// Nothing; an empty document is `Document("")`.
    Document() = default;
    explicit Document(std::string_view baseUri);

    /// A document with an "html" element that holds an empty "head" and "body".
    static Document createShell(std::string_view baseUri);

    /// The base URI that the document was made with.
    std::string location() const;
    /// The first element of that name, or nothing.
    Element head() const;
    Element body() const;
    /// The text of the first "title", with single blanks and trimmed; "" without one.
    std::string title() const;
    /// Of the first "title", or of a new one in the head; without a head nothing happens.
    const Document &title(std::string_view title) const;
    /// A new element without a parent, its name taken as it is, with the document's base URI.
    Element createElement(std::string_view tagName) const;
    using Element::text;
    /// Of the body. A document without a body stays as it is.
    const Document &text(std::string_view text) const;

    /// Brings the tree into the form of a page: one html element with one head and one body, and the text
    /// that stands outside at the start of the body.
    const Document &normalise() const;

    /// The encoding of the output settings.
    TextEncoding charset() const;
    /// Sets it, and keeps a declaration of it in the document from now on: a "meta" element in the head, or
    /// in XML syntax an XML declaration at the start.
    void charset(const TextEncoding &encoding) const;
    /// By name; an unknown one fails with an IllegalArgumentException.
    void charset(std::string_view name) const;
    bool updateMetaCharsetElement() const;
    void updateMetaCharsetElement(bool update) const;
    /// Writes that declaration if updateMetaCharsetElement is true.
    void ensureMetaCharsetElement() const;

    /// Valid as long as the document is; changing them changes how it prints.
    OutputSettings &outputSettings() const;
    const Document &outputSettings(const OutputSettings &settings) const;
    QuirksMode quirksMode() const;
    const Document &quirksMode(QuirksMode mode) const;

    /// html(): a document has no tag of its own.
    std::string outerHtml() const { return html(); }
    using Element::outerHtml;
    std::string toString() const { return html(); }

    Document copy() const { return Node::copy().as<Document>(); }

    explicit Document(core::NodeRec *record) : Element(record) {}
    static bool isKindOf(const core::NodeRec *record);
};

} // namespace orl::html
