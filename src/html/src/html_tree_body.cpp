// The mode InBody, in which nearly all of a page is read.
#include "attrs.h"
#include "html_tree_builder.h"

#include <algorithm>
#include <iterator>

namespace orl::html {

using namespace core;

namespace {

/// What the start tag of a name means in the body.
enum class BodyStart : std::uint8_t {
    AnyOther,
    Html,
    ToHead,
    Body,
    Frameset,
    PCloser,
    Heading,
    Pre,
    Form,
    Item,
    Plaintext,
    Button,
    A,
    Formatter,
    Nobr,
    Applet,
    Table,
    EmptyFormatter,
    Input,
    Media,
    Hr,
    Image,
    Isindex,
    Textarea,
    Xmp,
    Iframe,
    Noembed,
    Select,
    Option,
    Ruby,
    Drop,
};

/// What the end tag of a name means in the body.
enum class BodyEnd : std::uint8_t {
    AnyOther,
    Body,
    Html,
    Closer,
    Form,
    P,
    Li,
    DdDt,
    Heading,
    Formatter,
    Applet,
    Br
};

constexpr BodyStart startOf(TagId id, std::uint64_t sets) {
    const auto in = [sets](TagSet set) { return (sets & bitOf(set)) != 0; };
    switch (id) {
    case TagId::Html: return BodyStart::Html;
    case TagId::Body: return BodyStart::Body;
    case TagId::Frameset: return BodyStart::Frameset;
    case TagId::Form: return BodyStart::Form;
    case TagId::Li: return BodyStart::Item;
    case TagId::Plaintext: return BodyStart::Plaintext;
    case TagId::Button: return BodyStart::Button;
    case TagId::A: return BodyStart::A;
    case TagId::Nobr: return BodyStart::Nobr;
    case TagId::Table: return BodyStart::Table;
    case TagId::Input: return BodyStart::Input;
    case TagId::Hr: return BodyStart::Hr;
    case TagId::Image: return BodyStart::Image;
    case TagId::Isindex: return BodyStart::Isindex;
    case TagId::Textarea: return BodyStart::Textarea;
    case TagId::Xmp: return BodyStart::Xmp;
    case TagId::Iframe: return BodyStart::Iframe;
    case TagId::Noembed: return BodyStart::Noembed;
    case TagId::Select: return BodyStart::Select;
    default: break;
    }
    if (in(TagSet::InBodyStartToHead)) return BodyStart::ToHead;
    if (in(TagSet::InBodyStartPClosers)) return BodyStart::PCloser;
    if (in(TagSet::Headings)) return BodyStart::Heading;
    if (in(TagSet::InBodyStartPreListing)) return BodyStart::Pre;
    if (in(TagSet::DdDt)) return BodyStart::Item;
    if (in(TagSet::Formatters)) return BodyStart::Formatter;
    if (in(TagSet::InBodyStartApplets)) return BodyStart::Applet;
    if (in(TagSet::InBodyStartEmptyFormatters)) return BodyStart::EmptyFormatter;
    if (in(TagSet::InBodyStartMedia)) return BodyStart::Media;
    if (in(TagSet::InBodyStartOptions)) return BodyStart::Option;
    if (in(TagSet::InBodyStartRuby)) return BodyStart::Ruby;
    if (in(TagSet::InBodyStartDrop)) return BodyStart::Drop;
    return BodyStart::AnyOther;
}

constexpr BodyEnd endOf(TagId id, std::uint64_t sets) {
    const auto in = [sets](TagSet set) { return (sets & bitOf(set)) != 0; };
    switch (id) {
    case TagId::Body: return BodyEnd::Body;
    case TagId::Html: return BodyEnd::Html;
    case TagId::Form: return BodyEnd::Form;
    case TagId::P: return BodyEnd::P;
    case TagId::Li: return BodyEnd::Li;
    case TagId::Br: return BodyEnd::Br;
    default: break;
    }
    if (in(TagSet::InBodyEndClosers)) return BodyEnd::Closer;
    if (in(TagSet::DdDt)) return BodyEnd::DdDt;
    if (in(TagSet::Headings)) return BodyEnd::Heading;
    if (in(TagSet::InBodyEndAdoptionFormatters)) return BodyEnd::Formatter;
    if (in(TagSet::InBodyStartApplets)) return BodyEnd::Applet;
    return BodyEnd::AnyOther; // "sarcasm" too, after a deep breath
}

/// End tags that, when they name the current element, do no more than to close it.
constexpr bool isSimple(BodyEnd end) {
    switch (end) {
    case BodyEnd::AnyOther:
    case BodyEnd::Closer:
    case BodyEnd::P:
    case BodyEnd::Li:
    case BodyEnd::DdDt:
    case BodyEnd::Heading: return true;
    case BodyEnd::Body:
    case BodyEnd::Html:
    case BodyEnd::Form:
    case BodyEnd::Formatter:
    case BodyEnd::Applet:
    case BodyEnd::Br: return false;
    }
    return false;
}

struct Meaning {
    BodyStart start = BodyStart::AnyOther;
    BodyEnd end = BodyEnd::AnyOther;
    bool closesSimply = true;
};

// One constant a name, as compilers bound what they compute for one.
#define ORL_HTML_TAG_MEANING(id, name)                                                                       \
    constexpr Meaning meaningOf##id{startOf(TagId::id, tagSets(name)), endOf(TagId::id, tagSets(name)),      \
                                    isSimple(endOf(TagId::id, tagSets(name)))};
ORL_HTML_TAGS(ORL_HTML_TAG_MEANING)
#undef ORL_HTML_TAG_MEANING

/// By TagId.
constexpr Meaning meanings[tagCount] = {{},
#define ORL_HTML_TAG_MEANING(id, name) meaningOf##id,
                                        ORL_HTML_TAGS(ORL_HTML_TAG_MEANING)
#undef ORL_HTML_TAG_MEANING
};

} // namespace

