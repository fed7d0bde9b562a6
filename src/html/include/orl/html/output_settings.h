#pragma once

#include <orl/html/entities.h>
#include <orl/html/export.h>
#include <orl/html/text_encoding.h>

#include <string_view>

namespace orl::html {

/// How a document is printed. Setters return the settings, so that they can be chained.
class ORL_HTML_API OutputSettings {
public:
    enum class Syntax {
        html, ///< empty elements have no end, boolean attributes no value
        xml,  ///< every element is closed, every attribute has a value
    };

    const Entities::EscapeMode &escapeMode() const { return *escapeMode_; }
    OutputSettings &escapeMode(const Entities::EscapeMode &mode) {
        escapeMode_ = &mode;
        return *this;
    }

    /// Characters that this encoding lacks are printed as references. What is printed is UTF-8 in any case.
    const TextEncoding &encoder() const { return encoder_; }
    OutputSettings &encoder(TextEncoding encoding) {
        encoder_ = std::move(encoding);
        return *this;
    }
    const TextEncoding &charset() const { return encoder_; }
    /// The encoding of this name. An unknown one fails with an IllegalArgumentException.
    OutputSettings &charset(std::string_view name);

    bool prettyPrint() const { return prettyPrint_; }
    OutputSettings &prettyPrint(bool pretty) {
        prettyPrint_ = pretty;
        return *this;
    }

    /// Whether every element gets a line of its own, not only those that are blocks.
    bool outline() const { return outline_; }
    OutputSettings &outline(bool outline) {
        outline_ = outline;
        return *this;
    }

    /// Blanks for each level of depth.
    unsigned indentAmount() const { return indentAmount_; }
    OutputSettings &indentAmount(unsigned amount) {
        indentAmount_ = amount;
        return *this;
    }

    Syntax syntax() const { return syntax_; }
    OutputSettings &syntax(Syntax syntax) {
        syntax_ = syntax;
        return *this;
    }

    /// Independent settings with the same values; the escape mode is one for all.
    OutputSettings copy() const { return *this; }

private:
    const Entities::EscapeMode *escapeMode_ = &Entities::EscapeMode::base();
    TextEncoding encoder_;
    bool prettyPrint_ = true;
    bool outline_ = false;
    unsigned indentAmount_ = 1;
    Syntax syntax_ = Syntax::html;
};

} // namespace orl::html
