#include "tokeniser.h"

#include <orl/html/entities.h>
#include <orl/html/exception.h>

#include <algorithm>

namespace orl::html::core {

namespace {

constexpr std::string_view replacement = "\xef\xbf\xbd";
/// Attributes of one tag that are looked through one by one; from there on a table finds the repeated ones.
constexpr std::size_t fewAttributes = 12;

/// A name that is neither plain letters and signs nor all lower case needs more than interning as it is.
constexpr unsigned char highBit = 0x80;

bool hasEdgeToTrim(std::string_view name) {
    const auto odd = [](char c) { return static_cast<unsigned char>(c) <= ' ' || (c & highBit); };
    return odd(name.front()) || odd(name.back());
}

bool isLowerAscii(std::string_view name) {
    return std::none_of(name.begin(), name.end(),
                        [](char c) { return isClass(c, UpperByte) || (c & highBit); });
}

bool isAscii(std::string_view text) {
    return std::none_of(text.begin(), text.end(), [](char c) { return c & highBit; });
}

/// Notes a wrong reference at the reader's place.
void characterReferenceError(const CharacterReader &reader, ParseErrorList *errors,
                             std::string_view message) {
    if (!errors || !errors->canAddError()) return;
    errors->add({reader.getPos(), std::string("Invalid character reference: ").append(message)});
}

/// The value of digits in base 10 or 16; anything that is no scalar is U+FFFD, and `bad` tells.
char32_t numericReference(std::string_view digits, unsigned base, bool &bad) {
    char32_t value = 0;
    for (const char c : digits) {
        const char32_t digit = c <= '9' ? char32_t(c - '0') : char32_t((c | 0x20) - 'a' + 10);
        value = std::min<char32_t>(value * base + digit, 0x110000);
    }
    bad = value >= 0x110000 || (value >= 0xd800 && value <= 0xdfff);
    return bad ? replacementScalar : value;
}

CharacterReference consumeNumericReference(CharacterReader &reader, ParseErrorList *errors) {
    const bool hexadecimal = reader.matchConsumeIgnoreCase("x");
    const std::string_view digits = hexadecimal ? reader.consumeHexSequence() : reader.consumeDigitSequence();
    if (digits.empty()) {
        characterReferenceError(reader, errors, "numeric reference with no numerals");
        reader.rewindToMark();
        return {};
    }
    if (!reader.matchConsume(';')) characterReferenceError(reader, errors, "missing semicolon");
    bool bad;
    const char32_t scalar = numericReference(digits, hexadecimal ? 16 : 10, bad);
    if (bad) characterReferenceError(reader, errors, "character outside of valid range");
    return {{scalar}, 1};
}

/// The scalars of a name that one of the two sets has.
CharacterReference scalarsOf(std::string_view name, std::optional<char32_t> base) {
    if (base) return {{*base}, 1};
    CharacterReference reference;
    reference.count = Entities::codepointsForName(name, reference.scalars);
    if (reference.count == 0)
        throw Exception::Error(ExceptionType::IllegalArgumentException,
                               std::string("Entity name not found: ").append(name));
    if (reference.count > reference.scalars.size())
        throw Exception::Error(ExceptionType::IllegalArgumentException,
                               std::string("Unexpected characters returned for ")
                                   .append(name)
                                   .append(" num: ")
                                   .append(std::to_string(reference.count)));
    return reference;
}

/// Only the base names may go without a semicolon, and in an attribute not even they where the text goes on
/// as the query of an address would.
CharacterReference consumeNamedReference(CharacterReader &reader, ParseErrorList *errors, bool inAttribute) {
    const std::string_view name = reader.consumeLetterThenDigitSequence();
    const bool looksLegit = reader.matches(';');
    const auto base = Entities::EscapeMode::base().codepointForName(name);
    const bool found = base || Entities::isNamedEntity(name);
    if (!found) {
        reader.rewindToMark();
        if (looksLegit)
            characterReferenceError(reader, errors,
                                    std::string("invalid named referenece '").append(name).append("'"));
        return {};
    }
    const bool goesOn =
        inAttribute && (reader.matchesLetter() || reader.matchesDigit() || reader.matchesAny("=-_"));
    if ((!base && !looksLegit) || goesOn) {
        reader.rewindToMark();
        return {};
    }
    if (!reader.matchConsume(';')) characterReferenceError(reader, errors, "missing semicolon");
    return scalarsOf(name, base);
}

} // namespace

CharacterReference consumeCharacterReference(CharacterReader &reader, ParseErrorList *errors,
                                             std::optional<char32_t> additionalAllowed, bool inAttribute) {
    static constexpr std::string_view notCharacterReference = "\t\n\r\f <&";
    if (reader.isEmpty() || reader.matchesAny(notCharacterReference)) return {};
    if (additionalAllowed && reader.current() == *additionalAllowed) return {};
    reader.markPos();
    if (reader.matchConsume('#')) return consumeNumericReference(reader, errors);
    return consumeNamedReference(reader, errors, inAttribute);
}

std::string unescapeEntities(std::string_view text, bool inAttribute) {
    if (text.find('&') == std::string_view::npos) return std::string(text);
    const PaddedText padded(text);
    CharacterReader reader(padded.view());
    std::string out;
    out.reserve(text.size());
    while (!reader.isEmpty()) {
        out.append(reader.consumeTo('&'));
        if (!reader.matchConsume('&')) break;
        const auto reference = consumeCharacterReference(reader, nullptr, {}, inAttribute);
        for (std::size_t i = 0; i < reference.count; ++i)
            appendScalar(out, reference.scalars[i]);
        if (!reference) out.push_back('&');
    }
    return out;
}

void Run::build() {
    if (!built_) builder_.assign(view_);
    present_ = built_ = true;
}

void Run::appendApart(std::string_view piece) {
    if (!built_ && view_.empty()) {
        view_ = piece;
    } else if (!built_ && view_.data() + view_.size() == piece.data()) {
        view_ = {view_.data(), view_.size() + piece.size()};
    } else {
        build();
        builder_.append(piece);
    }
}

void Run::append(char32_t scalar) {
    build();
    appendScalar(builder_, scalar);
}

bool SearchAhead::succeeds(const CharacterReader &reader) {
    if (none_) return false;
    if (hit_ && hit_ >= reader.at()) return true;
    hit_ = reader.find(needle_);
    none_ = !hit_;
    return hit_;
}

Tokeniser::Tokeniser(CharacterReader &reader, Arena &arena, ParseErrorList *errors,
                     const ParseSettings &settings)
    : reader_(reader),
      arena_(arena),
      errors_(errors && errors->canAddError() ? errors : nullptr),
      settings_(settings) {}

Token &Tokeniser::read() {
    if (!selfClosingFlagAcknowledged_ && !isEmitPending_)
        [[unlikely]] { // a pending tag waits behind its text
        error("Self closing flag not acknowledged");
        selfClosingFlagAcknowledged_ = true;
    }
    while (!isEmitPending_) {
        if (state_ == State::Data) [[likely]]
            data();
        else
            step();
    }
    if (chars_.isPresent()) {
        charPending_.data = chars_.take(arena_);
        charPending_.hasNul = charsHaveNul_;
        charsHaveNul_ = false;
        return charPending_;
    }
    isEmitPending_ = false;
    return *emitPending_;
}

// ---- Output
// ------------------------------------------------------------------------------------------------------

void Tokeniser::emit(Token &token) {
    if (isEmitPending_)
        throw Exception::Error(ExceptionType::IllegalArgumentException, "There is an unread token pending!");
    if (token.isStartTag()) return hand(token.asStartTag());
    if (token.isEndTag()) return hand(token.asEndTag());
    emitPending_ = &token;
    isEmitPending_ = true;
}

inline void Tokeniser::hand(Token::StartTag &tag) {
    emitPending_ = &tag;
    isEmitPending_ = true;
    lastStartTag_ = tag.normalName;
    if (tag.selfClosing) selfClosingFlagAcknowledged_ = false;
}

inline void Tokeniser::hand(Token::EndTag &tag) {
    emitPending_ = &tag;
    isEmitPending_ = true;
    if (!tag.attributes.empty()) [[unlikely]]
        error("Attributes incorrectly present on end tag");
}

void Tokeniser::emit(char32_t scalar) {
    if (scalar == 0) charsHaveNul_ = true;
    chars_.append(scalar);
}

void Tokeniser::emit(const CharacterReference &reference) {
    for (std::size_t i = 0; i < reference.count; ++i)
        emit(reference.scalars[i]);
}

void Tokeniser::emitReplacement() {
    error();
    reader_.advance();
    emit(replacement);
}

void Tokeniser::advanceTransition(State state) {
    reader_.advance();
    state_ = state;
}

void Tokeniser::error() {
    if (!errors_ || !errors_->canAddError()) [[likely]]
        return;
    std::string message = "Unexpected character '";
    appendScalar(message, reader_.current());
    errors_->add({reader_.getPos(), message + "' in input state [TokeniserState]"});
}

void Tokeniser::eofError() {
    error("Unexpectedly reached end of file (EOF) in input state [TokeniserState]");
}

void Tokeniser::error(std::string_view message) {
    if (!errors_ || !errors_->canAddError()) [[likely]]
        return;
    errors_->add({reader_.getPos(), std::string(message)});
}

void Tokeniser::eofErrorTo(State state) {
    eofError();
    state_ = state;
}

// ---- Tags
// --------------------------------------------------------------------------------------------------------

template<class Tag>
inline void Tokeniser::begin(Tag &tag) {
    tagPending_ = &tag;
    tag.selfClosing = false;
    tag.attributes.clear();
    writtenNames_.clear();
    writtenRefs_.clear();
    lateCount_ = 0;
}

void Tokeniser::createTagPending(bool start) {
    if (start)
        begin(startPending_);
    else
        begin(endPending_);
    tagPending_->tagName = tagPending_->normalName = {};
    tagPending_->known = nullptr;
    pendingTagName_.clear();
    pendingAttributeName_.clear();
    pendingAttributeValue_.clear();
    hasEmptyAttributeValue_ = false;
}

void Tokeniser::setTagName(std::string_view name) {
    Token::Tag &tag = *tagPending_;
    if (hasEdgeToTrim(name)) name = trimmed(name);
    tag.tagName = name;
    if (isLowerAscii(name)) {
        tag.normalName = name;
        tag.known = knownTag(name);
        return;
    }
    const std::string lower = lowerCase(name);
    tag.known = knownTag(lower);
    tag.normalName = tag.known ? tag.known->name() : arena_.store(lower);
}

void Tokeniser::finishTagName() {
    if (pendingTagName_.isPresent()) setTagName(pendingTagName_.take(arena_));
}

void Tokeniser::emitTagPending() {
    finishTagName();
    newAttribute();
    if (lateCount_) putLate();
    emit(*tagPending_);
}

bool Tokeniser::isAppropriateEndTagToken() const {
    if (lastStartTag_.empty()) return false;
    const std::string_view name = pendingTagName_.isPresent() ? pendingTagName_.view() : tagPending_->name();
    if (name.empty()) throw Exception::Error(ExceptionType::IllegalArgumentException, "Must be false");
    return equalsIgnoringAsciiCase(name, lastStartTag_) ||
           (!isAscii(name) && lowerCase(name) == lastStartTag_);
}

/// Ends the pending attribute, if there is one.
void Tokeniser::newAttribute() {
    if (!pendingAttributeName_.isPresent()) return;
    const std::string_view written = trimmed(pendingAttributeName_.take(arena_));
    std::string_view value;
    const bool hasValue = pendingAttributeValue_.isPresent() || hasEmptyAttributeValue_;
    if (pendingAttributeValue_.isPresent()) value = pendingAttributeValue_.take(arena_);
    hasEmptyAttributeValue_ = false;
    if (written.empty()) return;
    const char *const text = value.empty() ? "" : value.data();
    putAttribute(written, false, hasValue ? text : nullptr, value.size());
}

Ref Tokeniser::nameOf(std::string_view written) {
    if (settings_.preserveAttributeCase() || isLowerAscii(written)) return arena_.internName(written);
    return arena_.internName(lowerCase(written));
}

/// A name in the page that is all lower-case ASCII.
inline Ref Tokeniser::nameOfPlain(std::string_view written) {
    if (written.size() <= 16) {
        if (const NameRec *known = knownNamePadded(written.data(), written.size())) return refOf(known);
    }
    return arena_.internName(written);
}

/// A name that is written the same way a second time changes the value of the first, which keeps its place.
/// `plain` if the name is known to be lower-case ASCII of the page itself.
inline void Tokeniser::putAttribute(std::string_view written, bool plain, const char *value,
                                    std::size_t length) {
    auto &attributes = tagPending_->attributes;
    if (attributes.size() >= fewAttributes) [[unlikely]]
        return putLater({written, value, length});
    const AttrRec attribute{plain ? nameOfPlain(written) : nameOf(written), std::uint32_t(length), value};
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        if (attributes[i].name != attribute.name || writtenNames_[i] != written) continue;
        attributes[i] = attribute;
        return;
    }
    attributes.push_back(attribute);
    writtenNames_.push_back(written);
}