bool HtmlTreeBuilder::inBody(Token &token) {
    switch (token.type) {
    case TokenType::Char: return bodyCharacters(token.asCharacter());
    case TokenType::StartTag: return bodyStart(token.asStartTag());
    case TokenType::EndTag: return bodyEnd(token.asEndTag());
    case TokenType::Comment: insert(token.asComment()); return true;
    case TokenType::Doctype: return error(State::InBody);
    case TokenType::Eof: return true;
    }
    return true;
}

bool HtmlTreeBuilder::bodyCharacters(Token::Char &token) {
    if (token.hasNul && !dropNul(token, State::InBody)) return false;
    reconstructFormattingElements();
    insertText(token.data);
    if (framesetOk_ && !isAllWhite(token.data)) framesetOk_ = false;
    return true;
}

bool HtmlTreeBuilder::bodyStart(Start &tag) {
    switch (meanings[unsigned(tag.id())].start) {
    case BodyStart::AnyOther:
        reconstructFormattingElements();
        insert(tag);
        return true;
    case BodyStart::Html: return startHtml(tag);
    case BodyStart::ToHead: return process(tag, State::InHead);
    case BodyStart::Body: return startBody(tag);
    case BodyStart::Frameset: return startFrameset(tag);
    case BodyStart::PCloser:
        closeP();
        insert(tag);
        return true;
    case BodyStart::Heading: return startHeading(tag);
    case BodyStart::Pre:
        closeP();
        insert(tag);
        skipLineFeed(tag);
        framesetOk_ = false;
        return true;
    case BodyStart::Form: return startForm(tag);
    case BodyStart::Item: return startItem(tag);
    case BodyStart::Plaintext:
        closeP();
        tokeniser_->transition(TokeniserState::PLAINTEXT);
        insert(tag);
        return true;
    case BodyStart::Button: return startButton(tag);
    case BodyStart::A: return startA(tag);
    case BodyStart::Formatter: return startFormatter(tag);
    case BodyStart::Nobr: return startNobr(tag);
    case BodyStart::Applet:
        reconstructFormattingElements();
        insert(tag);
        formatting_.pushMarker();
        framesetOk_ = false;
        return true;
    case BodyStart::Table: return startTable(tag);
    case BodyStart::EmptyFormatter:
        reconstructFormattingElements();
        insertEmpty(tag);
        framesetOk_ = false;
        return true;
    case BodyStart::Input: return startInput(tag);
    case BodyStart::Media: insertEmpty(tag); return true;
    case BodyStart::Hr:
        closeP();
        insertEmpty(tag);
        framesetOk_ = false;
        return true;
    case BodyStart::Image: return startImage(tag);
    case BodyStart::Isindex: return startIsindex(tag);
    case BodyStart::Textarea: return startTextarea(tag);
    case BodyStart::Xmp:
        closeP();
        reconstructFormattingElements();
        framesetOk_ = false;
        return startText(tag, TokeniserState::Rawtext);
    case BodyStart::Iframe: framesetOk_ = false; return startText(tag, TokeniserState::Rawtext);
    case BodyStart::Noembed: return startText(tag, TokeniserState::Rawtext);
    case BodyStart::Select: return startSelect(tag);
    case BodyStart::Option:
        if (currentIs(TagId::Option)) processEndTag(TagId::Option);
        reconstructFormattingElements();
        insert(tag);
        return true;
    case BodyStart::Ruby: return startRuby(tag);
    case BodyStart::Drop: return error(State::InBody);
    }
    return true;
}

