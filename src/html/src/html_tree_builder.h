// The tree construction stage of the HTML standard, in the form with a mode for noscript in the head and with
// the old isindex, and without namespaces: svg and math are elements like others.
#pragma once

#include "formatting_elements.h"
#include "tree_builder.h"

#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace orl::html {

/// The insertion modes; the text of each is its name.
enum class HtmlTreeBuilderState : std::uint8_t {
    Initial,
    BeforeHtml,
    BeforeHead,
    InHead,
    InHeadNoscript,
    AfterHead,
    InBody,
    Text,
    InTable,
    InTableText,
    InCaption,
    InColumnGroup,
    InTableBody,
    InRow,
    InCell,
    InSelect,
    InSelectInTable,
    AfterBody,
    InFrameset,
    AfterFrameset,
    AfterAfterBody,
    AfterAfterFrameset,
    ForeignContent, ///< never entered
};

class HtmlTreeBuilder final : public TreeBuilder {
public:
    std::vector<core::NodeRec *> parseFragment(core::Arena &arena, std::string_view input,
                                               core::NodeRec *context, std::string_view baseUri,
                                               ParseErrorList &errors,
                                               const ParseSettings &settings) override;

private:
    using State = HtmlTreeBuilderState;
    using Start = Token::StartTag;
    using End = Token::EndTag;
    using Formatting = core::FormattingElements::Entry;

    void initialiseParse(Arena &arena, std::string_view input, std::string_view baseUri,
                         ParseErrorList &errors, const ParseSettings &settings) override;
    void endParse() override;
    void runParser() override;
    /// Whether the token was used; a token that is not is an error in the page and leaves no trace.
    bool process(Token &token) override;
    bool process(Token &token, State state);
    bool reprocessIn(State state, Token &token);
    /// Records the current token as unexpected; the answer is false, for those who return it.
    bool error(State state);

    void transition(State state) { state_ = state; }
    void markInsertionMode() { originalState_ = state_; }
    void maybeSetBaseUri(const NodeRec *base);
    static bool isHidden(const Token::Tag &tag);
    /// Takes the NUL characters out of the text; whether anything is left.
    bool dropNul(Token::Char &token, State state);

    // Insertion.
    NodeRec *createElement(const Token::Tag &tag, core::Kind kind = core::Kind::Element);
    const TagRec *stackTag(const Token::Tag &tag, const NodeRec *element);
    void insertNode(NodeRec *node);
    NodeRec *insert(Start &tag);
    NodeRec *insertStartTag(TagId id);
    NodeRec *insertEmpty(Start &tag);
    NodeRec *insertForm(Start &tag, bool onStack);
    void insert(const Token::Comment &token);
    void appendBehind(core::NodeRec *parent, const Token::Comment &token);
    void insert(const Token::Char &token) { insertText(token.data); }
    void insertText(std::string_view text);
    /// What a script or style sheet holds.
    void insertRawText(std::string_view text);
    void insertInFosterParent(NodeRec *node);
    bool fosters() const;
    void mergeAttributes(NodeRec *element, const Start &tag, std::unordered_set<core::Ref> &names);

    // The stack of open elements.
    const TagRec *currentTag() const { return open_.topTag(); }
    bool currentIs(TagId id) const { return currentTag()->id == id; }
    bool currentIn(TagSet set) const { return currentTag()->sets & bitOf(set); }
    void pop();
    void popStackToClose(TagId id);
    void popStackToClose(TagSet set);
    void popStackToBefore(TagId id);
    void clearStackTo(TagSet set, TagId id);
    void clearStackToTableContext();
    void clearStackToTableBodyContext();
    void clearStackToTableRowContext();
    void removeFromStack(const NodeRec *element);
    void resetInsertionMode();
    State modeFor(TagId id, bool last) const;
    bool inScope(TagId id) const;
    bool inScope(std::initializer_list<TagId> ids) const;
    bool inListItemScope(TagId id) const;
    bool inButtonScope(TagId id) const;
    bool inTableScope(TagId id) const;
    bool inSelectScope(TagId id) const;
    void generateImpliedEndTags(TagId excludeTag = TagId::Unknown);
    void closeP();

