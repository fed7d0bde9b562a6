// Turning a page into tokens: the tokenization stage of the HTML standard, in the form in which that standard
// kept states of their own for character references.
//
// Every state is one short member function. Where a page is well-formed, a run of text, a tag name or a whole
// attribute is read by one scan (see `readTag` and `readAttributes`) and ends as a view into the page;
// whatever needs a closer look is left to the state that would have met it.
#pragma once

#include "character_reader.h"
#include "token.h"

#include <orl/html/parse_error_list.h>
#include <orl/html/parse_settings.h>

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orl::html::core {

enum class TokeniserState : std::uint8_t {
    Data,
    CharacterReferenceInData,
    Rcdata,
    CharacterReferenceInRcdata,
    Rawtext,
    ScriptData,
    PLAINTEXT,
    TagOpen,
    EndTagOpen,
    TagName,
    RcdataLessthanSign,
    RCDATAEndTagOpen,
    RCDATAEndTagName,
    RawtextLessthanSign,
    RawtextEndTagOpen,
    RawtextEndTagName,
    ScriptDataLessthanSign,
    ScriptDataEndTagOpen,
    ScriptDataEndTagName,
    ScriptDataEscapeStart,
    ScriptDataEscapeStartDash,
    ScriptDataEscaped,
    ScriptDataEscapedDash,
    ScriptDataEscapedDashDash,
    ScriptDataEscapedLessthanSign,
    ScriptDataEscapedEndTagOpen,
    ScriptDataEscapedEndTagName,
    ScriptDataDoubleEscapeStart,
    ScriptDataDoubleEscaped,
    ScriptDataDoubleEscapedDash,
    ScriptDataDoubleEscapedDashDash,
    ScriptDataDoubleEscapedLessthanSign,
    ScriptDataDoubleEscapeEnd,
    BeforeAttributeName,
    AttributeName,
    AfterAttributeName,
    BeforeAttributeValue,
    AttributeValue_doubleQuoted,
    AttributeValue_singleQuoted,
    AttributeValue_unquoted,
    AfterAttributeValue_quoted,
    SelfClosingStartTag,
    BogusComment,
    MarkupDeclarationOpen,
    CommentStart,
    CommentStartDash,
    Comment,
    CommentEndDash,
    CommentEnd,
    CommentEndBang,
    Doctype,
    BeforeDoctypeName,
    DoctypeName,
    AfterDoctypeName,
    AfterDoctypePublicKeyword,
    BeforeDoctypePublicIdentifier,
    DoctypePublicIdentifier_doubleQuoted,
    DoctypePublicIdentifier_singleQuoted,
    AfterDoctypePublicIdentifier,
    BetweenDoctypePublicAndSystemIdentifiers,
    AfterDoctypeSystemKeyword,
    BeforeDoctypeSystemIdentifier,
    DoctypeSystemIdentifier_doubleQuoted,
    DoctypeSystemIdentifier_singleQuoted,
    AfterDoctypeSystemIdentifier,
    BogusDoctype,
    CdataSection,
};

/// A text that grows piece by piece. While each piece lies right behind the one before, which is the rule,
/// the text is a view into the page and nothing is copied.
class Run {
public:
    bool isPresent() const { return present_; }
    bool isEmpty() const { return view().empty(); }
    std::string_view view() const { return built_ ? std::string_view(builder_) : view_; }
    void clear() { present_ = built_ = false, view_ = {}; }

    void append(std::string_view piece);
    void append(char32_t scalar);
    /// The text, kept by the arena if it is no view, and clears the run.
    std::string_view take(Arena &arena);

private:
    void build();
    void appendApart(std::string_view piece);

    std::string_view view_;
    std::string builder_;
    bool present_ = false, built_ = false;
};

inline void Run::append(std::string_view piece) {
    if (!present_) [[likely]] {
        view_ = piece;
        present_ = true;
    } else {
        appendApart(piece);
    }
}

inline std::string_view Run::take(Arena &arena) {
    const std::string_view text = built_ ? arena.store(builder_) : view_;
    clear();
    return text;
}

/// A search that is made again and again from places further on costs one pass over the page in all.
class SearchAhead {
public:
    explicit SearchAhead(std::string needle) : needle_(std::move(needle)) {}
    bool isFor(std::string_view needle) const { return needle_ == needle; }
    bool succeeds(const CharacterReader &reader);

private:
    std::string needle_;
    const char *hit_ = nullptr;
    bool none_ = false;
};

/// The up to two scalars of a character reference; none if what follows the "&" is no reference.
struct CharacterReference {
    std::array<char32_t, 2> scalars{};
    std::size_t count = 0;

    explicit operator bool() const { return count > 0; }
};

class Tokeniser {
public:
    /// Reads a page that the arena retains. `errors` may be null.
    Tokeniser(CharacterReader &reader, Arena &arena, ParseErrorList *errors, const ParseSettings &settings);

    /// The next token; after `Eof` there is none. A run of text comes as one token.
    Token &read();

    TokeniserState state() const { return state_; }
    void transition(TokeniserState state) { state_ = state; }

    /// Queues a token, which is read before anything else of the page is looked at.
    void emit(Token &token);
    void acknowledgeSelfClosingFlag() { selfClosingFlagAcknowledged_ = true; }
    void error(std::string_view message);
    bool isAppropriateEndTagToken() const;

private:
    using State = TokeniserState;
    struct Family;

    // Output.
    void emit(std::string_view text) {
        if (!text.empty()) chars_.append(text);
    }
    void emit(char32_t scalar);
    void emit(const CharacterReference &reference);
    void emitReplacement();
    void emitNul();
    /// Emits the last `count` bytes before the current place, which are ASCII.
    void emitLast(std::size_t count) { emit(std::string_view(reader_.at() - count, count)); }
    void advanceTransition(State state);
    void error();
    void eofError();
    void eofErrorTo(State state);

    // Tags and attributes.
    void createTagPending(bool start);
    void setTagName(std::string_view name);
    void finishTagName();
    void emitTagPending();
    void newAttribute();
    /// An attribute of a tag that has many already.
    struct Late {
        std::string_view written;
        const char *value;
        std::size_t length;
    };
    void putAttribute(std::string_view written, bool plain, const char *value, std::size_t length);
    void putLater(const Late &attribute);
    void putLate();
    std::size_t placeOf(Ref written);
    Ref nameOf(std::string_view written);
    Ref nameOfPlain(std::string_view written);
    template<class Tag>
    bool readTag(Tag &tag, const char *name);
    template<class Tag>
    void begin(Tag &tag);
    void hand(Token::StartTag &tag);
    void hand(Token::EndTag &tag);
    bool readAttributes();
    const char *readAttribute(const char *p);
    const char *readValue(const char *p, std::string_view &value);
    std::string_view resolved(std::string_view value);
    void valueRun(const char *stop);
    void referenceInValue(char additionalAllowed);
    bool closesLater(std::string_view name);

    // Comments and document types.
    void createCommentPending();
    void emitCommentPending();
    void commentGoesOn(std::string_view held);
    void endComment();
    void createDoctypePending();
    void emitDoctypePending();
    void eofInDoctype();
    bool endsDoctypeEarly();
    bool endsDoctype();
    void wrongInDoctype(bool quirks);
    void startIdentifier(std::string &identifier);

    // The states; those that differ only in where they lead share one.
    void step();
    void data();
    void characterReferenceIn(State data);
    void rcdata();
    void characterData(const Family &family);
    void plaintext();
    void tagOpen();
    void endTagOpen();
    void tagName();
    void rcdataLessthanSign();
    void lessThanSign(const Family &family);
    void endTagOpen(const Family &family);
    void endTagName(const Family &family);
    void scriptDataLessthanSign();
    void scriptDataEscapeStart(State next);
    void escapedText(const Family &family);
    void scriptDataEscapedLessthanSign();
    void doubleEscapeTag(State ifScript, State otherwise);
    void scriptDataDoubleEscapedLessthanSign();
    void beforeAttributeName();
    void attributeName();
    void afterAttributeName();
    void beforeAttributeValue();
    void attributeValue(char quote);
    void attributeValueUnquoted();
    void afterAttributeValueQuoted();
    void selfClosingStartTag();
    void bogusComment();
    void markupDeclarationOpen();
    void commentStart();
    void commentStartDash();
    void comment();
    void commentEndDash();
    void commentEnd();
    void commentEndBang();
    void doctype();
    void beforeDoctypeName();
    void doctypeName();
    void afterDoctypeName();
    void afterDoctypeKeyword(std::string &identifier, State before);
    void beforeIdentifier(std::string &identifier);
    void identifier(std::string &identifier, char quote, State after);
    void afterDoctypePublicIdentifier();
    void betweenDoctypePublicAndSystemIdentifiers();
    void afterDoctypeSystemIdentifier();
    void bogusDoctype();
    void cdataSection();

    CharacterReader &reader_;
    Arena &arena_;
    ParseErrorList *errors_;
    ParseSettings settings_;

    State state_ = State::Data;
    bool isEmitPending_ = false;
    bool selfClosingFlagAcknowledged_ = true;
    bool charsHaveNul_ = false;
    bool hasEmptyAttributeValue_ = false;
    Token *emitPending_ = nullptr;

    Run chars_;      ///< text that is not read yet
    Run dataBuffer_; ///< letters of what may become an end tag, or double escaping
    Run pendingTagName_;
    Run pendingAttributeName_;
    Run pendingAttributeValue_;
    Run pendingComment_;
    std::string scratch_;

    Token::StartTag startPending_;
    Token::EndTag endPending_;
    Token::Char charPending_;
    Token::Doctype doctypePending_;
    Token::Comment commentPending_;
    Token::Eof eofPending_;
    Token::Tag *tagPending_ = &startPending_;

    std::string_view lastStartTag_; ///< in lower case; empty before the first

    // The names of the pending tag's attributes as the page has them: those of the first few as text and,
    // once there are more, all as records.
    Pile<std::string_view> writtenNames_;
    Pile<Ref> writtenRefs_;
    std::array<std::uint32_t, maxKnownNames> knownPlaces_ = {}; ///< `NameRec::place` of static names
    std::array<Late, 16> late_;
    std::size_t lateCount_ = 0;
    std::vector<SearchAhead> searches_;
};

/// What the "&" in front of the reader's place stands for, and moves over it; nothing is moved over without a
/// result.
CharacterReference consumeCharacterReference(CharacterReader &reader, ParseErrorList *errors,
                                             std::optional<char32_t> additionalAllowed, bool inAttribute);

/// The text with all its references resolved.
std::string unescapeEntities(std::string_view text, bool inAttribute);

} // namespace orl::html::core