bool HtmlTreeBuilder::bodyEnd(End &tag) {
    const Meaning &meaning = meanings[unsigned(tag.id())];
    if (tag.known == currentTag() && meaning.closesSimply) {
        pop();
        return true;
    }
    switch (meaning.end) {
    case BodyEnd::AnyOther: return anyOtherEndTag(tag);
    case BodyEnd::Body: return endBody(tag);
    case BodyEnd::Html: return processEndTag(TagId::Body) ? process(tag) : false;
    case BodyEnd::Closer: return endCloser(tag);
    case BodyEnd::Form: return endForm(tag);
    case BodyEnd::P: return endP(tag);
    case BodyEnd::Li: return endItem(tag, inListItemScope(TagId::Li));
    case BodyEnd::DdDt: return endItem(tag, inScope(tag.id()));
    case BodyEnd::Heading: return endHeading(tag);
    case BodyEnd::Formatter: return adoptionAgency(tag);
    case BodyEnd::Applet: return endApplet(tag);
    case BodyEnd::Br:
        error(State::InBody);
        processStartTag(TagId::Br);
        return false;
    }
    return true;
}

// ---- Start tags
// --------------------------------------------------------------------------------------------------

bool HtmlTreeBuilder::startHtml(Start &tag) {
    error(State::InBody);
    mergeAttributes(open_.node(1), tag, htmlNames_);
    return true;
}

bool HtmlTreeBuilder::startBody(Start &tag) {
    error(State::InBody);
    if (open_.size() < 2 || open_.tag(2)->id != TagId::Body) return false; // a fragment, or a frameset
    framesetOk_ = false;
    mergeAttributes(open_.node(2), tag, bodyNames_);
    return true;
}

bool HtmlTreeBuilder::startFrameset(Start &tag) {
    error(State::InBody);
    if (open_.size() < 2 || open_.tag(2)->id != TagId::Body || !framesetOk_) return false;
    NodeRec *const body = open_.node(2);
    open_.popDownTo(1);
    arena().classes.drop();
    detach(body);
    insert(tag);
    transition(State::InFrameset);
    return true;
}

bool HtmlTreeBuilder::startHeading(Start &tag) {
    closeP();
    if (currentIn(TagSet::Headings)) {
        error(State::InBody);
        pop();
    }
    insert(tag);
    return true;
}

bool HtmlTreeBuilder::startForm(Start &tag) {
    if (formElement_) return error(State::InBody);
    closeP();
    insertForm(tag, true);
    return true;
}

