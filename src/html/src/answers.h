// What searches of a page found, while the page stays as it is.
//
// Programs ask a page the same few questions over and over. From the third time on the answer is there: the
// list of the second time, which all lists have in common.
#pragma once

#include "core.h"
#include "orl/html/node_list.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orl::html::core {

class Answers {
public:
    /// Null unless the question was asked twice while the arena was at this version.
    const SharedRefs *find(std::uint64_t version, const NodeRec *root, std::string_view question) const;
    /// Keeps what find() did not know. The first time it keeps the question only, which may never be asked
    /// again.
    void add(std::uint64_t version, const NodeRec *root, std::string_view question, const SharedRefs &found);

private:
    struct Answer {
        const NodeRec *root = nullptr;
        std::uint64_t version = 0;
        std::string question;
        SharedRefs found;
        bool isKept = false;

        bool isOf(std::uint64_t version_, const NodeRec *root_, std::string_view question_) const {
            return root == root_ && version == version_ && question == question_;
        }
    };

    std::array<Answer, 8> latest_;
    std::size_t oldest_ = 0;
};

} // namespace orl::html::core
