// The states of the tokeniser, in the order in which the HTML standard gives them; those of comments and
// document types stand in tokeniser_declarations.cpp.
#include "tokeniser.h"

namespace orl::html::core {

namespace {

using State = TokeniserState;

constexpr char32_t eof = CharacterReader::endOfInput;
constexpr std::string_view replacement = "\xef\xbf\xbd";

} // namespace

/// States that differ only in where they lead: those of RCDATA, RAWTEXT, script data, and script data in
/// comments.
struct Tokeniser::Family {
    State text, lessThanSign, endTagOpen, endTagName;
    State dash = State::Data, dashDash = State::Data;
};

void Tokeniser::step() {
    using enum TokeniserState;
    static constexpr Family rcdataFamily{Rcdata, RcdataLessthanSign, RCDATAEndTagOpen, RCDATAEndTagName};
    static constexpr Family rawtext{Rawtext, RawtextLessthanSign, RawtextEndTagOpen, RawtextEndTagName};
    static constexpr Family script{ScriptData, ScriptDataLessthanSign, ScriptDataEndTagOpen,
                                   ScriptDataEndTagName};
    static constexpr Family escaped{ScriptDataEscaped,           ScriptDataEscapedLessthanSign,
                                    ScriptDataEscapedEndTagOpen, ScriptDataEscapedEndTagName,
                                    ScriptDataEscapedDash,       ScriptDataEscapedDashDash};
    static constexpr Family doubleEscaped{ScriptDataDoubleEscaped,     ScriptDataDoubleEscapedLessthanSign,
                                          ScriptDataDoubleEscaped,     ScriptDataDoubleEscaped,
                                          ScriptDataDoubleEscapedDash, ScriptDataDoubleEscapedDashDash};
    Token::Doctype &dt = doctypePending_;

    switch (state_) {
    case Data: return data();
    case CharacterReferenceInData: return characterReferenceIn(Data);
    case State::Rcdata: return rcdata();
    case CharacterReferenceInRcdata: return characterReferenceIn(Rcdata);
    case Rawtext: return characterData(rawtext);
    case ScriptData: return characterData(script);
    case PLAINTEXT: return plaintext();
    case TagOpen: return tagOpen();
    case EndTagOpen: return endTagOpen();
    case TagName: return tagName();
    case RcdataLessthanSign: return rcdataLessthanSign();
    case RCDATAEndTagOpen: return endTagOpen(rcdataFamily);
    case RCDATAEndTagName: return endTagName(rcdataFamily);
    case RawtextLessthanSign: return lessThanSign(rawtext);
    case RawtextEndTagOpen: return endTagOpen(rawtext);
    case RawtextEndTagName: return endTagName(rawtext);
    case ScriptDataLessthanSign: return scriptDataLessthanSign();
    case ScriptDataEndTagOpen: return endTagOpen(script);
    case ScriptDataEndTagName: return endTagName(script);
    case ScriptDataEscapeStart: return scriptDataEscapeStart(ScriptDataEscapeStartDash);
    case ScriptDataEscapeStartDash: return scriptDataEscapeStart(ScriptDataEscapedDashDash);
    case ScriptDataEscaped:
    case ScriptDataEscapedDash:
    case ScriptDataEscapedDashDash: return escapedText(escaped);
    case ScriptDataEscapedLessthanSign: return scriptDataEscapedLessthanSign();
    case ScriptDataEscapedEndTagOpen: return endTagOpen(escaped);
    case ScriptDataEscapedEndTagName: return endTagName(escaped);
    case ScriptDataDoubleEscapeStart: return doubleEscapeTag(ScriptDataDoubleEscaped, ScriptDataEscaped);
    case ScriptDataDoubleEscaped:
    case ScriptDataDoubleEscapedDash:
    case ScriptDataDoubleEscapedDashDash: return escapedText(doubleEscaped);
    case ScriptDataDoubleEscapedLessthanSign: return scriptDataDoubleEscapedLessthanSign();
    case ScriptDataDoubleEscapeEnd: return doubleEscapeTag(ScriptDataEscaped, ScriptDataDoubleEscaped);
    case BeforeAttributeName: return beforeAttributeName();
    case AttributeName: return attributeName();
    case AfterAttributeName: return afterAttributeName();
    case BeforeAttributeValue: return beforeAttributeValue();
    case AttributeValue_doubleQuoted: return attributeValue('"');
    case AttributeValue_singleQuoted: return attributeValue('\'');
    case AttributeValue_unquoted: return attributeValueUnquoted();
    case AfterAttributeValue_quoted: return afterAttributeValueQuoted();
    case SelfClosingStartTag: return selfClosingStartTag();
    case BogusComment: return bogusComment();
    case MarkupDeclarationOpen: return markupDeclarationOpen();
    case CommentStart: return commentStart();
    case CommentStartDash: return commentStartDash();
    case Comment: return comment();
    case CommentEndDash: return commentEndDash();
    case CommentEnd: return commentEnd();
    case CommentEndBang: return commentEndBang();
    case Doctype: return doctype();
    case BeforeDoctypeName: return beforeDoctypeName();
    case DoctypeName: return doctypeName();
    case AfterDoctypeName: return afterDoctypeName();
    case AfterDoctypePublicKeyword:
        return afterDoctypeKeyword(dt.publicIdentifier, BeforeDoctypePublicIdentifier);
    case BeforeDoctypePublicIdentifier: return beforeIdentifier(dt.publicIdentifier);
    case DoctypePublicIdentifier_doubleQuoted:
        return identifier(dt.publicIdentifier, '"', AfterDoctypePublicIdentifier);
    case DoctypePublicIdentifier_singleQuoted:
        return identifier(dt.publicIdentifier, '\'', AfterDoctypePublicIdentifier);
    case AfterDoctypePublicIdentifier: return afterDoctypePublicIdentifier();
    case BetweenDoctypePublicAndSystemIdentifiers: return betweenDoctypePublicAndSystemIdentifiers();
    case AfterDoctypeSystemKeyword:
        return afterDoctypeKeyword(dt.systemIdentifier, BeforeDoctypeSystemIdentifier);
    case BeforeDoctypeSystemIdentifier: return beforeIdentifier(dt.systemIdentifier);
    case DoctypeSystemIdentifier_doubleQuoted:
        return identifier(dt.systemIdentifier, '"', AfterDoctypeSystemIdentifier);
    case DoctypeSystemIdentifier_singleQuoted:
        return identifier(dt.systemIdentifier, '\'', AfterDoctypeSystemIdentifier);
    case AfterDoctypeSystemIdentifier: return afterDoctypeSystemIdentifier();
    case BogusDoctype: return bogusDoctype();
    case CdataSection: return cdataSection();
    }
}

// ---- Text
// --------------------------------------------------------------------------------------------------------

/// NUL stays in the text; what becomes of it depends on where the text goes.
void Tokeniser::emitNul() {
    error();
    reader_.advance();
    charsHaveNul_ = true;
    emitLast(1);
}

void Tokeniser::characterReferenceIn(State data) {
    const std::string_view ampersand(reader_.at() - 1, 1);
    if (const auto reference = consumeCharacterReference(reader_, errors_, {}, false))
        emit(reference);
    else
        emit(ampersand);
    state_ = data;
}

void Tokeniser::rcdata() {
    if (reader_.current() == eof) return emit(eofPending_);
    emit(reader_.consumeData());
    if (reader_.isEmpty()) return;
    if (reader_.matches('&')) return advanceTransition(State::CharacterReferenceInRcdata);
    if (reader_.matches('<')) return advanceTransition(State::RcdataLessthanSign);
    emitReplacement();
}

/// RAWTEXT and script data.
void Tokeniser::characterData(const Family &family) {
    if (reader_.current() == eof) return emit(eofPending_);
    emit(reader_.consumeUpTo(scan::to<'<'>(reader_.at())));
    if (reader_.isEmpty()) return;
    if (reader_.matches('<')) return advanceTransition(family.lessThanSign);
    emitReplacement();
}

void Tokeniser::plaintext() {
    if (reader_.current() == eof) return emit(eofPending_);
    emit(reader_.consumeUpTo(scan::to<>(reader_.at())));
    if (!reader_.isEmpty()) emitReplacement();
}

// ---- Tags
// --------------------------------------------------------------------------------------------------------

void Tokeniser::tagOpen() {
    switch (reader_.current()) {
    case '!': return advanceTransition(State::MarkupDeclarationOpen);
    case '/': return advanceTransition(State::EndTagOpen);
    case '?': return advanceTransition(State::BogusComment);
    }
    if (reader_.matchesLetter()) {
        createTagPending(true);
        return transition(State::TagName);
    }
    error();
    emitLast(1);
    transition(State::Data);
}

void Tokeniser::endTagOpen() {
    if (reader_.isEmpty()) {
        eofError();
        emitLast(2);
        return transition(State::Data);
    }
    if (reader_.matchesLetter()) {
        createTagPending(false);
        return transition(State::TagName);
    }
    error();
    advanceTransition(reader_.matches('>') ? State::Data : State::BogusComment);
}

void Tokeniser::tagName() {
    pendingTagName_.append(reader_.consumeTagName());
    const char32_t c = reader_.consume();
    if (c == 0) return pendingTagName_.append(replacement);
    finishTagName();
    switch (c) {
    case '/': return transition(State::SelfClosingStartTag);
    case '>': emitTagPending(); return transition(State::Data);
    case eof: return eofErrorTo(State::Data);
    default: return transition(State::BeforeAttributeName);
    }
}

/// An element whose end tag never comes ends here, before the next tag, and not with the page: an unclosed
/// title costs its own line and not the rest of the page. The HTML standard would go on to the end.
void Tokeniser::rcdataLessthanSign() {
    if (reader_.matches('/')) {
        dataBuffer_.clear();
        return advanceTransition(State::RCDATAEndTagOpen);
    }
    if (reader_.matchesLetter() && !lastStartTag_.empty() && !closesLater(lastStartTag_)) {
        createTagPending(false);
        setTagName(lastStartTag_);
        emitTagPending();
        reader_.unconsume();
        return transition(State::Data);
    }
    emitLast(1);
    transition(State::Rcdata);
}

void Tokeniser::lessThanSign(const Family &family) {
    if (reader_.matches('/')) {
        dataBuffer_.clear();
        return advanceTransition(family.endTagOpen);
    }
    emitLast(1);
    transition(family.text);
}

void Tokeniser::endTagOpen(const Family &family) {
    if (reader_.matchesLetter()) {
        createTagPending(false);
        return transition(family.endTagName);
    }
    emitLast(2);
    transition(family.text);
}

/// Only the end tag of the element that is open ends its text; anything else is text.
void Tokeniser::endTagName(const Family &family) {
    const std::string_view letters = reader_.consumeLetterSequence();
    pendingTagName_.append(letters);
    dataBuffer_.append(letters);
    if (!reader_.isEmpty() && isAppropriateEndTagToken()) {
        const char c = *reader_.at();
        if (isWhite(c) || c == '/' || c == '>') {
            finishTagName();
            reader_.advance();
            if (isWhite(c)) return transition(State::BeforeAttributeName);
            if (c == '/') return transition(State::SelfClosingStartTag);
            emitTagPending();
            return transition(State::Data);
        }
    }
    emitLast(2 + dataBuffer_.view().size());
    transition(family.text);
}

// ---- Scripts
// -----------------------------------------------------------------------------------------------------

void Tokeniser::scriptDataLessthanSign() {
    if (reader_.matches('/')) {
        dataBuffer_.clear();
        return advanceTransition(State::ScriptDataEndTagOpen);
    }
    const bool declaration = reader_.matchConsume('!');
    emitLast(declaration ? 2 : 1);
    transition(declaration ? State::ScriptDataEscapeStart : State::ScriptData);
}

void Tokeniser::scriptDataEscapeStart(State next) {
    const bool dash = reader_.matchConsume('-');
    if (dash) emitLast(1);
    transition(dash ? next : State::ScriptData);
}

/// The text of a script within "<!--", escaped once or twice; dashes are counted to find the "-->".
void Tokeniser::escapedText(const Family &family) {
    const bool twice = family.text == State::ScriptDataDoubleEscaped;
    const State here = state_;
    switch (reader_.current()) {
    case '-': advanceTransition(here == family.text ? family.dash : family.dashDash); return emitLast(1);
    case '<':
        advanceTransition(family.lessThanSign);
        if (twice) emitLast(1);
        return;
    case '>':
        advanceTransition(here == family.dashDash ? State::ScriptData : family.text);
        return emitLast(1);
    case 0: emitReplacement(); return transition(family.text);
    case eof: return eofErrorTo(State::Data);
    default: emit(reader_.consumeUpTo(scan::to<'-', '<'>(reader_.at()))); return transition(family.text);
    }
}

void Tokeniser::scriptDataEscapedLessthanSign() {
    dataBuffer_.clear();
    if (reader_.matches('/')) return advanceTransition(State::ScriptDataEscapedEndTagOpen);
    emitLast(1);
    transition(reader_.matchesLetter() ? State::ScriptDataDoubleEscapeStart : State::ScriptDataEscaped);
}

/// A script tag within the comment of a script, its start or its end.
void Tokeniser::doubleEscapeTag(State ifScript, State otherwise) {
    const std::string_view letters = reader_.consumeLetterSequence();
    dataBuffer_.append(letters);
    emit(letters);
    const bool ends = !reader_.isEmpty() && (isWhite(*reader_.at()) || reader_.matchesAny("/>"));
    if (ends) {
        reader_.advance();
        emitLast(1);
    }
    transition(ends && dataBuffer_.view() == "script" ? ifScript : otherwise);
}

void Tokeniser::scriptDataDoubleEscapedLessthanSign() {
    if (!reader_.matchConsume('/')) return transition(State::ScriptDataDoubleEscaped);
    emitLast(1);
    dataBuffer_.clear();
    transition(State::ScriptDataDoubleEscapeEnd);
}

// ---- Attributes
// --------------------------------------------------------------------------------------------------

void Tokeniser::beforeAttributeName() {
    newAttribute();
    if (readAttributes()) return;
    switch (reader_.current()) {
    case '/': return advanceTransition(State::SelfClosingStartTag);
    case eof: return eofErrorTo(State::Data);
    case '=':
        error();
        pendingAttributeName_.append(reader_.consumeAsString());
        return transition(State::AttributeName);
    default: return transition(State::AttributeName);
    }
}

void Tokeniser::attributeName() {
    pendingAttributeName_.append(reader_.consumeWhileNot(AttributeNameEnd));
    const std::string_view c = reader_.consumeAsString();
    if (c.empty()) return eofErrorTo(State::Data);
    switch (c[0]) {
    case '/': return transition(State::SelfClosingStartTag);
    case '=': return transition(State::BeforeAttributeValue);
    case '>': emitTagPending(); return transition(State::Data);
    case '\0': error(); return pendingAttributeName_.append(replacement);
    case '"':
    case '\'':
    case '<': error(); return pendingAttributeName_.append(c);
    default: return transition(State::AfterAttributeName);
    }
}

void Tokeniser::afterAttributeName() {
    reader_.consumeWhile(WhiteByte);
    switch (reader_.current()) {
    case '/': return advanceTransition(State::SelfClosingStartTag);
    case '=': return advanceTransition(State::BeforeAttributeValue);
    case '>':
        reader_.advance();
        emitTagPending();
        return transition(State::Data);
    case eof: return eofErrorTo(State::Data);
    default: return transition(State::BeforeAttributeName);
    }
}

void Tokeniser::beforeAttributeValue() {
    reader_.consumeWhile(WhiteByte);
    switch (reader_.current()) {
    case '"': return advanceTransition(State::AttributeValue_doubleQuoted);
    case '\'': return advanceTransition(State::AttributeValue_singleQuoted);
    case '>':
        error();
        reader_.advance();
        emitTagPending();
        return transition(State::Data);
    case eof: return eofErrorTo(State::Data);
    default: return transition(State::AttributeValue_unquoted);
    }
}

/// A reference in a value, from behind its "&".
void Tokeniser::referenceInValue(char additionalAllowed) {
    const std::string_view ampersand(reader_.at() - 1, 1);
    const auto reference = consumeCharacterReference(reader_, errors_, char32_t(additionalAllowed), true);
    for (std::size_t i = 0; i < reference.count; ++i)
        pendingAttributeValue_.append(reference.scalars[i]);
    if (!reference) pendingAttributeValue_.append(ampersand);
}

void Tokeniser::valueRun(const char *stop) {
    const std::string_view run = reader_.consumeUpTo(stop);
    if (run.empty())
        hasEmptyAttributeValue_ = true;
    else
        pendingAttributeValue_.append(run);
}

void Tokeniser::attributeValue(char quote) {
    valueRun(quote == '"' ? scan::to<'"', '&'>(reader_.at()) : scan::to<'\'', '&'>(reader_.at()));
    const char32_t c = reader_.consume();
    if (c == char32_t(quote)) return transition(State::AfterAttributeValue_quoted);
    if (c == '&') return referenceInValue(quote);
    if (c == eof) return eofErrorTo(State::Data);
    error(); // NUL
    pendingAttributeValue_.append(replacement);
}

void Tokeniser::attributeValueUnquoted() {
    const char *stop = reader_.at();
    while (!isClass(*stop, UnquotedEnd))
        ++stop;
    valueRun(stop);
    const std::string_view c = reader_.consumeAsString();
    if (c.empty()) return eofErrorTo(State::Data);
    switch (c[0]) {
    case '&': return referenceInValue('>');
    case '>': emitTagPending(); return transition(State::Data);
    case '\0': error(); return pendingAttributeValue_.append(replacement);
    case '"':
    case '\'':
    case '<':
    case '=':
    case '`': error(); return pendingAttributeValue_.append(c);
    default: return transition(State::BeforeAttributeName);
    }
}

void Tokeniser::afterAttributeValueQuoted() {
    const char32_t c = reader_.current();
    if (c == '/') return advanceTransition(State::SelfClosingStartTag);
    if (c == eof) return eofErrorTo(State::Data);
    if (c != '>' && !isWhite(*reader_.at())) error();
    transition(State::BeforeAttributeName);
}

void Tokeniser::selfClosingStartTag() {
    if (reader_.matchConsume('>')) {
        tagPending_->selfClosing = true;
        emitTagPending();
        return transition(State::Data);
    }
    if (reader_.current() == eof) return eofErrorTo(State::Data);
    error();
    transition(State::BeforeAttributeName);
}

} // namespace orl::html::core