/// li, dd and dt close an open element of their kind if nothing but inline elements, or an address, a div or
/// a p, stands in between.
bool HtmlTreeBuilder::startItem(Start &tag) {
    framesetOk_ = false;
    if (const Place bound = open_.newestItemBound()) {
        const TagRec *const open = open_.tag(bound);
        const bool sameKind =
            tag.id() == TagId::Li ? open->id == TagId::Li : (open->sets & bitOf(TagSet::DdDt)) != 0;
        if (sameKind && bound > 1) processEndTag(open->id);
    }
    closeP();
    insert(tag);
    return true;
}

bool HtmlTreeBuilder::startButton(Start &tag) {
    if (inButtonScope(TagId::Button)) {
        error(State::InBody);
        processEndTag(TagId::Button);
        return process(tag);
    }
    reconstructFormattingElements();
    insert(tag);
    framesetOk_ = false;
    return true;
}

/// A link within a link ends the outer one.
bool HtmlTreeBuilder::startA(Start &tag) {
    if (const Formatting *open = formatting_.find(TagId::A)) {
        NodeRec *const outer = open->node;
        error(State::InBody);
        processEndTag(TagId::A);
        if (Formatting *const left = formatting_.entryOf(outer, TagId::A)) formatting_.remove(left);
        removeFromStack(outer);
    }
    return startFormatter(tag);
}

bool HtmlTreeBuilder::startFormatter(Start &tag) {
    reconstructFormattingElements();
    NodeRec *const element = insert(tag);
    pushActiveFormattingElements(element, tag.id());
    return true;
}

bool HtmlTreeBuilder::startNobr(Start &tag) {
    reconstructFormattingElements();
    if (inScope(TagId::Nobr)) {
        error(State::InBody);
        processEndTag(TagId::Nobr);
    }
    return startFormatter(tag);
}

bool HtmlTreeBuilder::startTable(Start &tag) {
    if (documentOf(doc_)->quirksMode != QuirksMode::quirks) closeP();
    insert(tag);
    framesetOk_ = false;
    transition(State::InTable);
    return true;
}

bool HtmlTreeBuilder::startInput(Start &tag) {
    reconstructFormattingElements();
    insertEmpty(tag);
    if (!isHidden(tag)) framesetOk_ = false;
    return true;
}

/// Everybody means "img", except in a drawing.
bool HtmlTreeBuilder::startImage(Start &tag) {
    if (open_.newest(TagId::Svg)) {
        insert(tag);
        return true;
    }
    error(State::InBody);
    tag.known = tagRec(TagId::Img);
    tag.tagName = tag.normalName = tag.known->name();
    return process(tag);
}

/// A search field of old times: a form with two rulers, a prompt and a field between them.
bool HtmlTreeBuilder::startIsindex(Start &tag) {
    static constexpr std::string_view defaultPrompt = "self is a searchable index. Enter search keywords: ";
    static constexpr NameId InBodyStartInputAttribs[] = {NameId::Name, NameId::Action, NameId::Prompt};
    const auto find = [&tag](NameId name) {
        return std::find_if(tag.attributes.begin(), tag.attributes.end(),
                            [name](const AttrRec &attribute) { return attribute.name == nameRef(name); });
    };
    error(State::InBody);
    if (formElement_) return false;
    tokeniser_->acknowledgeSelfClosingFlag();
    processStartTag(TagId::Form);
    const auto action = find(NameId::Action);
    if (formElement_ && action != tag.attributes.end()) appendAttr(formElement_, *action);
    processStartTag(TagId::Hr);
    processStartTag(TagId::Label);

    const auto prompt = find(NameId::Prompt);
    Token::Char words;
    words.data = prompt == tag.attributes.end() ? defaultPrompt : prompt->text();
    process(words);

    Start input;
    input.resetTo(TagId::Input);
    for (const AttrRec &attribute : tag.attributes) {
        const bool taken = std::any_of(std::begin(InBodyStartInputAttribs), std::end(InBodyStartInputAttribs),
                                       [&](NameId name) { return attribute.name == nameRef(name); });
        if (!taken) input.attributes.push_back(attribute);
    }
    static constexpr std::string_view isindex = "isindex";
    input.attributes.push_back({nameRef(NameId::Name), std::uint32_t(isindex.size()), isindex.data()});
    process(input);
    currentToken_ = &tag;
    processEndTag(TagId::Label);
    processStartTag(TagId::Hr);
    processEndTag(TagId::Form);
    return true;
}

