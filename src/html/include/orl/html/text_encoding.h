#pragma once

#include <orl/html/export.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace orl::html {

/// The encoding that a page is going to be written in; it decides which characters need a reference. Texts in
/// memory are UTF-8 whatever it says.
class ORL_HTML_API TextEncoding {
public:
    /// UTF-8.
    TextEncoding() = default;

    static TextEncoding utf8() { return {}; }
    static TextEncoding ascii();

    /// The encoding that ICU knows by this name or alias, in any case; nothing for an unknown one.
    static std::optional<TextEncoding> named(std::string_view name);

    /// The name that a page declares, such as "UTF-8" or "ISO-8859-1".
    const std::string &name() const;

    bool isUtf8() const { return !table_; }

    /// Whether the encoding has a form for this scalar.
    bool canEncode(char32_t scalar) const { return !table_ || hasScalar(scalar); }

    bool operator==(const TextEncoding &other) const { return name() == other.name(); }

private:
    struct Table;

    explicit TextEncoding(std::shared_ptr<const Table> table) : table_(std::move(table)) {}
    bool hasScalar(char32_t scalar) const;

    std::shared_ptr<const Table> table_; ///< null for UTF-8
};

} // namespace orl::html
