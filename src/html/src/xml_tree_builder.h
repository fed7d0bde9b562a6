// Trees of XML, and of anything else that should come out as it stands: tags close what they name and nothing
// more.
#pragma once

#include "tree_builder.h"

namespace orl::html {

class XmlTreeBuilder final : public TreeBuilder {
public:
    ParseSettings defaultSettings() const override { return ParseSettings::preserveCase; }

    std::vector<core::NodeRec *> parseFragment(core::Arena &arena, std::string_view input,
                                               core::NodeRec *context, std::string_view baseUri,
                                               ParseErrorList &errors,
                                               const ParseSettings &settings) override;

private:
    bool process(Token &token) override;
    void insert(const Token::StartTag &tag);
    void insert(const Token::Comment &token);
    NodeRec *declaration(std::string_view text);
    void popStackToClose(const Token::EndTag &tag);
};

} // namespace orl::html
