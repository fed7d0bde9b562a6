#pragma once

#include <vector>

namespace orl::demo {

/// Constant markup of realWorldPage(), UTF-8. "@TITLE@", "@SITE@", "@PATH@" and "@NONCE@" are replaced.
namespace furniture {
extern const char *const head;
extern const char *const header;
extern const char *const footer;

struct Question {
    const char *question;
    const char *answer;
};
extern const std::vector<Question> questions;
extern const std::vector<const char *> siteLanguages;
} // namespace furniture

} // namespace orl::demo
