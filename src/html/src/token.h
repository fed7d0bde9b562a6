// What the tokeniser hands to the tree builder.
#pragma once

#include "core.h"
#include "pile.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orl::html::core {

/// `Eof` is the end of the page; the macro of the C library has the usual spelling.
enum class TokenType : std::uint8_t { Doctype, StartTag, EndTag, Comment, Char, Eof };

/// The tokens of a tokeniser are made once and reused: a token is good until the next one is read. All text
/// in it is either a view into the page or lives in the arena, so the tree may keep it.
class Token {
public:
    class Doctype;
    class Tag;
    class StartTag;
    class EndTag;
    class Comment;
    class Char;
    class Eof;

    const TokenType type;

    bool isDoctype() const { return type == TokenType::Doctype; }
    bool isStartTag() const { return type == TokenType::StartTag; }
    bool isEndTag() const { return type == TokenType::EndTag; }
    bool isComment() const { return type == TokenType::Comment; }
    bool isCharacter() const { return type == TokenType::Char; }
    bool isEOF() const { return type == TokenType::Eof; }

    Doctype &asDoctype();
    StartTag &asStartTag();
    EndTag &asEndTag();
    Comment &asComment();
    Char &asCharacter();

    void reset();
    /// The markup in short, for messages.
    std::string toString() const;
    /// "StartTag", "Char" and so on, for messages.
    const char *typeName() const;

protected:
    explicit Token(TokenType kind) : type(kind) {}
    Token(const Token &) = delete;
    Token &operator=(const Token &) = delete;
    ~Token() = default;
};

class Token::Doctype : public Token {
public:
    Doctype() : Token(TokenType::Doctype) {}

    std::string name, publicIdentifier, systemIdentifier;
    std::optional<std::string> pubSysKey; ///< "PUBLIC" or "SYSTEM", where written
    bool forceQuirks = false;
};

class Token::Tag : public Token {
public:
    /// As written; empty until the name is known.
    std::string_view tagName;
    /// In lower case.
    std::string_view normalName;
    /// The record of `normalName` if it is one of the known names.
    const TagRec *known = nullptr;
    bool selfClosing = false;
    /// Names are interned, in lower case unless the settings keep case; a name that is written the same way
    /// twice stands once, with its last value. A null value is an attribute without one.
    Pile<AttrRec> attributes;

    TagId id() const { return known ? known->id : TagId::Unknown; }
    std::uint64_t sets() const { return known ? known->sets : 0; }
    /// `tagName`; a tag without one is a fault of the tokeniser.
    std::string_view name() const;
    /// Makes this a tag of a known name, as if the page had it.
    void resetTo(TagId id);

protected:
    using Token::Token;
};

class Token::StartTag : public Tag {
public:
    StartTag() : Tag(TokenType::StartTag) {}
};

class Token::EndTag : public Tag {
public:
    EndTag() : Tag(TokenType::EndTag) {}
};

class Token::Comment : public Token {
public:
    Comment() : Token(TokenType::Comment) {}

    std::string_view data;
    bool bogus = false; ///< markup that is no comment, such as "<?xml ?>"
};

class Token::Char : public Token {
public:
    Char() : Token(TokenType::Char) {}

    std::string_view data;
    bool hasNul = false; ///< NUL characters of the page stand in the data
};

class Token::Eof : public Token {
public:
    Eof() : Token(TokenType::Eof) {}
};

inline Token::Doctype &Token::asDoctype() {
    return static_cast<Doctype &>(*this);
}
inline Token::StartTag &Token::asStartTag() {
    return static_cast<StartTag &>(*this);
}
inline Token::EndTag &Token::asEndTag() {
    return static_cast<EndTag &>(*this);
}
inline Token::Comment &Token::asComment() {
    return static_cast<Comment &>(*this);
}
inline Token::Char &Token::asCharacter() {
    return static_cast<Char &>(*this);
}

} // namespace orl::html::core
