#include "orl/html/data_util.h"

#include "orl/html/exception.h"
#include "orl/html/parser.h"

#include <unicode/ucnv.h>
#include <utility>

namespace orl::html {

namespace {

[[noreturn]] void failReading(const std::string &message) {
    throw Exception::Error(ExceptionType::IOException, message);
}

} // namespace

StreamReader::StreamReader(const std::filesystem::path &path, std::string_view delimiter,
                           const TextEncoding &encoding, std::size_t chunkSize)
    : encoding_(encoding),
      chunkSize_(chunkSize ? chunkSize : 1),
      fileHandle_(path, std::ios::binary),
      delimData_(delimiter) {
    if (!fileHandle_) failReading("Cannot open " + path.string());
}

std::optional<std::string> StreamReader::nextLine() {
    while (!atEof_) {
        const std::size_t end = delimData_.empty() ? std::string::npos : buffer_.find(delimData_, searched_);
        if (end != std::string::npos) {
            std::string line = buffer_.substr(0, end);
            buffer_.erase(0, end + delimData_.size());
            searched_ = 0;
            return decoded(std::move(line));
        }
        // A delimiter may have begun at the end of what is here.
        const std::size_t size = buffer_.size();
        searched_ = size < delimData_.size() ? 0 : size + 1 - delimData_.size();
        buffer_.resize(size + chunkSize_);
        fileHandle_.read(buffer_.data() + size, std::streamsize(chunkSize_));
        const auto got = std::size_t(fileHandle_.gcount());
        buffer_.resize(size + got);
        if (fileHandle_.bad()) failReading("Cannot read on");
        if (got > 0) continue;
        atEof_ = true;
        if (!buffer_.empty()) return decoded(std::exchange(buffer_, {}));
    }
    return {};
}

void StreamReader::rewind() {
    fileHandle_.clear();
    fileHandle_.seekg(0);
    buffer_.clear();
    searched_ = 0;
    atEof_ = false;
}

std::string StreamReader::decoded(std::string line) const {
    if (encoding_.isUtf8()) return line;
    UErrorCode status = U_ZERO_ERROR;
    const auto convert = [&](char *to, std::size_t room) {
        return ucnv_convert("UTF-8", encoding_.name().c_str(), to, int32_t(room), line.data(),
                            int32_t(line.size()), &status);
    };
    std::string text(std::size_t(convert(nullptr, 0)), '\0');
    status = U_ZERO_ERROR;
    convert(text.data(), text.size());
    if (U_FAILURE(status)) failReading("Cannot decode a line as " + encoding_.name());
    return text;
}

Document DataUtil::load(const std::filesystem::path &path, std::string_view baseUri,
                        const TextEncoding &encoding) {
    constexpr std::string_view byteOrderMark = "\xef\xbb\xbf";
    StreamReader reader(path, "\n", encoding, std::size_t(64) << 10);
    std::string page;
    while (const auto line = reader.nextLine()) {
        page += *line;
        if (!reader.atEof()) page += '\n';
    }
    std::string_view text = page;
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    return Parser::parse(text, baseUri);
}

} // namespace orl::html
