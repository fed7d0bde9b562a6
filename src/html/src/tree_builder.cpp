#include "tree_builder.h"

#include "utf8.h"

namespace orl::html {

using namespace core;

TreeBuilder::~TreeBuilder() = default;

Document TreeBuilder::parse(std::string_view input, std::string_view baseUri, ParseErrorList &errors,
                            const ParseSettings &settings) {
    Arena *const arena = Arena::create(input.size());
    const ArenaHold hold(arena);
    arena->setBaseUri(baseUri);
    const Parse parse(*this);
    initialiseParse(*arena, input, baseUri, errors, settings);
    Document document(doc_);
    arena->classes.start();
    runParser();
    arena->classes.finish(*arena, doc_);
    return document;
}

/// The page is made well-formed on the way in, so that nobody below has to think of it.
void TreeBuilder::initialiseParse(Arena &arena, std::string_view input, std::string_view baseUri,
                                  ParseErrorList &errors, const ParseSettings &settings) {
    arena_ = &arena;
    std::string made;
    if (validPrefix(input) != input.size()) {
        made = repaired(input);
        input = made;
    }
    errors_ = errors.canAddError() ? &errors : nullptr;
    settings_ = settings;
    baseUri_ = baseUri;
    open_.clear();
    currentToken_ = nullptr;
    reader_.emplace(std::string_view(arena.retain(input), input.size()));
    tokeniser_.emplace(*reader_, arena, errors_, settings);
    doc_ = arena.newDocument(baseUri);
}

void TreeBuilder::runParser() {
    for (;;) {
        Token &token = tokeniser_->read();
        process(token);
        if (token.isEOF()) return;
    }
}

void TreeBuilder::endParse() {
    open_.clear();
    currentToken_ = nullptr;
    errors_ = nullptr;
    tokeniser_.reset();
    reader_.reset();
}

bool TreeBuilder::processStartTag(TagId id) {
    Token *const outer = currentToken_;
    Token::StartTag tag;
    tag.resetTo(id);
    const bool processed = process(tag);
    currentToken_ = outer;
    return processed;
}

bool TreeBuilder::processEndTag(TagId id) {
    Token *const outer = currentToken_;
    Token::EndTag tag;
    tag.resetTo(id);
    const bool processed = process(tag);
    currentToken_ = outer;
    return processed;
}

const TagRec *TreeBuilder::elementTag(const Token::Tag &tag) {
    if (settings_.preserveTagCase()) return arena_->tag(tag.tagName);
    return tag.known ? tag.known : arena_->tag(tag.normalName);
}

std::vector<NodeRec *> TreeBuilder::takeChildren(NodeRec *parent) {
    if (baseUri_ != arena_->baseUri()) {
        for (NodeRec *node = nextInTree(parent, parent); node; node = nextInTree(node, parent))
            setOwnBaseUri(node, baseUri_);
    }
    std::vector<NodeRec *> nodes;
    while (NodeRec *const child = firstChild(parent)) {
        detach(child);
        nodes.push_back(child);
    }
    return nodes;
}

void TreeBuilder::insertDoctype(const Token::Doctype &token) {
    append(currentElement(),
           arena_->newDoctype(arena_->store(token.name), arena_->store(token.pubSysKey.value_or("")),
                              arena_->store(token.publicIdentifier), arena_->store(token.systemIdentifier)));
}

} // namespace orl::html
