#include "answers.h"

#include <algorithm>

namespace orl::html::core {

const SharedRefs *Answers::find(std::uint64_t version, const NodeRec *root, std::string_view question) const {
    for (const Answer &answer : latest_)
        if (answer.isKept && answer.isOf(version, root, question)) return &answer.found;
    return nullptr;
}

void Answers::add(std::uint64_t version, const NodeRec *root, std::string_view question,
                  const SharedRefs &found) {
    // What was found before a change only takes room.
    for (Answer &answer : latest_) {
        if (answer.version == version) continue;
        answer.found = {};
        answer.isKept = false;
    }
    const auto asked = std::ranges::find_if(
        latest_, [&](const Answer &answer) { return answer.isOf(version, root, question); });
    if (asked != latest_.end()) {
        asked->found = found;
        asked->isKept = true;
        return;
    }
    latest_[oldest_] = {root, version, std::string(question), {}, false};
    oldest_ = (oldest_ + 1) % latest_.size();
}

} // namespace orl::html::core
