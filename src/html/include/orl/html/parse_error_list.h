#pragma once

#include <orl/html/export.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace orl::html {

/// One thing in a page that is not as the HTML standard wants it. The page is parsed all the same.
class ORL_HTML_API ParseError {
public:
    ParseError(std::size_t pos, std::string errorMsg) : pos_(pos), errorMsg_(std::move(errorMsg)) {}

    const std::string &getErrorMessage() const { return errorMsg_; }
    /// How many characters (scalars) the reader had behind it.
    std::size_t getPosition() const { return pos_; }
    /// The position, ": " and the message.
    std::string toString() const { return std::to_string(pos_) + ": " + errorMsg_; }

    bool operator==(const ParseError &) const = default;

private:
    std::size_t pos_;
    std::string errorMsg_;
};

/// The first errors of a page, up to a limit; beyond it, and always without tracking, not even a message is
/// made.
class ORL_HTML_API ParseErrorList {
public:
    ParseErrorList(std::size_t initialCapacity, std::size_t maxSize)
        : maxSize_(maxSize), initialCapacity_(initialCapacity) {
        array_.reserve(maxSize < initialCapacity ? maxSize : initialCapacity);
    }

    static ParseErrorList noTracking() { return {0, 0}; }
    static ParseErrorList tracking(std::size_t maxSize) { return {16, maxSize}; }

    bool canAddError() const { return array_.size() < maxSize_; }
    std::size_t getMaxSize() const { return maxSize_; }

    void add(ParseError error) { array_.push_back(std::move(error)); }

    const std::vector<ParseError> &array() const { return array_; }
    std::size_t size() const { return array_.size(); }
    bool empty() const { return array_.empty(); }
    const ParseError &operator[](std::size_t index) const { return array_[index]; }
    auto begin() const { return array_.begin(); }
    auto end() const { return array_.end(); }

private:
    std::size_t maxSize_;
    std::size_t initialCapacity_;
    std::vector<ParseError> array_;
};

} // namespace orl::html
