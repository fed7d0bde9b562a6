#include "text_index.h"

#include "attr_value.h"
#include "output.h"
#include "pile.h"
#include "text.h"
#include "utf8.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace orl::html::core {

namespace {

constexpr int fewElements = 4;

/// The text of a subtree in lower case, and where in it that of each element stands. A stretch differs from
/// what the element's text would be on its own in its outer white space only, and that is left out of both.
class TextIndex {
public:
    struct Stretch {
        Ref element;
        std::uint32_t start, end;
    };

    /// False if the lower case of a stretch depends on what is around it, as that of a sigma does, and for
    /// 4 GiB of text.
    bool read(NodeRec *root) {
        for (NodeRec *node = root; node;) {
            enter(node);
            if (NodeRec *child = firstChild(node)) {
                node = child;
                continue;
            }
            leave(node);
            while (node != root && !node->next) {
                node = parent(node);
                leave(node);
            }
            node = node == root ? nullptr : nextSibling(node);
        }
        return !hasSigma_ && text_.size() < none;
    }

    const std::string &text() const { return text_; }
    const Pile<Stretch> &stretches() const { return stretches_; }

private:
    static constexpr std::string_view capitalSigma = "\xce\xa3";
    static constexpr auto none = std::numeric_limits<std::uint32_t>::max();

    bool endsWithBlank() const { return !text_.empty() && text_.back() == ' '; }

    void enter(NodeRec *node) {
        if (isText(node)) return append(node);
        if (!isElement(node)) return;
        if (breaksText(tagOf(node)) && !text_.empty() && !endsWithBlank()) text_ += ' ';
        open_.push_back(std::uint32_t(stretches_.size()));
        stretches_.push_back({refOf(node), none, 0});
    }

    void leave(const NodeRec *node) {
        if (!isElement(node)) return;
        Stretch &stretch = stretches_[open_.back()];
        open_.pop_back();
        const bool isEmpty = stretch.start == none;
        if (isEmpty) stretch.start = std::uint32_t(text_.size());
        stretch.end = isEmpty ? stretch.start : solidEnd_;
        started_ = std::min(started_, open_.size());
    }

    void append(const NodeRec *node) {
        Output piece;
        appendTextNode(piece, node, preservesWhitespace(parentOf(node)), endsWithBlank());
        hasSigma_ = hasSigma_ || findText(piece.view(), capitalSigma) != std::string_view::npos;
        const std::string lower = lowerCase(piece.view());
        const std::string_view solid = trimmed(lower);
        if (!solid.empty()) {
            const std::size_t start = text_.size() + std::size_t(solid.data() - lower.data());
            for (; started_ < open_.size(); ++started_)
                stretches_[open_[started_]].start = std::uint32_t(start);
            solidEnd_ = std::uint32_t(start + solid.size());
        }
        text_ += lower;
    }

    std::string text_;
    Pile<Stretch> stretches_;
    Pile<std::uint32_t> open_;   ///< the stretches of the elements around the node at hand
    std::size_t started_ = 0;    ///< so many of them, the outer ones, have some text already
    std::uint32_t solidEnd_ = 0; ///< where the last character stands that is no white space
    bool hasSigma_ = false;
};

} // namespace

bool TextPredicate::holds(NodeRec *element) {
    if (root_ != scope_.root) asked_ = 0;
    root_ = scope_.root;
    if (!answers_.isKnown(element) && ++asked_ == fewElements) lookAtAll();
    if (!answers_.isKnown(element)) answers_.set(element, look(element));
    return answers_.get(element);
}

bool TextPredicate::look(const NodeRec *element) const {
    return containsLower(textOf(element), wanted_);
}

void TextPredicate::lookAtAll() {
    TextIndex index;
    if (!scope_.root || !index.read(scope_.root)) return;
    // Where the text is found next. Stretches that are not empty start further and further on.
    std::size_t next = findText(index.text(), wanted_);
    for (const auto &stretch : index.stretches()) {
        if (next != std::string::npos && next < stretch.start)
            next = findText(index.text(), wanted_, stretch.start);
        const bool inside = next != std::string::npos && next + wanted_.size() <= stretch.end;
        answers_.set(at<NodeRec>(stretch.element), inside || wanted_.empty());
    }
}

} // namespace orl::html::core
