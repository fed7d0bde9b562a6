// The states of the tokeniser for what begins with "<!" or "<?": comments, sections and document types.
#include "tokeniser.h"

namespace orl::html::core {

namespace {

using State = TokeniserState;

constexpr char32_t eof = CharacterReader::endOfInput;
constexpr std::string_view replacement = "\xef\xbf\xbd";

} // namespace

// ---- Comments and declarations
// -----------------------------------------------------------------------------------

/// Takes in the character before the current place, which showed that this is no comment.
void Tokeniser::bogusComment() {
    reader_.unconsume();
    createCommentPending();
    commentPending_.bogus = true;
    pendingComment_.append(reader_.consumeTo('>'));
    emitCommentPending();
    advanceTransition(State::Data);
}

void Tokeniser::markupDeclarationOpen() {
    if (reader_.matchConsume("--")) {
        createCommentPending();
        return transition(State::CommentStart);
    }
    if (reader_.matchConsumeIgnoreCase("DOCTYPE")) return transition(State::Doctype);
    if (reader_.matchConsume("[CDATA[")) return transition(State::CdataSection);
    error();
    transition(State::BogusComment);
}

void Tokeniser::createCommentPending() {
    commentPending_.reset();
    pendingComment_.clear();
}

void Tokeniser::emitCommentPending() {
    commentPending_.data = pendingComment_.isPresent() ? pendingComment_.take(arena_) : "";
    emit(commentPending_);
}

/// What the states of comments do alike: `held` was read but is data only if the comment does not end here.
void Tokeniser::commentGoesOn(std::string_view held) {
    switch (reader_.current()) {
    case 0:
        error();
        reader_.advance();
        if (!held.empty()) pendingComment_.append(held);
        pendingComment_.append(replacement);
        return transition(State::Comment);
    case eof:
        eofError();
        emitCommentPending();
        return transition(State::Data);
    default: pendingComment_.append(held); return transition(State::Comment);
    }
}

void Tokeniser::endComment() {
    reader_.advance();
    emitCommentPending();
    transition(State::Data);
}

void Tokeniser::commentStart() {
    if (reader_.matches('-')) return advanceTransition(State::CommentStartDash);
    if (reader_.matches('>')) {
        error();
        return endComment();
    }
    commentGoesOn({});
}

void Tokeniser::commentStartDash() {
    if (reader_.matches('-')) return advanceTransition(State::CommentEnd);
    if (reader_.matches('>')) {
        error();
        return endComment();
    }
    commentGoesOn({reader_.at() - 1, 1});
}

void Tokeniser::comment() {
    pendingComment_.append(reader_.consumeUpTo(scan::to<'-'>(reader_.at())));
    if (reader_.matches('-')) return advanceTransition(State::CommentEndDash);
    commentGoesOn({});
}

void Tokeniser::commentEndDash() {
    if (reader_.matches('-')) return advanceTransition(State::CommentEnd);
    commentGoesOn({reader_.at() - 1, 1});
}

void Tokeniser::commentEnd() {
    if (reader_.matches('>')) return endComment();
    if (reader_.matches('!')) {
        error();
        return advanceTransition(State::CommentEndBang);
    }
    error();
    if (reader_.matches('-')) { // one of three dashes is data, the other two may still end it
        pendingComment_.append({reader_.at() - 2, 1});
        return reader_.advance();
    }
    commentGoesOn({reader_.at() - 2, 2});
}

void Tokeniser::commentEndBang() {
    if (reader_.matches('>')) return endComment();
    const std::string_view held(reader_.at() - 3, 3);
    if (reader_.matches('-')) {
        pendingComment_.append(held);
        return advanceTransition(State::CommentEndDash);
    }
    commentGoesOn(held);
}

/// Recognised everywhere, not only in foreign content.
void Tokeniser::cdataSection() {
    const std::string_view text = reader_.consumeTo("]]>");
    if (text.find('\0') != std::string_view::npos) charsHaveNul_ = true;
    emit(text);
    reader_.matchConsume("]]>");
    transition(State::Data);
}

// ---- Document types
// ----------------------------------------------------------------------------------------------

void Tokeniser::createDoctypePending() {
    doctypePending_.reset();
}

void Tokeniser::emitDoctypePending() {
    emit(doctypePending_);
    transition(State::Data);
}

/// The page ended within the declaration.
void Tokeniser::eofInDoctype() {
    eofError();
    doctypePending_.forceQuirks = true;
    emitDoctypePending();
}

/// ">" or the end, where either comes too early; whether it was that.
bool Tokeniser::endsDoctypeEarly() {
    if (reader_.current() == eof) {
        eofInDoctype();
        return true;
    }
    if (!reader_.matches('>')) return false;
    error();
    reader_.advance();
    doctypePending_.forceQuirks = true;
    emitDoctypePending();
    return true;
}

/// ">" or the end, where ">" is in place; whether it was that.
bool Tokeniser::endsDoctype() {
    if (!reader_.matchConsume('>')) {
        if (reader_.current() != eof) return false;
        eofInDoctype();
        return true;
    }
    emitDoctypePending();
    return true;
}

void Tokeniser::wrongInDoctype(bool quirks) {
    error();
    if (quirks) doctypePending_.forceQuirks = true;
    advanceTransition(State::BogusDoctype);
}

void Tokeniser::doctype() {
    createDoctypePending();
    if (isWhite(*reader_.at())) return advanceTransition(State::BeforeDoctypeName);
    if (reader_.current() == eof) return eofInDoctype();
    error();
    transition(State::BeforeDoctypeName);
}

void Tokeniser::beforeDoctypeName() {
    reader_.consumeWhile(WhiteByte);
    if (!endsDoctypeEarly()) transition(State::DoctypeName);
}

void Tokeniser::doctypeName() {
    std::string &name = doctypePending_.name;
    const bool lower = !settings_.preserveTagCase();
    for (const char c : reader_.consumeWhileNot(TagNameEnd))
        name += lower && isClass(c, UpperByte) ? char(c | 0x20) : c;
    if (endsDoctype()) return;
    const std::string_view c = reader_.consumeAsString();
    if (isWhite(c[0])) return transition(State::AfterDoctypeName);
    if (c[0] == '\0') error();
    name.append(c[0] == '\0' ? replacement : c);
}

void Tokeniser::afterDoctypeName() {
    reader_.consumeWhile(WhiteByte);
    if (endsDoctype()) return;
    if (reader_.matchConsumeIgnoreCase("PUBLIC")) {
        doctypePending_.pubSysKey = "PUBLIC";
        return transition(State::AfterDoctypePublicKeyword);
    }
    if (reader_.matchConsumeIgnoreCase("SYSTEM")) {
        doctypePending_.pubSysKey = "SYSTEM";
        return transition(State::AfterDoctypeSystemKeyword);
    }
    wrongInDoctype(true);
}

/// Behind PUBLIC or SYSTEM: blanks should come before the quote.
void Tokeniser::afterDoctypeKeyword(std::string &identifier, State before) {
    if (isWhite(*reader_.at())) return advanceTransition(before);
    if (reader_.matchesAny("\"'")) error();
    beforeIdentifier(identifier);
}

void Tokeniser::beforeIdentifier(std::string &identifier) {
    reader_.consumeWhile(WhiteByte);
    if (endsDoctypeEarly()) return;
    if (reader_.matchesAny("\"'")) return startIdentifier(identifier);
    wrongInDoctype(true);
}

/// At the quote in front of an identifier.
void Tokeniser::startIdentifier(std::string &identifier) {
    const bool isPublic = &identifier == &doctypePending_.publicIdentifier;
    const bool twice = reader_.matches('"');
    identifier.clear();
    if (isPublic)
        advanceTransition(twice ? State::DoctypePublicIdentifier_doubleQuoted
                                : State::DoctypePublicIdentifier_singleQuoted);
    else
        advanceTransition(twice ? State::DoctypeSystemIdentifier_doubleQuoted
                                : State::DoctypeSystemIdentifier_singleQuoted);
}

void Tokeniser::identifier(std::string &identifier, char quote, State after) {
    const char stops[] = {quote, '>', '\0'};
    identifier.append(reader_.consumeToAny({stops, sizeof stops}));
    if (reader_.matches(quote)) return advanceTransition(after);
    if (endsDoctypeEarly()) return;
    error(); // NUL
    reader_.advance();
    identifier.append(replacement);
}

void Tokeniser::afterDoctypePublicIdentifier() {
    if (isWhite(*reader_.at())) return advanceTransition(State::BetweenDoctypePublicAndSystemIdentifiers);
    if (endsDoctype()) return;
    if (!reader_.matchesAny("\"'")) return wrongInDoctype(true);
    error();
    startIdentifier(doctypePending_.systemIdentifier);
}

void Tokeniser::betweenDoctypePublicAndSystemIdentifiers() {
    reader_.consumeWhile(WhiteByte);
    if (endsDoctype()) return;
    if (!reader_.matchesAny("\"'")) return wrongInDoctype(true);
    startIdentifier(doctypePending_.systemIdentifier);
}

void Tokeniser::afterDoctypeSystemIdentifier() {
    reader_.consumeWhile(WhiteByte);
    if (!endsDoctype()) wrongInDoctype(false);
}

void Tokeniser::bogusDoctype() {
    reader_.consumeTo('>');
    reader_.matchConsume('>');
    emitDoctypePending();
}

} // namespace orl::html::core
