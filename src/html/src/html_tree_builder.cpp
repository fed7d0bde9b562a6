// The parts of the HTML tree builder that its modes share; the modes stand in html_tree_modes.cpp and
// html_tree_body.cpp.
#include "html_tree_builder.h"

#include "attrs.h"

#include <orl/html/string_util.h>

#include <algorithm>
#include <iterator>

namespace orl::html {

using namespace core;

namespace {

constexpr const char *stateNames[] = {"Initial",         "BeforeHtml",
                                      "BeforeHead",      "InHead",
                                      "InHeadNoscript",  "AfterHead",
                                      "InBody",          "Text",
                                      "InTable",         "InTableText",
                                      "InCaption",       "InColumnGroup",
                                      "InTableBody",     "InRow",
                                      "InCell",          "InSelect",
                                      "InSelectInTable", "AfterBody",
                                      "InFrameset",      "AfterFrameset",
                                      "AfterAfterBody",  "AfterAfterFrameset",
                                      "ForeignContent"};
static_assert(std::size(stateNames) == unsigned(HtmlTreeBuilderState::ForeignContent) + 1);

/// Formatting elements that a page leaves open are opened again in each paragraph that follows, so that a
/// short page could ask for a tree of any size. A page may have this many of them, and one more for so many
/// of its bytes.
constexpr std::size_t freeClones = 65536, bytesPerClone = 4;

bool isInSet(const TagRec *tag, TagSet set) {
    return tag->sets & bitOf(set);
}

const NodeRec *nearestForm(const NodeRec *context) {
    while (context && kindOf(context) != Kind::Form)
        context = parentOf(context);
    return context;
}

} // namespace

// ---- A parse
// -----------------------------------------------------------------------------------------------------

void HtmlTreeBuilder::initialiseParse(Arena &arena, std::string_view input, std::string_view baseUri,
                                      ParseErrorList &errors, const ParseSettings &settings) {
    TreeBuilder::initialiseParse(arena, input, baseUri, errors, settings);
    state_ = originalState_ = State::Initial;
    baseUriSetFromDoc_ = fosterInserts_ = fragmentParsing_ = behindBody_ = false;
    framesetOk_ = true;
    headElement_ = formElement_ = contextElement_ = nullptr;
    clonesLeft_ = freeClones + input.size() / bytesPerClone;
}

void HtmlTreeBuilder::endParse() {
    formatting_.clear();
    pendingTableCharacters_.clear();
    htmlNames_.clear();
    bodyNames_.clear();
    TreeBuilder::endParse();
}

void HtmlTreeBuilder::runParser() {
    for (;;) {
        Token &token = tokeniser_->read();
        currentToken_ = &token;
        if (state_ == State::InBody) [[likely]]
            inBody(token);
        else
            process(token, state_);
        if (token.isEOF()) return;
    }
}

std::vector<NodeRec *> HtmlTreeBuilder::parseFragment(Arena &arena, std::string_view input, NodeRec *context,
                                                      std::string_view baseUri, ParseErrorList &errors,
                                                      const ParseSettings &settings) {
    const Parse parse(*this);
    initialiseParse(arena, input, baseUri, errors, settings);
    contextElement_ = context;
    fragmentParsing_ = true;
    if (context) {
        NodeRec *owner = context;
        while (NodeRec *above = parentOf(owner))
            owner = above;
        if (kindOf(owner) == Kind::Document) documentOf(doc_)->quirksMode = documentOf(owner)->quirksMode;
        const TagRec *const tag = tagRec(tagOf(context)->normalId);
        if (isInSet(tag, TagSet::TagsRcdata)) tokeniser_->transition(TokeniserState::Rcdata);
        if (isInSet(tag, TagSet::TagsRawtext)) tokeniser_->transition(TokeniserState::Rawtext);
        if (tag->id == TagId::Script) tokeniser_->transition(TokeniserState::ScriptData);
    }
    NodeRec *const root = arena.newElement(Kind::Element, tagRec(TagId::Html));
    append(doc_, root);
    open_.push(root, tagRec(TagId::Html));
    resetInsertionMode();
    formElement_ = const_cast<NodeRec *>(nearestForm(context));
    runParser();
    open_.clear();
    std::vector<NodeRec *> nodes = takeChildren(context ? root : doc_);
    dropIfUnheld(doc_);
    return nodes;
}

/// The first base element with an address sets the base of the whole page; the later ones have no effect.
void HtmlTreeBuilder::maybeSetBaseUri(const NodeRec *base) {
    if (baseUriSetFromDoc_) return;
    const AttrRec *const href = findAttr(base, nameRef(NameId::Href));
    if (!href) return;
    const std::string uri = StringUtil::resolve(baseUri_, href->text());
    if (uri.empty()) return;
    baseUriSetFromDoc_ = true;
    baseUri_ = uri;
    if (!fragmentParsing_) arena().setBaseUri(uri);
}

bool HtmlTreeBuilder::isHidden(const Token::Tag &tag) {
    return std::any_of(tag.attributes.begin(), tag.attributes.end(), [](const AttrRec &attribute) {
        return attribute.name == nameRef(NameId::Type) && equalsIgnoringAsciiCase(attribute.text(), "hidden");
    });
}

bool HtmlTreeBuilder::dropNul(Token::Char &token, State state) {
    error(state);
    std::string rest(token.data);
    std::erase(rest, '\0');
    token.data = arena().store(rest);
    token.hasNul = false;
    return !rest.empty();
}

bool HtmlTreeBuilder::error(State state) {
    if (errors_ && errors_->canAddError() && currentToken_) [[unlikely]]
        errors_->add({reader_->getPos(), std::string("Unexpected token [")
                                             .append(currentToken_->typeName())
                                             .append("] when in state [")
                                             .append(stateNames[unsigned(state)])
                                             .append("]")});
    return false;
}

// ---- Insertion
// ---------------------------------------------------------------------------------------------------

NodeRec *HtmlTreeBuilder::createElement(const Token::Tag &tag, Kind kind) {
    return arena().newElement(kind, elementTag(tag), tag.attributes.data(), tag.attributes.size());
}

/// The tag by which the stack knows an element: that of its name in lower case.
const TagRec *HtmlTreeBuilder::stackTag(const Token::Tag &tag, const NodeRec *element) {
    if (tag.known) return tag.known;
    return settings_.preserveTagCase() || tag.selfClosing ? arena().tag(tag.normalName) : tagOf(element);
}

/// Whether what is inserted goes before the table instead of into it.
bool HtmlTreeBuilder::fosters() const {
    return fosterInserts_ && currentIn(TagSet::InTableFoster);
}

void HtmlTreeBuilder::insertNode(NodeRec *node) {
    if (open_.empty())
        append(doc_, node);
    else if (fosters()) [[unlikely]]
        insertInFosterParent(node);
    else
        append(open_.top(), node);
    if (behindBody_ && isElement(node)) [[unlikely]]
        arena().classes.drop();
    if (node->attrCount) arena().classes.note(arena(), node);
    if (formElement_ && isElement(node) && tagOf(node)->has(TagRec::FormListed))
        arena().addToForm(formElement_, node);
}

/// An element that closes itself is one with its end tag right behind it.
NodeRec *HtmlTreeBuilder::insert(Start &tag) {
    if (!tag.selfClosing) [[likely]] {
        NodeRec *const element = createElement(tag);
        insertNode(element);
        open_.push(element, stackTag(tag, element));
        return element;
    }
    NodeRec *const element = insertEmpty(tag);
    open_.push(element, stackTag(tag, element));
    emptyEnd_.reset();
    emptyEnd_.tagName = tag.tagName;
    emptyEnd_.normalName = tag.normalName;
    emptyEnd_.known = tag.known;
    tokeniser_->transition(TokeniserState::Data);
    tokeniser_->emit(emptyEnd_);
    return element;
}

NodeRec *HtmlTreeBuilder::insertStartTag(TagId id) {
    NodeRec *const element = arena().newElement(Kind::Element, tagRec(id));
    insertNode(element);
    open_.push(element, tagRec(id));
    return element;
}

NodeRec *HtmlTreeBuilder::insertEmpty(Start &tag) {
    NodeRec *const element = createElement(tag);
    if (tag.selfClosing) {
        const TagRec *const record = tagOf(element);
        if (!record->has(TagRec::Registered)) element->tag = refOf(arena().selfClosing(record));
        if (tagOf(element)->closesItself()) tokeniser_->acknowledgeSelfClosingFlag();
    }
    insertNode(element);
    return element;
}

NodeRec *HtmlTreeBuilder::insertForm(Start &tag, bool onStack) {
    NodeRec *const form = createElement(tag, Kind::Form);
    formElement_ = form;
    insertNode(form);
    if (onStack) open_.push(form, tagRec(TagId::Form));
    return form;
}

void HtmlTreeBuilder::insert(const Token::Comment &token) {
    insertNode(arena().newComment(token.data));
}

/// A comment that comes when the body, or the page, is closed. What comes after it may still go into the
/// body.
void HtmlTreeBuilder::appendBehind(NodeRec *parent, const Token::Comment &token) {
    append(parent, arena().newComment(token.data));
    behindBody_ = true;
}

void HtmlTreeBuilder::insertText(std::string_view text) {
    NodeRec *const node = arena().newText(text);
    if (fosters()) [[unlikely]]
        return insertInFosterParent(node);
    append(open_.top(), node);
}

void HtmlTreeBuilder::insertRawText(std::string_view text) {
    if (!currentIs(TagId::Script) && !currentIs(TagId::Style)) return insertText(text);
    append(open_.top(), arena().newData(text));
}

void HtmlTreeBuilder::insertInFosterParent(NodeRec *node) {
    arena().classes.drop();
    const Place place = open_.newest(TagId::Table);
    if (!place) return append(open_.node(1), node);
    NodeRec *const table = open_.node(place);
    if (isLinked(table)) return insertBefore(table, node);
    append(open_.node(place > 1 ? place - 1 : 1), node);
}

/// Gives the element the attributes that it does not have yet. The names are remembered, as a page may bring
/// many such tags.
void HtmlTreeBuilder::mergeAttributes(NodeRec *element, const Start &tag, std::unordered_set<Ref> &names) {
    if (tag.attributes.empty()) return;
    arena().classes.drop();
    if (names.empty()) {
        for (const AttrRec &attribute : attrBlock(element))
            names.insert(attribute.target().name);
    }
    for (const AttrRec &attribute : tag.attributes) {
        if (names.insert(attribute.name).second) appendAttr(element, attribute);
    }
}

// ---- The stack of open elements
// ----------------------------------------------------------------------------------

/// The element at the bottom stays.
void HtmlTreeBuilder::pop() {
    if (open_.size() > 1) open_.pop();
}

void HtmlTreeBuilder::popStackToClose(TagId id) {
    if (const Place place = open_.newest(id)) open_.popDownTo(std::max<Place>(place - 1, 1));
}

void HtmlTreeBuilder::popStackToClose(TagSet set) {
    while (open_.size() > 1) {
        const bool last = currentIn(set);
        open_.pop();
        if (last) return;
    }
}

void HtmlTreeBuilder::popStackToBefore(TagId id) {
    if (const Place place = open_.newest(id)) open_.popDownTo(place);
}

void HtmlTreeBuilder::clearStackTo(TagSet set, TagId id) {
    while (open_.size() > 1 && !currentIs(id) && !currentIn(set))
        open_.pop();
}

void HtmlTreeBuilder::clearStackToTableContext() {
    clearStackTo(TagSet::TagSearchTableScope, TagId::Table);
}

void HtmlTreeBuilder::clearStackToTableBodyContext() {
    clearStackTo(TagSet::InTableBodyTags, TagId::Html);
}

void HtmlTreeBuilder::clearStackToTableRowContext() {
    while (open_.size() > 1 && !currentIs(TagId::Tr) && !currentIs(TagId::Html))
        open_.pop();
}

void HtmlTreeBuilder::removeFromStack(const NodeRec *element) {
    if (!OpenElements::contains(element)) return;
    if (const Place place = open_.placeOf(element); place > 1) open_.remove(place);
}

HtmlTreeBuilderState HtmlTreeBuilder::modeFor(TagId id, bool last) const {
    switch (id) {
    case TagId::Select: return State::InSelect;
    case TagId::Td: return State::InCell;
    case TagId::Th: return last ? State::InBody : State::InCell;
    case TagId::Tr: return State::InRow;
    case TagId::Tbody:
    case TagId::Thead:
    case TagId::Tfoot: return State::InTableBody;
    case TagId::Caption: return State::InCaption;
    case TagId::Colgroup: return State::InColumnGroup;
    case TagId::Table: return State::InTable;
    case TagId::Head: // not InHead: a fragment of a head is read as one of a body
    case TagId::Body: return State::InBody;
    case TagId::Frameset: return State::InFrameset;
    case TagId::Html: return State::BeforeHead;
    default: return State::InBody;
    }
}

/// The newest element that decides gives the mode; at the bottom of a fragment's stack stands its context.
void HtmlTreeBuilder::resetInsertionMode() {
    static constexpr TagId deciding[] = {TagId::Select,   TagId::Td,    TagId::Th,    TagId::Tr,
                                         TagId::Tbody,    TagId::Thead, TagId::Tfoot, TagId::Caption,
                                         TagId::Colgroup, TagId::Table, TagId::Head,  TagId::Body,
                                         TagId::Frameset, TagId::Html};
    Place newest = 1;
    for (const TagId id : deciding)
        newest = std::max(newest, open_.newest(id));
    const bool last = newest == 1;
    TagId id = open_.tag(newest)->id;
    if (last && contextElement_) id = tagOf(contextElement_)->normalId;
    transition(modeFor(id, last));
}

// Whether an element of that name is found from the top before the search ends. The name may be one of those
// that end it.

bool HtmlTreeBuilder::inScope(TagId id) const {
    const Place place = open_.newest(id);
    return place && place >= open_.newestScope();
}

bool HtmlTreeBuilder::inScope(std::initializer_list<TagId> ids) const {
    return std::any_of(ids.begin(), ids.end(), [this](TagId id) { return inScope(id); });
}

bool HtmlTreeBuilder::inListItemScope(TagId id) const {
    const Place list = std::max(open_.newest(TagId::Ol), open_.newest(TagId::Ul)); // TagSearchList
    return inScope(id) && open_.newest(id) >= list;
}

bool HtmlTreeBuilder::inButtonScope(TagId id) const {
    return inScope(id) && open_.newest(id) >= open_.newest(TagId::Button); // TagSearchButton
}

bool HtmlTreeBuilder::inTableScope(TagId id) const {
    const Place place = open_.newest(id);
    return place &&
           place >= std::max(open_.newest(TagId::Table), open_.newest(TagId::Html)); // TagSearchTableScope
}

bool HtmlTreeBuilder::inSelectScope(TagId id) const {
    for (Place place = open_.size(); place > 0; --place) {
        if (open_.tag(place)->id == id) return true;
        if (!isInSet(open_.tag(place), TagSet::TagSearchSelectScope)) return false;
    }
    return false;
}

void HtmlTreeBuilder::generateImpliedEndTags(TagId excludeTag) {
    while (currentIn(TagSet::TagSearchEndTags) && !currentIs(excludeTag))
        pop();
}

void HtmlTreeBuilder::closeP() {
    if (inButtonScope(TagId::P)) processEndTag(TagId::P);
}

// ---- The list of active formatting elements
// ----------------------------------------------------------------------

void HtmlTreeBuilder::pushActiveFormattingElements(NodeRec *element, TagId id) {
    formatting_.push(element, id, open_.size());
}

/// An element with the same tag and, shared, the same attributes.
NodeRec *HtmlTreeBuilder::cloneOf(NodeRec *element) {
    if (element->attrCount == 0) return arena().newElement(Kind::Element, tagOf(element));
    NodeRec *const clone = arena().shallowCopy(element);
    clone->flags &= ~std::uint32_t(NodeRec::OpenElement);
    return clone;
}

/// From the newest one that is open, or from the last marker, to the end of the list.
void HtmlTreeBuilder::reopenFormattingElements() {
    Formatting *entry = formatting_.newest();
    while (entry->older && !isMarkerOrOpen(entry->older))
        entry = entry->older;
    for (; entry; entry = entry->newer) {
        if (clonesLeft_ == 0) return formatting_.clear();
        --clonesLeft_;
        NodeRec *const clone = cloneOf(entry->node);
        insertNode(clone);
        open_.push(clone, tagRec(entry->id));
        formatting_.reopen(entry, clone, open_.size());
    }
}

} // namespace orl::html
