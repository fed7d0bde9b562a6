// The insertion modes other than InBody, in the order in which the HTML standard gives them.
#include "attrs.h"
#include "html_tree_builder.h"

namespace orl::html {

using namespace core;

namespace {

bool isIn(const Token::Tag &tag, TagSet set) {
    return tag.sets() & bitOf(set);
}

bool isStart(Token &token, TagId id) {
    return token.isStartTag() && token.asStartTag().id() == id;
}

bool isStartIn(Token &token, TagSet set) {
    return token.isStartTag() && isIn(token.asStartTag(), set);
}

bool isEnd(Token &token, TagId id) {
    return token.isEndTag() && token.asEndTag().id() == id;
}

bool isEndIn(Token &token, TagSet set) {
    return token.isEndTag() && isIn(token.asEndTag(), set);
}

bool isWhitespace(Token &token) {
    return token.isCharacter() && isAllWhite(token.asCharacter().data);
}

} // namespace

bool HtmlTreeBuilder::process(Token &token) {
    currentToken_ = &token;
    return process(token, state_);
}

bool HtmlTreeBuilder::process(Token &token, State state) {
    currentToken_ = &token;
    switch (state) {
    case State::InBody: return inBody(token);
    case State::Initial: return initial(token);
    case State::BeforeHtml: return beforeHtml(token);
    case State::BeforeHead: return beforeHead(token);
    case State::InHead: return inHead(token);
    case State::InHeadNoscript: return inHeadNoscript(token);
    case State::AfterHead: return afterHead(token);
    case State::Text: return text(token);
    case State::InTable: return inTable(token);
    case State::InTableText: return inTableText(token);
    case State::InCaption: return inCaption(token);
    case State::InColumnGroup: return inColumnGroup(token);
    case State::InTableBody: return inTableBody(token);
    case State::InRow: return inRow(token);
    case State::InCell: return inCell(token);
    case State::InSelect: return inSelect(token);
    case State::InSelectInTable: return inSelectInTable(token);
    case State::AfterBody: return afterBody(token);
    case State::InFrameset: return inFrameset(token);
    case State::AfterFrameset: return afterFrameset(token);
    case State::AfterAfterBody: return afterAfterBody(token);
    case State::AfterAfterFrameset: return afterAfterFrameset(token);
    case State::ForeignContent: return true;
    }
    return true;
}

bool HtmlTreeBuilder::reprocessIn(State state, Token &token) {
    transition(state);
    return process(token);
}

// ---- Before the body
// ---------------------------------------------------------------------------------------------

bool HtmlTreeBuilder::initial(Token &token) {
    if (isWhitespace(token)) return true;
    if (token.isComment()) {
        insert(token.asComment());
        return true;
    }
    if (!token.isDoctype()) return reprocessIn(State::BeforeHtml, token);
    insertDoctype(token.asDoctype());
    if (token.asDoctype().forceQuirks) documentOf(doc_)->quirksMode = QuirksMode::quirks;
    transition(State::BeforeHtml);
    return true;
}

bool HtmlTreeBuilder::beforeHtml(Token &token) {
    if (token.isDoctype()) return error(State::BeforeHtml);
    if (token.isComment()) {
        insert(token.asComment());
        return true;
    }
    if (isWhitespace(token)) return true;
    if (isStart(token, TagId::Html)) {
        insert(token.asStartTag());
        transition(State::BeforeHead);
        return true;
    }
    if (token.isEndTag() && !isEndIn(token, TagSet::BeforeHtmlToHead)) return error(State::BeforeHtml);
    insertStartTag(TagId::Html);
    return reprocessIn(State::BeforeHead, token);
}

bool HtmlTreeBuilder::beforeHead(Token &token) {
    if (isWhitespace(token)) return true;
    if (token.isComment()) {
        insert(token.asComment());
        return true;
    }
    if (token.isDoctype()) return error(State::BeforeHead);
    if (isStart(token, TagId::Html)) return process(token, State::InBody);
    if (isStart(token, TagId::Head)) {
        headElement_ = insert(token.asStartTag());
        transition(State::InHead);
        return true;
    }
    if (token.isEndTag() && !isEndIn(token, TagSet::BeforeHtmlToHead)) return error(State::BeforeHead);
    headElement_ = insertStartTag(TagId::Head);
    return reprocessIn(State::InHead, token);
}

bool HtmlTreeBuilder::inHead(Token &token) {
    if (isWhitespace(token)) {
        insert(token.asCharacter());
        return true;
    }
    switch (token.type) {
    case TokenType::Comment: insert(token.asComment()); return true;
    case TokenType::Doctype: return error(State::InHead);
    case TokenType::StartTag:
        if (token.asStartTag().id() == TagId::Head) return error(State::InHead);
        if (inHeadStart(token.asStartTag())) return true;
        break;
    case TokenType::EndTag:
        if (isEnd(token, TagId::Head)) {
            pop();
            transition(State::AfterHead);
            return true;
        }
        if (!isEndIn(token, TagSet::BeforeHeadEnd)) return error(State::InHead);
        break;
    case TokenType::Char:
    case TokenType::Eof: break;
    }
    if (currentIs(TagId::Head)) pop();
    return reprocessIn(State::AfterHead, token);
}

/// The start tags of what stands in a head, which other modes send here too; false for all others.
bool HtmlTreeBuilder::inHeadStart(Start &tag) {
    if (isIn(tag, TagSet::InHeadEmpty)) {
        const NodeRec *const element = insertEmpty(tag);
        if (tag.id() == TagId::Base) maybeSetBaseUri(element);
        return true;
    }
    switch (tag.id()) {
    case TagId::Html: process(tag, State::InBody); return true;
    case TagId::Meta: insertEmpty(tag); return true;
    case TagId::Title: return startText(tag, TokeniserState::Rcdata);
    case TagId::Noframes:
    case TagId::Style: return startText(tag, TokeniserState::Rawtext);
    case TagId::Script: return startText(tag, TokeniserState::ScriptData);
    case TagId::Noscript:
        insert(tag);
        transition(State::InHeadNoscript);
        return true;
    default: return false;
    }
}

bool HtmlTreeBuilder::inHeadNoscript(Token &token) {
    if (token.isDoctype()) return error(State::InHeadNoscript);
    if (isStart(token, TagId::Html)) return process(token, State::InBody);
    if (isEnd(token, TagId::Noscript)) {
        pop();
        transition(State::InHead);
        return true;
    }
    if (isWhitespace(token) || token.isComment() || isStartIn(token, TagSet::InHeadNoscriptIgnore))
        return process(token, State::InHead);
    if (isStartIn(token, TagSet::InHeadNoscriptEnd)) return error(State::InHeadNoscript);
    if (token.isEndTag() && !isEndIn(token, TagSet::BeforeHeadEnd)) return error(State::InHeadNoscript);
    error(State::InHeadNoscript);
    pop();
    return reprocessIn(State::InHead, token);
}

bool HtmlTreeBuilder::afterHead(Token &token) {
    if (isWhitespace(token)) {
        insert(token.asCharacter());
        return true;
    }
    switch (token.type) {
    case TokenType::Comment: insert(token.asComment()); return true;
    case TokenType::Doctype: return error(State::AfterHead);
    case TokenType::StartTag: return afterHeadStart(token.asStartTag());
    case TokenType::EndTag:
        if (!isEndIn(token, TagSet::AfterHeadBody)) return error(State::AfterHead);
        break;
    case TokenType::Char:
    case TokenType::Eof: break;
    }
    return afterHeadBegin(token);
}

bool HtmlTreeBuilder::afterHeadStart(Start &tag) {
    switch (tag.id()) {
    case TagId::Html: return process(tag, State::InBody);
    case TagId::Head: return error(State::AfterHead);
    case TagId::Body:
        insert(tag);
        framesetOk_ = false;
        transition(State::InBody);
        return true;
    case TagId::Frameset:
        insert(tag);
        transition(State::InFrameset);
        return true;
    default: break;
    }
    if (!isIn(tag, TagSet::AfterHeadMove) || !headElement_) return afterHeadBegin(tag);
    error(State::AfterHead);
    if (headElement_->next) arena().classes.drop(); // a comment or white space stands behind the head
    open_.push(headElement_, tagRec(TagId::Head));
    process(tag, State::InHead);
    removeFromStack(headElement_);
    return true;
}

/// What does not belong into a head begins the body.
bool HtmlTreeBuilder::afterHeadBegin(Token &token) {
    insertStartTag(TagId::Body);
    framesetOk_ = true;
    return reprocessIn(State::InBody, token);
}

bool HtmlTreeBuilder::text(Token &token) {
    if (token.isCharacter()) {
        insertRawText(token.asCharacter().data);
        return true;
    }
    if (token.isEOF()) {
        error(State::Text);
        pop();
        return reprocessIn(originalState_, token);
    }
    if (token.isEndTag()) {
        pop();
        transition(originalState_);
    }
    return true;
}

// ---- Tables
// ------------------------------------------------------------------------------------------------------

bool HtmlTreeBuilder::inTable(Token &token) {
    switch (token.type) {
    case TokenType::Char:
        if (!currentIn(TagSet::InTableFoster)) return inTableAnythingElse(token);
        pendingTableCharacters_.clear();
        markInsertionMode();
        return reprocessIn(State::InTableText, token);
    case TokenType::Comment: insert(token.asComment()); return true;
    case TokenType::Doctype: return error(State::InTable);
    case TokenType::StartTag: return inTableStart(token.asStartTag());
    case TokenType::EndTag: return inTableEnd(token.asEndTag());
    case TokenType::Eof:
        if (!currentIs(TagId::Html)) error(State::InTable);
        return true;
    }
    return true;
}

bool HtmlTreeBuilder::inTableStart(Start &tag) {
    if (isIn(tag, TagSet::InTableBodyTags)) {
        clearStackToTableContext();
        insert(tag);
        transition(State::InTableBody);
        return true;
    }
    switch (tag.id()) {
    case TagId::Caption:
        clearStackToTableContext();
        formatting_.pushMarker();
        insert(tag);
        transition(State::InCaption);
        return true;
    case TagId::Colgroup:
        clearStackToTableContext();
        insert(tag);
        transition(State::InColumnGroup);
        return true;
    case TagId::Col: processStartTag(TagId::Colgroup); return process(tag);
    case TagId::Td:
    case TagId::Th:
    case TagId::Tr: processStartTag(TagId::Tbody); return process(tag);
    case TagId::Table: error(State::InTable); return processEndTag(TagId::Table) && process(tag);
    case TagId::Style:
    case TagId::Script: return process(tag, State::InHead);
    case TagId::Input:
        if (!isHidden(tag)) break;
        error(State::InTable);
        insertEmpty(tag);
        return true;
    case TagId::Form:
        error(State::InTable);
        if (formElement_) return false;
        insertForm(tag, false);
        return true;
    default: break;
    }
    return inTableAnythingElse(tag);
}

bool HtmlTreeBuilder::inTableEnd(End &tag) {
    if (tag.id() == TagId::Table) {
        if (!inTableScope(TagId::Table)) return error(State::InTable);
        popStackToClose(TagId::Table);
        resetInsertionMode();
        return true;
    }
    if (isIn(tag, TagSet::InTableEndIgnore)) return error(State::InTable);
    return inTableAnythingElse(tag);
}

/// Content that stands between the cells goes before the table.
bool HtmlTreeBuilder::inTableAnythingElse(Token &token) {
    error(State::InTable);
    const bool outer = fosterInserts_;
    fosterInserts_ = true;
    const bool processed = process(token, State::InBody);
    fosterInserts_ = outer;
    return processed;
}

bool HtmlTreeBuilder::inTableText(Token &token) {
    if (!token.isCharacter()) {
        flushTableText();
        return reprocessIn(originalState_, token);
    }
    Token::Char &characters = token.asCharacter();
    if (characters.hasNul && !dropNul(characters, State::InTableText)) return false;
    pendingTableCharacters_.push_back(characters.data);
    return true;
}

/// White space stays where it is.
void HtmlTreeBuilder::flushTableText() {
    Token *const outer = currentToken_;
    for (const std::string_view text : pendingTableCharacters_) {
        if (isAllWhite(text)) {
            append(currentElement(), arena().newText(text));
            continue;
        }
        error(State::InTableText);
        Token::Char characters;
        characters.data = text;
        fosterInserts_ = true;
        process(characters, State::InBody);
        fosterInserts_ = false;
    }
    pendingTableCharacters_.clear();
    currentToken_ = outer;
}

bool HtmlTreeBuilder::inCaption(Token &token) {
    if (isEnd(token, TagId::Caption)) {
        if (!inTableScope(TagId::Caption)) return error(State::InCaption);
        generateImpliedEndTags();
        if (!currentIs(TagId::Caption)) error(State::InCaption);
        popStackToClose(TagId::Caption);
        formatting_.clearToLastMarker();
        transition(State::InTable);
        return true;
    }
    if (isStartIn(token, TagSet::InCaptionExit) || isEnd(token, TagId::Table)) {
        error(State::InCaption);
        return processEndTag(TagId::Caption) && process(token);
    }
    if (isEndIn(token, TagSet::InCaptionIgnore)) return error(State::InCaption);
    return process(token, State::InBody);
}

bool HtmlTreeBuilder::inColumnGroup(Token &token) {
    if (isWhitespace(token)) {
        insert(token.asCharacter());
        return true;
    }
    if (token.isComment()) {
        insert(token.asComment());
        return true;
    }
    if (token.isDoctype()) return error(State::InColumnGroup);
    if (isStart(token, TagId::Html)) return process(token, State::InBody);
    if (isStart(token, TagId::Col)) {
        insertEmpty(token.asStartTag());
        return true;
    }
    if (isEnd(token, TagId::Col)) return error(State::InColumnGroup);
    if (!currentIs(TagId::Colgroup)) { // a fragment
        if (!token.isEOF()) error(State::InColumnGroup);
        return token.isEOF();
    }
    pop();
    if (!isEnd(token, TagId::Colgroup)) return reprocessIn(State::InTable, token);
    transition(State::InTable);
    return true;
}

bool HtmlTreeBuilder::inTableBody(Token &token) {
    if (token.isStartTag()) {
        Start &tag = token.asStartTag();
        if (tag.id() == TagId::Tr) {
            clearStackToTableBodyContext();
            insert(tag);
            transition(State::InRow);
            return true;
        }
        if (isIn(tag, TagSet::InCellNames)) {
            error(State::InTableBody);
            processStartTag(TagId::Tr);
            return process(tag);
        }
        if (isIn(tag, TagSet::InCaptionExit)) return exitTableBody(tag);
    } else if (token.isEndTag()) {
        End &tag = token.asEndTag();
        if (isIn(tag, TagSet::InTableBodyTags)) {
            if (!inTableScope(tag.id())) return error(State::InTableBody);
            clearStackToTableBodyContext();
            pop();
            transition(State::InTable);
            return true;
        }
        if (tag.id() == TagId::Table) return exitTableBody(tag);
        if (isIn(tag, TagSet::InTableBodyIgnore)) return error(State::InTableBody);
    }
    return process(token, State::InTable);
}

bool HtmlTreeBuilder::exitTableBody(Token &token) {
    if (!inTableScope(TagId::Tbody) && !inTableScope(TagId::Thead) && !inTableScope(TagId::Tfoot))
        return error(State::InTableBody);
    clearStackToTableBodyContext();
    pop();
    return reprocessIn(State::InTable, token);
}

bool HtmlTreeBuilder::inRow(Token &token) {
    if (token.isStartTag()) {
        Start &tag = token.asStartTag();
        if (isIn(tag, TagSet::InCellNames)) {
            clearStackToTableRowContext();
            formatting_.pushMarker();
            transition(State::InCell);
            insert(tag);
            return true;
        }
        if (isIn(tag, TagSet::InRowExit)) return exitRow(tag);
    } else if (token.isEndTag()) {
        End &tag = token.asEndTag();
        if (tag.id() == TagId::Tr) {
            if (!inTableScope(TagId::Tr)) return error(State::InRow);
            clearStackToTableRowContext();
            pop();
            transition(State::InTableBody);
            return true;
        }
        if (tag.id() == TagId::Table) return exitRow(tag);
        if (isIn(tag, TagSet::InTableBodyTags))
            return inTableScope(tag.id()) ? exitRow(tag) : error(State::InRow);
        if (isIn(tag, TagSet::InRowIgnore)) return error(State::InRow);
    }
    return process(token, State::InTable);
}

bool HtmlTreeBuilder::exitRow(Token &token) {
    return processEndTag(TagId::Tr) && process(token);
}

bool HtmlTreeBuilder::inCell(Token &token) {
    if (token.isCharacter()) return inBody(token);
    if (token.isEndTag()) {
        End &tag = token.asEndTag();
        if (isIn(tag, TagSet::InCellNames)) {
            if (!inTableScope(tag.id())) return error(State::InCell);
            generateImpliedEndTags();
            if (!currentIs(tag.id())) error(State::InCell);
            popStackToClose(tag.id());
            formatting_.clearToLastMarker();
            transition(State::InRow);
            return true;
        }
        if (isIn(tag, TagSet::InCellIgnore)) return error(State::InCell);
        if (isIn(tag, TagSet::InCellClose))
            return inTableScope(tag.id()) ? closeCellAndReprocess(tag) : error(State::InCell);
    } else if (isStartIn(token, TagSet::InCellExit)) {
        return closeCellAndReprocess(token);
    }
    return process(token, State::InBody);
}

bool HtmlTreeBuilder::closeCellAndReprocess(Token &token) {
    const bool data = inTableScope(TagId::Td);
    if (!data && !inTableScope(TagId::Th)) return error(State::InCell);
    return processEndTag(data ? TagId::Td : TagId::Th) && process(token);
}

// ---- Selects
// -----------------------------------------------------------------------------------------------------

bool HtmlTreeBuilder::inSelect(Token &token) {
    switch (token.type) {
    case TokenType::Char: {
        Token::Char &characters = token.asCharacter();
        if (characters.hasNul && !dropNul(characters, State::InSelect)) return false;
        insert(characters);
        return true;
    }
    case TokenType::Comment: insert(token.asComment()); return true;
    case TokenType::Doctype: return error(State::InSelect);
    case TokenType::StartTag: return inSelectStart(token.asStartTag());
    case TokenType::EndTag: return inSelectEnd(token.asEndTag());
    case TokenType::Eof:
        if (!currentIs(TagId::Html)) error(State::InSelect);
        return true;
    }
    return true;
}

bool HtmlTreeBuilder::inSelectStart(Start &tag) {
    switch (tag.id()) {
    case TagId::Html: return process(tag, State::InBody);
    case TagId::Option:
    case TagId::Optgroup:
        if (currentIs(TagId::Option)) pop();
        if (tag.id() == TagId::Optgroup && currentIs(TagId::Optgroup)) pop();
        insert(tag);
        return true;
    case TagId::Select: error(State::InSelect); return processEndTag(TagId::Select);
    case TagId::Script: return process(tag, State::InHead);
    default: break;
    }
    error(State::InSelect);
    if (!isIn(tag, TagSet::InSelectExit) || !inSelectScope(TagId::Select)) return false;
    return processEndTag(TagId::Select) && process(tag);
}

bool HtmlTreeBuilder::inSelectEnd(End &tag) {
    switch (tag.id()) {
    case TagId::Optgroup:
        if (currentIs(TagId::Option) && open_.size() > 1 &&
            open_.tag(open_.size() - 1)->id == TagId::Optgroup)
            pop();
        if (!currentIs(TagId::Optgroup)) return error(State::InSelect);
        pop();
        return true;
    case TagId::Option:
        if (!currentIs(TagId::Option)) return error(State::InSelect);
        pop();
        return true;
    case TagId::Select:
        if (!inSelectScope(TagId::Select)) return error(State::InSelect);
        popStackToClose(TagId::Select);
        resetInsertionMode();
        return true;
    default: return error(State::InSelect);
    }
}

bool HtmlTreeBuilder::inSelectInTable(Token &token) {
    const bool start = isStartIn(token, TagSet::InCellClose);
    if (!start && !isEndIn(token, TagSet::InCellClose)) return inSelect(token);
    error(State::InSelectInTable);
    if (!start && !inTableScope(token.asEndTag().id())) return false;
    return processEndTag(TagId::Select) && process(token);
}

// ---- Behind the body
// ---------------------------------------------------------------------------------------------

bool HtmlTreeBuilder::afterBody(Token &token) {
    if (isWhitespace(token) || isStart(token, TagId::Html)) return process(token, State::InBody);
    if (token.isComment()) {
        appendBehind(open_.node(1), token.asComment());
        return true;
    }
    if (token.isDoctype()) return error(State::AfterBody);
    if (isEnd(token, TagId::Html)) {
        if (fragmentParsing_) return error(State::AfterBody);
        transition(State::AfterAfterBody);
        return true;
    }
    if (token.isEOF()) return true;
    error(State::AfterBody);
    return reprocessIn(State::InBody, token);
}

bool HtmlTreeBuilder::inFrameset(Token &token) {
    if (isWhitespace(token)) {
        insert(token.asCharacter());
        return true;
    }
    if (token.isComment()) {
        insert(token.asComment());
        return true;
    }
    if (isStart(token, TagId::Html)) return process(token, State::InBody);
    if (isStart(token, TagId::Frameset)) {
        insert(token.asStartTag());
        return true;
    }
    if (isStart(token, TagId::Frame)) {
        insertEmpty(token.asStartTag());
        return true;
    }
    if (isStart(token, TagId::Noframes)) return process(token, State::InHead);
    if (isEnd(token, TagId::Frameset) && !currentIs(TagId::Html)) {
        pop();
        if (!fragmentParsing_ && !currentIs(TagId::Frameset)) transition(State::AfterFrameset);
        return true;
    }
    if (token.isEOF() && currentIs(TagId::Html)) return true;
    error(State::InFrameset);
    return token.isEOF();
}

bool HtmlTreeBuilder::afterFrameset(Token &token) {
    if (isWhitespace(token)) {
        insert(token.asCharacter());
        return true;
    }
    if (token.isComment()) {
        insert(token.asComment());
        return true;
    }
    if (isStart(token, TagId::Html)) return process(token, State::InBody);
    if (isStart(token, TagId::Noframes)) return process(token, State::InHead);
    if (isEnd(token, TagId::Html)) {
        transition(State::AfterAfterFrameset);
        return true;
    }
    return token.isEOF() || error(State::AfterFrameset);
}

bool HtmlTreeBuilder::afterAfterBody(Token &token) {
    if (token.isComment()) {
        appendBehind(doc_, token.asComment());
        return true;
    }
    if (token.isDoctype() || isWhitespace(token) || isStart(token, TagId::Html))
        return process(token, State::InBody);
    if (token.isEOF()) return true;
    error(State::AfterAfterBody);
    return reprocessIn(State::InBody, token);
}

bool HtmlTreeBuilder::afterAfterFrameset(Token &token) {
    if (token.isComment()) {
        appendBehind(doc_, token.asComment());
        return true;
    }
    if (token.isDoctype() || isWhitespace(token) || isStart(token, TagId::Html))
        return process(token, State::InBody);
    if (isStart(token, TagId::Noframes)) return process(token, State::InHead);
    return token.isEOF() || error(State::AfterAfterFrameset);
}

} // namespace orl::html