/// The names of a tag that has very many lie all over the memory. Each is asked for some attributes before it
/// is needed, so that they come at once and not one after another.
void Tokeniser::putLater(const Late &attribute) {
    arena_.expectName(attribute.written);
    late_[lateCount_++] = attribute;
    if (lateCount_ == late_.size()) putLate();
}

void Tokeniser::putLate() {
    auto &attributes = tagPending_->attributes;
    for (std::size_t i = writtenRefs_.size(); i < fewAttributes; ++i)
        placeOf(arena_.internName(writtenNames_[i]));
    for (std::size_t i = 0; i < lateCount_; ++i) {
        const Ref written = arena_.internName(late_[i].written);
        const Ref name = settings_.preserveAttributeCase() ? written : at<NameRec>(written)->lower;
        const AttrRec attribute{name, std::uint32_t(late_[i].length), late_[i].value};
        if (const std::size_t place = placeOf(written); place < attributes.size())
            attributes[place] = attribute;
        else
            attributes.push_back(attribute);
    }
    lateCount_ = 0;
}

/// Where the pending tag has the attribute that is written so, which becomes its last if it is new. Each name
/// remembers where it stood in the long tag that had it last, and the list of this tag tells whether it is
/// that tag: nothing has to be searched or forgotten.
std::size_t Tokeniser::placeOf(Ref written) {
    std::uint32_t &place = isStatic(written) ? knownPlaces_[(written - firstName) / (sizeof(NameRec) / 16)]
                                             : at<NameRec>(written)->place;
    if (place < writtenRefs_.size() && writtenRefs_[place] == written) return place;
    place = std::uint32_t(writtenRefs_.size());
    writtenRefs_.push_back(written);
    return place;
}

