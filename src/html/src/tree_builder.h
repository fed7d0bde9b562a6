// What the builders of HTML and XML trees share.
#pragma once

#include "character_reader.h"
#include "core.h"
#include "open_elements.h"
#include "tokeniser.h"

#include <orl/html/document.h>
#include <orl/html/parse_error_list.h>
#include <orl/html/parse_settings.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orl::html {

/// Makes a tree of a page's tokens. A builder does one parse at a time and may be used for many.
class TreeBuilder {
public:
    TreeBuilder() = default;
    TreeBuilder(const TreeBuilder &) = delete;
    TreeBuilder &operator=(const TreeBuilder &) = delete;
    virtual ~TreeBuilder();

    virtual ParseSettings defaultSettings() const { return ParseSettings::htmlDefault; }

    Document parse(std::string_view input, std::string_view baseUri, ParseErrorList &errors,
                   const ParseSettings &settings);

    /// Parses into an arena that the caller holds; the nodes have no parent and the given base URI. `context`
    /// may be null.
    virtual std::vector<core::NodeRec *> parseFragment(core::Arena &arena, std::string_view input,
                                                       core::NodeRec *context, std::string_view baseUri,
                                                       ParseErrorList &errors,
                                                       const ParseSettings &settings) = 0;

protected:
    using Arena = core::Arena;
    using NodeRec = core::NodeRec;
    using TagRec = core::TagRec;
    using TagId = core::TagId;
    using TagSet = core::TagSet;
    using Token = core::Token;
    using Place = core::OpenElements::Place;

    /// Ends the parse however it ends, while the arena is there.
    class Parse {
    public:
        explicit Parse(TreeBuilder &builder) : builder_(builder) {}
        Parse(const Parse &) = delete;
        Parse &operator=(const Parse &) = delete;
        ~Parse() { builder_.endParse(); }

    private:
        TreeBuilder &builder_;
    };

    virtual void initialiseParse(Arena &arena, std::string_view input, std::string_view baseUri,
                                 ParseErrorList &errors, const ParseSettings &settings);
    virtual bool process(Token &token) = 0;
    /// Reads tokens and processes them, the one that ends the page included.
    virtual void runParser();
    /// Nothing of the parse is looked at any more; the tree stays.
    virtual void endParse();

    bool processStartTag(TagId id);
    bool processEndTag(TagId id);

    Arena &arena() { return *arena_; }
    /// The top of the stack, or the document.
    NodeRec *currentElement() const { return open_.empty() ? doc_ : open_.top(); }
    const TagRec *elementTag(const Token::Tag &tag);
    /// The nodes below `parent`, cut off from it, with the base URI of the parse.
    std::vector<NodeRec *> takeChildren(NodeRec *parent);
    void insertDoctype(const Token::Doctype &token);

    Arena *arena_ = nullptr;
    std::optional<core::CharacterReader> reader_;
    std::optional<core::Tokeniser> tokeniser_;
    NodeRec *doc_ = nullptr;
    core::OpenElements open_; ///< the stack of open elements
    std::string baseUri_;
    Token *currentToken_ = nullptr;
    ParseErrorList *errors_ = nullptr; ///< null where none are tracked
    ParseSettings settings_ = ParseSettings::htmlDefault;
};

} // namespace orl::html
