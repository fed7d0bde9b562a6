#pragma once

#include <QString>

#include <utility>
#include <variant>

namespace orl {

/// Why something failed, in words for the console.
struct Error {
    QString description;

    bool operator==(const Error &) const = default;
};

/// A value, or the error that stands in its place. `value()` may be asked only when `ok()`.
template<class T>
class Result {
public:
    Result(T value) : content_(std::in_place_index<0>, std::move(value)) {}
    Result(Error error) : content_(std::in_place_index<1>, std::move(error)) {}

    bool ok() const { return content_.index() == 0; }
    explicit operator bool() const { return ok(); }

    const T &value() const & { return std::get<0>(content_); }
    T &&value() && { return std::get<0>(std::move(content_)); }
    const Error &error() const { return std::get<1>(content_); }

private:
    std::variant<T, Error> content_;
};

} // namespace orl