/// A quoted value with its references resolved, as the arena keeps it; the text itself where none is.
std::string_view Tokeniser::resolved(std::string_view value) {
    const char *const end = value.data() + value.size();
    const char quote = *end;
    bool changed = false;
    scratch_.clear();
    reader_.moveTo(value.data());
    while (reader_.at() != end) {
        const void *const found = std::memchr(reader_.at(), '&', std::size_t(end - reader_.at()));
        scratch_.append(reader_.consumeUpTo(found ? static_cast<const char *>(found) : end));
        if (!found) break;
        reader_.advance();
        const auto reference = consumeCharacterReference(reader_, errors_, char32_t(quote), true);
        for (std::size_t i = 0; i < reference.count; ++i)
            appendScalar(scratch_, reference.scalars[i]);
        if (reference)
            changed = true;
        else
            scratch_.push_back('&');
    }
    return changed ? arena_.store(scratch_) : value;
}

/// A value that holds nothing wrong and is followed by what may follow it; null for any other.
inline const char *Tokeniser::readValue(const char *p, std::string_view &value) {
    const char quote = *p;
    if (quote == '"' || quote == '\'') {
        const char *const start = p + 1;
        p = quote == '"' ? scan::to<'"', '&'>(start) : scan::to<'\'', '&'>(start);
        const bool referenced = *p == '&';
        if (referenced) p = quote == '"' ? scan::to<'"'>(p) : scan::to<'\''>(p);
        if (*p != quote || !(isWhite(p[1]) || p[1] == '>' || p[1] == '/')) return nullptr;
        value = {start, std::size_t(p - start)};
        if (referenced) value = resolved(value);
        return p + 1;
    }
    const char *const start = p;
    while (!isClass(*p, UnquotedEnd))
        ++p;
    value = {start, std::size_t(p - start)};
    return p > start && (isWhite(*p) || *p == '>') ? p : nullptr;
}