/// Elements that hold nothing but text, which the tokeniser has to be told before it goes on.
bool HtmlTreeBuilder::startText(Start &tag, TokeniserState state) {
    tokeniser_->transition(state);
    markInsertionMode();
    transition(State::Text);
    insert(tag);
    return true;
}

bool HtmlTreeBuilder::startTextarea(Start &tag) {
    startText(tag, TokeniserState::Rcdata);
    skipLineFeed(tag);
    framesetOk_ = false;
    return true;
}

/// The line feed right behind the start tag of a pre, listing or textarea is not of its text.
void HtmlTreeBuilder::skipLineFeed(const Start &tag) {
    if (tag.selfClosing) return;
    if (!reader_->matchConsume("\r\n")) reader_->matchConsume('\n');
}

bool HtmlTreeBuilder::startSelect(Start &tag) {
    reconstructFormattingElements();
    insert(tag);
    framesetOk_ = false;
    switch (state_) {
    case State::InTable:
    case State::InCaption:
    case State::InTableBody:
    case State::InRow:
    case State::InCell: transition(State::InSelectInTable); break;
    default: transition(State::InSelect);
    }
    return true;
}

bool HtmlTreeBuilder::startRuby(Start &tag) {
    if (inScope(TagId::Ruby)) {
        generateImpliedEndTags();
        if (!currentIs(TagId::Ruby)) {
            error(State::InBody);
            popStackToBefore(TagId::Ruby);
        }
    }
    insert(tag);
    return true;
}

// ---- End tags
// ----------------------------------------------------------------------------------------------------

bool HtmlTreeBuilder::endBody(End &) {
    if (!inScope(TagId::Body)) return error(State::InBody);
    transition(State::AfterBody);
    return true;
}

bool HtmlTreeBuilder::endCloser(End &tag) {
    if (!inScope(tag.id())) return error(State::InBody);
    generateImpliedEndTags();
    if (!currentIs(tag.id())) error(State::InBody);
    popStackToClose(tag.id());
    return true;
}

bool HtmlTreeBuilder::endForm(End &) {
    NodeRec *const form = formElement_;
    formElement_ = nullptr;
    if (!form || !OpenElements::contains(form) || !inScope(TagId::Form)) return error(State::InBody);
    generateImpliedEndTags();
    if (open_.top() != form) error(State::InBody);
    removeFromStack(form);
    return true;
}

bool HtmlTreeBuilder::endP(End &tag) {
    if (!inButtonScope(TagId::P)) {
        error(State::InBody);
        processStartTag(TagId::P); // an empty paragraph
        return inButtonScope(TagId::P) && process(tag);
    }
    generateImpliedEndTags(TagId::P);
    if (!currentIs(TagId::P)) error(State::InBody);
    popStackToClose(TagId::P);
    return true;
}

bool HtmlTreeBuilder::endItem(End &tag, bool inItsScope) {
    if (!inItsScope) return error(State::InBody);
    generateImpliedEndTags(tag.id());
    if (!currentIs(tag.id())) error(State::InBody);
    popStackToClose(tag.id());
    return true;
}

bool HtmlTreeBuilder::endHeading(End &tag) {
    if (!inScope({TagId::H1, TagId::H2, TagId::H3, TagId::H4, TagId::H5, TagId::H6}))
        return error(State::InBody);
    generateImpliedEndTags(tag.id());
    if (!currentIs(tag.id())) error(State::InBody);
    popStackToClose(TagSet::Headings);
    return true;
}

