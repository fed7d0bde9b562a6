// Text that is escaped, for any place and in any form, comes back when it is unescaped.
#include "law.h"
#include "utf8.h"

using namespace orl::html;

namespace {

bool hasC1Control(std::string_view text) {
    for (std::size_t at = text.find('\xc2'); at < text.size(); at = text.find('\xc2', at + 1))
        if (static_cast<unsigned char>(text[at + 1]) < 0xa0) return true;
    return false;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    if (size == 0) return 0;
    const unsigned choice = data[0];
    const std::string_view input = fuzz::textOf(data + 1, size - 1);
    Entities::unescape(input);
    Entities::unescape(input, true);

    const std::string text = core::repaired(input);
    // Names of two scalars stand for their first when the extended set looks for a name; and a reference to a
    // C1 control means the character that Windows has in its place.
    const Entities::EscapeMode *modes[] = {&Entities::EscapeMode::xhtml(), &Entities::EscapeMode::base(),
                                           &Entities::EscapeMode::extended()};
    const char *charset = choice % 3 == 2 ? "UTF-8"
                          : choice & 4    ? "US-ASCII"
                          : choice & 8    ? "ISO-8859-1"
                                          : "UTF-8";
    if (charset != std::string_view("UTF-8") && hasC1Control(text)) return 0;
    OutputSettings settings;
    settings.escapeMode(*modes[choice % 3]).charset(charset);
    const bool inAttribute = choice & 16;
    std::string escaped;
    Entities::escape(escaped, text, settings, inAttribute);
    fuzz::require(Entities::unescape(escaped, inAttribute) == text, "what is escaped comes back", escaped);
    fuzz::require(escaped.find(inAttribute ? '"' : '<') == std::string::npos, "nothing ends the text",
                  escaped);
    return 0;
}
