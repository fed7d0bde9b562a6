#include "orl/html/text_encoding.h"

#include <strings.h>
#include <unicode/ucnv.h>
#include <unicode/uset.h>

namespace orl::html {

struct TextEncoding::Table {
    std::string name;
    bool all = false;   ///< every scalar
    bool ascii = false; ///< U+0000 to U+007F and nothing else
    USet *scalars = nullptr;

    explicit Table(std::string_view given) : name(given) {}
    Table(const Table &) = delete;
    Table &operator=(const Table &) = delete;
    ~Table() {
        if (scalars) uset_close(scalars);
    }
};

TextEncoding TextEncoding::ascii() {
    static const std::shared_ptr<const Table> table = [] {
        auto made = std::make_shared<Table>("US-ASCII");
        made->ascii = true;
        return made;
    }();
    return TextEncoding(table);
}

std::optional<TextEncoding> TextEncoding::named(std::string_view name) {
    UErrorCode status = U_ZERO_ERROR;
    UConverter *converter = ucnv_open(std::string(name).c_str(), &status);
    if (U_FAILURE(status) || name.empty()) {
        if (converter) ucnv_close(converter);
        return {};
    }
    const char *internal = ucnv_getName(converter, &status);
    UErrorCode unnamed = U_ZERO_ERROR;
    const char *standard = ucnv_getStandardName(internal, "MIME", &unnamed);
    const std::string known = standard ? standard : internal;
    const UConverterType type = ucnv_getType(converter);
    auto table = std::make_shared<Table>(known);
    table->all = type == UCNV_UTF8 || type == UCNV_UTF16 || type == UCNV_UTF16_BigEndian ||
                 type == UCNV_UTF16_LittleEndian || type == UCNV_UTF32 || type == UCNV_UTF32_BigEndian ||
                 type == UCNV_UTF32_LittleEndian;
    if (!table->all) {
        table->scalars = uset_openEmpty();
        ucnv_getUnicodeSet(converter, table->scalars, UCNV_ROUNDTRIP_SET, &status);
    }
    ucnv_close(converter);
    if (U_FAILURE(status)) return {};
    if (known == "UTF-8") return TextEncoding();
    if (known == "US-ASCII") return ascii();
    return TextEncoding(std::move(table));
}

const std::string &TextEncoding::name() const {
    static const std::string utf8 = "UTF-8";
    return table_ ? table_->name : utf8;
}

bool TextEncoding::hasScalar(char32_t scalar) const {
    if (table_->ascii) return scalar < 0x80;
    return table_->all || uset_contains(table_->scalars, UChar32(scalar));
}

} // namespace orl::html
