#include "orl/html/parser.h"

#include "html_tree_builder.h"
#include "orl/html/attributes.h"
#include "tokeniser.h"
#include "utf8.h"
#include "xml_tree_builder.h"

#include <utility>

namespace orl::html {

using namespace core;

namespace {

/// The nodes as handles, taken while the arena is held.
template<class Builder>
std::vector<Node> fragmentOf(Arena &arena, std::string_view fragment, NodeRec *context,
                             std::string_view baseUri) {
    const ArenaHold hold(&arena);
    Builder builder;
    auto errors = ParseErrorList::noTracking();
    std::vector<Node> nodes;
    for (NodeRec *node :
         builder.parseFragment(arena, fragment, context, baseUri, errors, builder.defaultSettings()))
        nodes.emplace_back(node);
    return nodes;
}

Arena &arenaFor(std::string_view fragment, std::string_view baseUri) {
    Arena *const arena = Arena::create(fragment.size());
    arena->setBaseUri(baseUri);
    return *arena;
}

} // namespace

std::string ParseSettings::normalizeTag(std::string_view name) const {
    name = trimmed(name);
    return preserveTagCase_ ? std::string(name) : lowerCase(name);
}

std::string ParseSettings::normalizeAttribute(std::string_view name) const {
    name = trimmed(name);
    return preserveAttributeCase_ ? std::string(name) : lowerCase(name);
}

Attributes &ParseSettings::normalizeAttributes(Attributes &attributes) const {
    if (!preserveAttributeCase_) attributes.lowercaseAllKeys();
    return attributes;
}

Document Parser::parse(std::string_view html, std::string_view baseUri) {
    HtmlTreeBuilder builder;
    auto errors = ParseErrorList::noTracking();
    return builder.parse(html, baseUri, errors, builder.defaultSettings());
}

std::vector<Node> Parser::parseFragment(std::string_view fragment, const Element &context,
                                        std::string_view baseUri) {
    Arena &arena = context ? arenaOf(context.record()) : arenaFor(fragment, baseUri);
    return fragmentOf<HtmlTreeBuilder>(arena, fragment, context.record(), baseUri);
}

std::vector<Node> Parser::parseXmlFragment(std::string_view fragment, std::string_view baseUri) {
    return fragmentOf<XmlTreeBuilder>(arenaFor(fragment, baseUri), fragment, nullptr, baseUri);
}

Document Parser::parseBodyFragment(std::string_view bodyHtml, std::string_view baseUri) {
    Document document = Document::createShell(baseUri);
    const Element body = document.body();
    for (const Node &node : parseFragment(bodyHtml, body, baseUri))
        body.appendChild(node);
    return document;
}

std::string Parser::unescapeEntities(std::string_view text, bool inAttribute) {
    return core::unescapeEntities(text, inAttribute);
}

Parser::Parser(std::shared_ptr<TreeBuilder> treeBuilder)
    : treeBuilder_(std::move(treeBuilder)), settings_(treeBuilder_->defaultSettings()) {}

Parser Parser::htmlParser() {
    return Parser(std::make_shared<HtmlTreeBuilder>());
}

Parser Parser::xmlParser() {
    return Parser(std::make_shared<XmlTreeBuilder>());
}

Document Parser::parseInput(std::string_view html, std::string_view baseUri) {
    errors_ = isTrackErrors() ? ParseErrorList::tracking(maxErrors_) : ParseErrorList::noTracking();
    return treeBuilder_->parse(html, baseUri, errors_, settings_);
}

Parser &Parser::setTreeBuilder(std::shared_ptr<TreeBuilder> treeBuilder) {
    treeBuilder_ = std::move(treeBuilder);
    return *this;
}

Parser &Parser::setTrackErrors(std::size_t maxErrors) {
    maxErrors_ = maxErrors;
    return *this;
}

Parser &Parser::settings(const ParseSettings &settings) {
    settings_ = settings;
    return *this;
}

Document parse(std::string_view html, std::string_view baseUri) {
    return Parser::parse(html, baseUri);
}

Document parse(std::string_view html, std::string_view baseUri, Parser &parser) {
    return parser.parseInput(html, baseUri);
}

Document parseBodyFragment(std::string_view bodyHtml, std::string_view baseUri) {
    return Parser::parseBodyFragment(bodyHtml, baseUri);
}

} // namespace orl::html