    // The list of active formatting elements.
    void pushActiveFormattingElements(NodeRec *element, TagId id);
    void reconstructFormattingElements() {
        if (!formatting_.isSettled()) [[unlikely]]
            reopenFormattingElements();
    }
    void reopenFormattingElements();
    static bool isMarkerOrOpen(const Formatting *entry) {
        return !entry->node || core::OpenElements::contains(entry->node);
    }
    NodeRec *cloneOf(NodeRec *element);

    // The modes.
    bool initial(Token &token);
    bool beforeHtml(Token &token);
    bool beforeHead(Token &token);
    bool inHead(Token &token);
    bool inHeadStart(Start &tag);
    bool inHeadNoscript(Token &token);
    bool afterHead(Token &token);
    bool afterHeadStart(Start &tag);
    bool afterHeadBegin(Token &token);
    bool inBody(Token &token);
    bool text(Token &token);
    bool inTable(Token &token);
    bool inTableStart(Start &tag);
    bool inTableEnd(End &tag);
    bool inTableAnythingElse(Token &token);
    bool inTableText(Token &token);
    void flushTableText();
    bool inCaption(Token &token);
    bool inColumnGroup(Token &token);
    bool inTableBody(Token &token);
    bool exitTableBody(Token &token);
    bool inRow(Token &token);
    bool exitRow(Token &token);
    bool inCell(Token &token);
    bool closeCellAndReprocess(Token &token);
    bool inSelect(Token &token);
    bool inSelectStart(Start &tag);
    bool inSelectEnd(End &tag);
    bool inSelectInTable(Token &token);
    bool afterBody(Token &token);
    bool inFrameset(Token &token);
    bool afterFrameset(Token &token);
    bool afterAfterBody(Token &token);
    bool afterAfterFrameset(Token &token);

    // What InBody does with characters and tags.
    bool bodyCharacters(Token::Char &token);
    bool bodyStart(Start &tag);
    bool bodyEnd(End &tag);
    bool startHtml(Start &tag);
    bool startBody(Start &tag);
    bool startFrameset(Start &tag);
    bool startHeading(Start &tag);
    bool startForm(Start &tag);
    bool startItem(Start &tag);
    bool startButton(Start &tag);
    bool startA(Start &tag);
    bool startFormatter(Start &tag);
    bool startNobr(Start &tag);
    bool startTable(Start &tag);
    bool startInput(Start &tag);
    bool startImage(Start &tag);
    bool startIsindex(Start &tag);
    bool startTextarea(Start &tag);
    bool startSelect(Start &tag);
    bool startRuby(Start &tag);
    bool startText(Start &tag, core::TokeniserState state);
    void skipLineFeed(const Start &tag);
    bool endBody(End &tag);
    bool endCloser(End &tag);
    bool endForm(End &tag);
    bool endP(End &tag);
    bool endItem(End &tag, bool inItsScope);
    bool endHeading(End &tag);
    bool endApplet(End &tag);
    bool anyOtherEndTag(const End &tag);
    bool adoptionAgency(const End &tag);
    void adopt(Formatting *entry, Place formatPlace, Place furthest);
    Place furthestBlock(Place formatPlace) const;

    State state_ = State::Initial, originalState_ = State::Initial;
    bool baseUriSetFromDoc_ = false;
    bool framesetOk_ = true;
    bool fosterInserts_ = false;
    bool fragmentParsing_ = false;
    bool behindBody_ = false; ///< a comment stands behind the body
    NodeRec *headElement_ = nullptr, *formElement_ = nullptr, *contextElement_ = nullptr;
    core::FormattingElements formatting_;
    std::vector<std::string_view> pendingTableCharacters_;
    Token::EndTag emptyEnd_;
    std::unordered_set<core::Ref> htmlNames_, bodyNames_; ///< attributes, once a second tag brought more
    std::size_t clonesLeft_ = 0; ///< how many more formatting elements may be opened again
};

} // namespace orl::html