/// Reads the attribute at `p` and gives the place behind it; null if it is not plain.
inline const char *Tokeniser::readAttribute(const char *p) {
    const scan::Name scanned = scan::name<true>(p);
    const char *const name = p;
    p += scanned.length;
    bool plain = scanned.plain;
    if (scanned.length == 16) {
        while (!isClass(*p, AttributeNameEnd))
            ++p;
        const std::string_view all(name, std::size_t(p - name));
        plain = isLowerAscii(all) && !hasEdgeToTrim(all);
    }
    const std::string_view written(name, std::size_t(p - name));
    if (written.empty() || !isClass(*p, AttributeNameEnd) || (!plain && hasEdgeToTrim(written)))
        return nullptr;

    std::string_view value;
    if (*p == '=') [[likely]] {
        p = readValue(p + 1, value);
        if (!p) return nullptr;
    } else if (isWhite(*p)) {
        while (isWhite(*p))
            ++p;
        if (*p == '=') return nullptr;
    } else if (*p != '>' && *p != '/') {
        return nullptr;
    }
    putAttribute(written, plain, value.data(), value.size());
    return p;
}

/// Reads whole attributes and the end of the tag; false, at the start of an attribute, where the states have
/// to look.
bool Tokeniser::readAttributes() {
    const char *p = reader_.at();
    for (;;) {
        while (isWhite(*p))
            ++p;
        const bool selfClosing = *p == '/' && p[1] == '>';
        if (*p == '>' || selfClosing) {
            if (selfClosing) tagPending_->selfClosing = true;
            if (lateCount_) [[unlikely]]
                putLate();
            reader_.moveTo(p + 1 + selfClosing);
            state_ = State::Data;
            if (tagPending_ == &startPending_)
                hand(startPending_);
            else
                hand(endPending_);
            return true;
        }
        const char *const next = readAttribute(p);
        if (!next) break;
        p = next;
    }
    reader_.moveTo(p);
    return false;
}