bool HtmlTreeBuilder::endApplet(End &tag) {
    if (!inScope(tag.id())) return error(State::InBody);
    generateImpliedEndTags();
    if (!currentIs(tag.id())) error(State::InBody);
    popStackToClose(tag.id());
    formatting_.clearToLastMarker();
    return true;
}

/// Closes the newest element of that name, unless a special element stands above it.
bool HtmlTreeBuilder::anyOtherEndTag(const End &tag) {
    const bool mayBeOpen = tag.known || open_.hasUnknown();
    const Place place = mayBeOpen ? open_.newest(tag.known ? tag.known : arena().tag(tag.normalName)) : 0;
    if (place <= 1 || place < open_.newestSpecial()) return error(State::InBody);
    generateImpliedEndTags(tag.id());
    if (place != open_.size()) error(State::InBody);
    open_.popDownTo(place - 1);
    return true;
}

// ---- The adoption agency
// -----------------------------------------------------------------------------------------

/// The first special element above a formatting element, looked for among the lowest 64 open elements; 0
/// without one.
HtmlTreeBuilder::Place HtmlTreeBuilder::furthestBlock(Place formatPlace) const {
    static constexpr Place lowest = 64;
    for (Place place = formatPlace + 1; place <= std::min(open_.size(), lowest); ++place)
        if (open_.tag(place)->sets & bitOf(TagSet::TagSearchSpecial)) return place;
    return 0;
}

/// Formatting that was opened outside a block and is closed inside it is cut in two: what of the block it
/// covers goes into an element of its own.
bool HtmlTreeBuilder::adoptionAgency(const End &tag) {
    static constexpr int rounds = 8;
    for (int round = 0; round < rounds; ++round) {
        Formatting *const entry = formatting_.find(tag.id());
        if (!entry) return anyOtherEndTag(tag);
        if (!OpenElements::contains(entry->node)) {
            error(State::InBody);
            formatting_.remove(entry);
            return true;
        }
        if (!inScope(tag.id())) return error(State::InBody);
        const Place formatPlace = open_.placeOf(entry->node, entry->place);
        if (formatPlace < open_.newestScope()) return error(State::InBody);
        if (open_.top() != entry->node) error(State::InBody);
        const Place furthest = furthestBlock(formatPlace);
        if (!furthest) {
            open_.popDownTo(formatPlace - 1);
            formatting_.remove(entry);
            return true;
        }
        adopt(entry, formatPlace, furthest);
    }
    return true;
}

void HtmlTreeBuilder::adopt(Formatting *entry, Place formatPlace, Place furthest) {
    static constexpr int innerRounds = 3;
    arena().classes.drop();
    NodeRec *const format = entry->node;
    NodeRec *const block = open_.node(furthest);
    NodeRec *last = block;
    Formatting *bookmark = entry; // the new element comes right behind it
    Place place = furthest;
    for (int round = 0; round < innerRounds; ++round) {
        if (--place == formatPlace) break;
        const TagRec *const itsTag = open_.tag(place);
        Formatting *const its = formatting_.entryOf(open_.node(place), itsTag->id);
        if (!its) {
            open_.remove(place);
            --furthest;
            continue;
        }
        NodeRec *const replacement = arena().newElement(Kind::Element, tagOf(open_.node(place)));
        formatting_.replace(its, replacement);
        open_.replace(place, replacement);
        if (last == block) bookmark = its;
        detach(last);
        append(replacement, last);
        last = replacement;
    }
    detach(last);
    if (open_.tag(formatPlace - 1)->sets & bitOf(TagSet::InBodyEndTableFosters))
        insertInFosterParent(last);
    else
        append(open_.node(formatPlace - 1), last);

    NodeRec *const adopter = cloneOf(format);
    moveChildren(block, adopter);
    append(block, adopter);
    const TagRec *const itsTag = open_.tag(formatPlace);
    Formatting *const made = formatting_.insertBehind(bookmark, adopter, entry->id, entry->level);
    formatting_.remove(entry);
    open_.remove(formatPlace);
    open_.insertAbove(furthest - 1, adopter, itsTag);
    made->place = furthest;
}

} // namespace orl::html
