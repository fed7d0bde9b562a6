#pragma once

#include <orl/html/document.h>
#include <orl/html/export.h>
#include <orl/html/text_encoding.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

namespace orl::html {

/// Reads a file line by line, a chunk of bytes at a time.
class ORL_HTML_API StreamReader {
public:
    /// A file that cannot be opened fails with an IOException.
    explicit StreamReader(const std::filesystem::path &path, std::string_view delimiter = "\n",
                          const TextEncoding &encoding = {}, std::size_t chunkSize = 4096);

    /// The next line without its delimiter, as UTF-8; nothing at the end of the file. A read that fails does
    /// so with an IOException. The delimiter is a text of bytes, so the encoding must be one that keeps
    /// ASCII.
    std::optional<std::string> nextLine();
    /// Back to the start of the file.
    void rewind();
    bool atEof() const { return atEof_; }

private:
    std::string decoded(std::string line) const;

    TextEncoding encoding_;
    std::size_t chunkSize_;
    std::ifstream fileHandle_;
    std::string delimData_;
    std::string buffer_;
    std::size_t searched_ = 0; ///< no delimiter starts before this place of the buffer
    bool atEof_ = false;
};

/// Pages in files.
struct ORL_HTML_API DataUtil {
    /// The page in a file. A file that cannot be read fails with an IOException.
    static Document load(const std::filesystem::path &path, std::string_view baseUri,
                         const TextEncoding &encoding = {});
};

} // namespace orl::html
