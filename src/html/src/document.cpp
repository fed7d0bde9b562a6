#include "orl/html/document.h"

#include "attrs.h"
#include "checks.h"
#include "orl/html/string_util.h"
#include "search.h"
#include "text.h"
#include "tree.h"
#include "utf8.h"

namespace orl::html {

using namespace core;

namespace {

NodeRec *newDocument(std::string_view baseUri) {
    Arena *arena = Arena::create(0);
    arena->setBaseUri(baseUri);
    return arena->newDocument(storeText(*arena, baseUri));
}

/// The first element of exactly this name, in document order.
Element findFirstElementByTagName(std::string_view tag, NodeRec *node) {
    return Element(findFirst(node, [tag](NodeRec *element) {
        return kindOf(element) != Kind::Document && tagOf(element)->name() == tag;
    }));
}

/// Moves the text that stands right below the element to the start of the body, a blank after each piece.
void normaliseTextNodes(const Element &element, const Element &body) {
    const std::vector<TextNode> nodes = element.textNodes();
    for (std::size_t i = nodes.size(); i-- > 0;) {
        if (nodes[i].isBlank()) continue;
        nodes[i].remove();
        body.prependText(" ");
        body.prependChild(nodes[i]);
    }
}

/// Makes one of all elements of the tag, and a child of the html element.
void normaliseStructure(const Document &document, std::string_view tag, const Element &htmlElement) {
    const Elements all = document.getElementsByTag(tag);
    const Element first = all.first();
    std::vector<Node> moved;
    for (std::size_t i = 1; i < all.size(); ++i) {
        for (const Node &node : all[i].getChildNodes())
            moved.push_back(node);
        all[i].remove();
    }
    for (const Node &node : moved)
        first.appendChild(node);
    if (first.parent() != htmlElement) htmlElement.appendChild(first);
}

} // namespace

Document::Document(std::string_view baseUri) : Document(newDocument(baseUri)) {}

Document Document::createShell(std::string_view baseUri) {
    const Document document(baseUri);
    const Element html = document.appendElement("html");
    html.appendElement("head");
    html.appendElement("body");
    return document;
}

bool Document::isKindOf(const core::NodeRec *record) {
    return kindOf(record) == Kind::Document;
}

std::string Document::location() const {
    const DocumentRec *document = documentOf(record_);
    return {document->location, document->locationLength};
}

Element Document::head() const {
    return findFirstElementByTagName("head", record_);
}

Element Document::body() const {
    return findFirstElementByTagName("body", record_);
}

std::string Document::title() const {
    const Element title = getElementsByTag("title").first();
    return title ? std::string(trimmed(StringUtil::normaliseWhitespace(title.text()))) : std::string();
}

const Document &Document::title(std::string_view text) const {
    if (const Element title = getElementsByTag("title").first())
        title.text(text);
    else if (const Element top = head())
        top.appendElement("title").text(text);
    return *this;
}

Element Document::createElement(std::string_view tagName) const {
    return Element(newElementLike(record_, tagName));
}

const Document &Document::text(std::string_view text) const {
    if (const Element element = body()) element.text(text);
    return *this;
}

const Document &Document::normalise() const {
    Element html = findFirstElementByTagName("html", record_);
    if (!html) html = appendElement("html");
    Element top = head();
    if (!top) top = html.prependElement("head");
    Element main = body();
    if (!main) main = html.appendElement("body");
    for (const Element &element : {top, html, Element(*this)})
        normaliseTextNodes(element, main);
    normaliseStructure(*this, "head", html);
    normaliseStructure(*this, "body", html);
    ensureMetaCharsetElement();
    return *this;
}

// ---- Encoding ----

TextEncoding Document::charset() const {
    return outputSettings().encoder();
}

void Document::charset(const TextEncoding &encoding) const {
    updateMetaCharsetElement(true);
    outputSettings().encoder(encoding);
    ensureMetaCharsetElement();
}

void Document::charset(std::string_view name) const {
    charset(OutputSettings().charset(name).encoder());
}

bool Document::updateMetaCharsetElement() const {
    return documentOf(record_)->updateMetaCharset;
}

void Document::updateMetaCharsetElement(bool update) const {
    documentOf(record_)->updateMetaCharset = update;
}

namespace {

void ensureMeta(const Document &document, const std::string &encoding) {
    Elements metas = document.getElementsByTag("meta");
    Element declaring;
    for (const Element &meta : metas)
        if (!declaring && meta.hasAttr("charset")) declaring = meta;
    if (declaring)
        declaring.attr("charset", encoding);
    else if (const Element top = document.head())
        top.appendElement("meta").attr("charset", encoding);
    for (const Element &meta : metas)
        if (lowerCase(trimmed(meta.attr("name"))) == "charset") meta.remove();
}

void ensureDeclaration(const Document &document, const std::string &encoding) {
    const auto first = document.firstChild().as<XmlDeclaration>();
    if (first && first.name() == "xml") {
        first.attr("encoding", encoding);
        if (first.attr("version").empty()) first.attr("version", "1.0");
        return;
    }
    const XmlDeclaration made("xml", document.getBaseUri(), false);
    made.attr("version", "1.0");
    made.attr("encoding", encoding);
    document.prependChild(made);
}

} // namespace

void Document::ensureMetaCharsetElement() const {
    if (!updateMetaCharsetElement()) return;
    const std::string encoding = charset().name();
    if (outputSettings().syntax() == OutputSettings::Syntax::html)
        ensureMeta(*this, encoding);
    else
        ensureDeclaration(*this, encoding);
}

// ---- Settings ----

OutputSettings &Document::outputSettings() const {
    return settingsOf(record_);
}

const Document &Document::outputSettings(const OutputSettings &settings) const {
    settingsOf(record_) = settings;
    return *this;
}

QuirksMode Document::quirksMode() const {
    return documentOf(record_)->quirksMode;
}

const Document &Document::quirksMode(QuirksMode mode) const {
    documentOf(record_)->quirksMode = mode;
    return *this;
}

} // namespace orl::html