/// Reads a tag in one go from the first letter of its name, or up to an attribute that the states have to
/// look at. False, with nothing done, if they have to look at the name.
template<class Tag>
inline bool Tokeniser::readTag(Tag &tag, const char *name) {
    const scan::Name scanned = scan::name<false>(name);
    const char *const end = name + scanned.length;
    if (scanned.length == 16 || !isClass(*end, TagNameEnd) || *end == '\0') return false;
    begin(tag);
    if (scanned.plain) [[likely]] {
        tag.normalName = std::string_view(name, scanned.length);
        tag.tagName =
            std::string_view(name, scanned.length); // a copy of the other would wait for its two halves
        tag.known = knownTagPadded(name, scanned.length);
    } else {
        setTagName({name, scanned.length});
    }
    if (*end == '>') {
        reader_.moveTo(end + 1);
        hand(tag);
        return true;
    }
    reader_.moveTo(end);
    state_ = State::BeforeAttributeName;
    readAttributes();
    return true;
}

/// Text, and the tag behind it if that is as plain as most are.
void Tokeniser::data() {
    const char *const start = reader_.at();
    if (*start == '\xef' && reader_.current() == CharacterReader::endOfInput) [[unlikely]]
        return emit(eofPending_);
    emit(reader_.consumeData());
    const char *const here = reader_.at();
    if (*here == '<') [[likely]] {
        if (here[1] == '/') {
            if (isClass(here[2], LetterByte) && readTag(endPending_, here + 2)) return;
        } else if (isClass(here[1], LetterByte) && readTag(startPending_, here + 1)) {
            return;
        }
        return advanceTransition(State::TagOpen);
    }
    if (*here == '&') {
        reader_.moveTo(here + 1);
        return characterReferenceIn(State::Data);
    }
    if (!reader_.isEmpty()) return emitNul();
    if (here == start) emit(eofPending_);
}

/// Whether an end tag of that name, all in lower case or all in upper case, still comes.
bool Tokeniser::closesLater(std::string_view name) {
    const auto comes = [this](const std::string &needle) {
        auto search =
            std::find_if(searches_.begin(), searches_.end(), [&](auto &s) { return s.isFor(needle); });
        if (search == searches_.end()) search = searches_.emplace(searches_.end(), needle);
        return search->succeeds(reader_);
    };
    std::string needle = "</" + std::string(name);
    if (comes(needle)) return true;
    for (char &c : needle)
        c = isClass(c, LetterByte) ? char(c & ~0x20) : c;
    return comes(needle);
}

} // namespace orl::html::core
