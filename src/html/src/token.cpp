#include "token.h"

#include <orl/html/exception.h>

namespace orl::html::core {

namespace {

void clear(Token::Doctype &token) {
    token.name.clear();
    token.publicIdentifier.clear();
    token.systemIdentifier.clear();
    token.pubSysKey.reset();
    token.forceQuirks = false;
}

void clear(Token::Tag &token) {
    token.tagName = token.normalName = {};
    token.known = nullptr;
    token.selfClosing = false;
    token.attributes.clear();
}

std::string describe(const Token::Tag &tag, std::string_view opening) {
    std::string text(opening);
    text.append(tag.tagName);
    if (tag.type == TokenType::EndTag) return text += '>';
    for (const AttrRec &attribute : tag.attributes) {
        text.append(" ").append(at<NameRec>(attribute.name)->name());
        if (attribute.value) text.append("=\"").append(attribute.value, attribute.length).append("\"");
    }
    return text += '>';
}

} // namespace

std::string_view Token::Tag::name() const {
    if (tagName.empty()) throw Exception::Error(ExceptionType::IllegalArgumentException, "Must be false");
    return tagName;
}

void Token::Tag::resetTo(TagId id) {
    clear(*this);
    known = tagRec(id);
    tagName = normalName = known->name();
}

void Token::reset() {
    switch (type) {
    case TokenType::Doctype: return clear(asDoctype());
    case TokenType::StartTag:
    case TokenType::EndTag: return clear(static_cast<Tag &>(*this));
    case TokenType::Comment:
        asComment().data = {};
        asComment().bogus = false;
        return;
    case TokenType::Char:
        asCharacter().data = {};
        asCharacter().hasNul = false;
        return;
    case TokenType::Eof: return;
    }
}

std::string Token::toString() const {
    switch (type) {
    case TokenType::Doctype: return "<!doctype " + static_cast<const Doctype &>(*this).name + ">";
    case TokenType::StartTag: return describe(static_cast<const Tag &>(*this), "<");
    case TokenType::EndTag: return describe(static_cast<const Tag &>(*this), "</");
    case TokenType::Comment:
        return std::string("<!--").append(static_cast<const Comment &>(*this).data).append("-->");
    case TokenType::Char: return std::string(static_cast<const Char &>(*this).data);
    case TokenType::Eof: return {};
    }
    return {};
}

const char *Token::typeName() const {
    switch (type) {
    case TokenType::Doctype: return "Doctype";
    case TokenType::StartTag: return "StartTag";
    case TokenType::EndTag: return "EndTag";
    case TokenType::Comment: return "Comment";
    case TokenType::Char: return "Char";
    case TokenType::Eof: return "EOF";
    }
    return "";
}

} // namespace orl::html::core
