// Looking for one pattern in many texts.
#pragma once

#include "orl/html/pattern.h"

#include <memory>
#include <string_view>

namespace orl::html::core {

/// Keeps what searching needs from one text to the next. Fails as Pattern does.
class PatternSearch {
public:
    explicit PatternSearch(const Pattern &pattern);
    ~PatternSearch();

    bool isFoundIn(std::string_view text);

private:
    struct State;

    Pattern pattern_;
    std::unique_ptr<State> state_;
};

} // namespace orl::html::core
