#include "xml_tree_builder.h"

#include <string>

namespace orl::html {

using namespace core;

std::vector<NodeRec *> XmlTreeBuilder::parseFragment(Arena &arena, std::string_view input, NodeRec *,
                                                     std::string_view baseUri, ParseErrorList &errors,
                                                     const ParseSettings &settings) {
    const Parse parse(*this);
    initialiseParse(arena, input, baseUri, errors, settings);
    runParser();
    open_.clear();
    std::vector<NodeRec *> nodes = takeChildren(doc_);
    dropIfUnheld(doc_);
    return nodes;
}

bool XmlTreeBuilder::process(Token &token) {
    switch (token.type) {
    case TokenType::StartTag: insert(token.asStartTag()); return true;
    case TokenType::EndTag: popStackToClose(token.asEndTag()); return true;
    case TokenType::Comment: insert(token.asComment()); return true;
    case TokenType::Char: append(currentElement(), arena().newText(token.asCharacter().data)); return true;
    case TokenType::Doctype: insertDoctype(token.asDoctype()); return true;
    case TokenType::Eof: return true;
    }
    return true;
}

/// A known tag that does not close itself by nature stays open in spite of the mark.
void XmlTreeBuilder::insert(const Token::StartTag &tag) {
    const TagRec *record = elementTag(tag);
    const TagRec *const name = record;
    bool open = true;
    if (tag.selfClosing) {
        tokeniser_->acknowledgeSelfClosingFlag();
        const bool known = record->has(TagRec::Registered);
        open = known && !record->closesItself();
        if (!known) record = arena().selfClosing(record);
    }
    NodeRec *const element =
        arena().newElement(Kind::Element, record, tag.attributes.data(), tag.attributes.size());
    append(currentElement(), element);
    arena().classes.note(arena(), element);
    if (open) open_.push(element, name);
}

void XmlTreeBuilder::insert(const Token::Comment &token) {
    NodeRec *node = nullptr;
    if (token.bogus && (token.data.starts_with('!') || token.data.starts_with('?')))
        node = declaration(token.data);
    append(currentElement(), node ? node : arena().newComment(token.data));
}

/// What stands behind the mark, read as a tag; null if it is none.
NodeRec *XmlTreeBuilder::declaration(std::string_view text) {
    const bool processingInstruction = text.front() == '!';
    text.remove_prefix(1);
    if (!processingInstruction && text.ends_with('?')) text.remove_suffix(1);
    const std::string markup = std::string("<").append(text).append(">");
    CharacterReader reader({arena().retain(markup), markup.size()});
    Tokeniser tokeniser(reader, arena(), nullptr, ParseSettings::preserveCase);
    Token &token = tokeniser.read();
    if (!token.isStartTag()) return nullptr;
    const Token::StartTag &tag = token.asStartTag();
    return arena().newXmlDeclaration(settings_.normalizeTag(tag.tagName), processingInstruction,
                                     tag.attributes.data(), tag.attributes.size());
}

/// Closes the newest open element of exactly that name and all above it; without one nothing happens.
void XmlTreeBuilder::popStackToClose(const Token::EndTag &tag) {
    if (open_.empty()) return;
    if (const Place place = open_.newest(elementTag(tag))) open_.popDownTo(place - 1);
}

} // namespace orl::html
