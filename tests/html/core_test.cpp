// The memory under the tree: names, links, holders, and what is given back when.
#include "core.h"
#include "orl/html/document.h"
#include "orl/html/large_buffer.h"
#include "pile.h"

#include <cstring>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <utility>
#include <vector>

namespace orl::html::core {
namespace {

/// The tag names of a node's children, in order.
std::string names(const NodeRec *node) {
    std::string all;
    for (const NodeRec *child = firstChild(node); child; child = nextSibling(child))
        all += std::string(tagOf(child)->name()) + ' ';
    return all;
}

class CoreTest : public testing::Test {
protected:
    CoreTest() : arena(Arena::create(1000)), root(arena->newDocument("")) { hold(root); }
    ~CoreTest() override { release(root); }

    NodeRec *element(std::string_view name) {
        return arenaOf(root).newElement(Kind::Element, arenaOf(root).tag(name));
    }
    NodeRec *child(std::string_view name) {
        NodeRec *node = element(name);
        append(root, node);
        return node;
    }

    Arena *arena;
    NodeRec *root;
};

TEST_F(CoreTest, NamesAreTheSameRecordForEachUse) {
    EXPECT_EQ(arena->tag("div"), tagRec(TagId::Div));
    EXPECT_EQ(arena->tag("blockquote")->id, TagId::Blockquote);
    EXPECT_EQ(arena->tag("x-y"), arena->tag("x-y"));
    EXPECT_NE(arena->tag("x-y"), arena->selfClosing(arena->tag("x-y")));
    EXPECT_EQ(arena->tag("DIV")->id, TagId::Unknown);
    EXPECT_EQ(arena->tag("DIV")->normalId, TagId::Div);
    EXPECT_EQ(arena->internName("href"), nameRef(NameId::Href));
    EXPECT_EQ(arena->internName("data-x"), arena->internName("data-x"));
    EXPECT_EQ(at<NameRec>(arena->internName("HREF"))->lower, nameRef(NameId::Href));
    EXPECT_TRUE(at<NameRec>(arena->internName("CHECKED"))->flags & NameRec::Boolean);
    for (int i = 0; i < 1000; ++i) {
        std::string name = std::to_string(i);
        name += "n";
        EXPECT_EQ(arena->internName(name), arena->internName(name));
        EXPECT_EQ(arena->tag(name)->name(), name);
    }
}

TEST_F(CoreTest, PlacesStayRightThroughEveryKindOfChange) {
    NodeRec *a = child("a"), *b = child("b"), *c = child("i");
    const auto expectPlaces = [this](const char *what) {
        std::uint32_t place = 0;
        for (NodeRec *n = firstChild(root); n; n = nextSibling(n))
            EXPECT_EQ(siblingIndex(n), place++) << what;
        EXPECT_EQ(childCount(root), place) << what;
    };
    expectPlaces("appended");
    detach(a);
    EXPECT_EQ(names(root), "b i ");
    expectPlaces("first taken away");
    insertBefore(b, a);
    EXPECT_EQ(names(root), "a b i ");
    expectPlaces("put first");
    detach(b);
    expectPlaces("taken from the middle");
    insertBefore(c, b);
    EXPECT_EQ(names(root), "a b i ");
    expectPlaces("put in the middle");
    detach(c);
    expectPlaces("last taken away");
    append(root, c);
    expectPlaces("appended again");
    NodeRec *other = element("p");
    append(other, element("q"));
    moveChildren(root, other);
    EXPECT_EQ(names(other), "q a b i ");
    EXPECT_EQ(firstChild(root), nullptr);
    EXPECT_EQ(previousSibling(b), a);
    EXPECT_EQ(previousSibling(firstChild(other)), nullptr);
    append(root, other);
}

TEST_F(CoreTest, RootsThatNobodyHoldsAreGivenBackExceptHeldDescendants) {
    NodeRec *outer = child("div"), *inner = element("p"), *text = arena->newText("x");
    append(outer, inner);
    append(inner, text);
    hold(outer);
    hold(inner);
    detach(outer);
    release(outer);
    EXPECT_TRUE(isFree(outer));
    EXPECT_EQ(parentOf(inner), nullptr);
    EXPECT_EQ(firstChild(inner), text);
    EXPECT_EQ(element("b"), outer) << "the record is used again";
    release(inner);
    EXPECT_TRUE(isFree(text));
}

TEST_F(CoreTest, DroppedChildrenNameTheirParentUntilItGoes) {
    NodeRec *outer = child("div"), *inner = element("p"), *loose = element("b");
    append(outer, inner);
    append(outer, loose);
    hold(outer);
    hold(inner);
    dropChildren(outer);
    EXPECT_EQ(firstChild(outer), nullptr);
    EXPECT_TRUE(isFree(loose));
    EXPECT_EQ(parentOf(inner), outer);
    detach(outer);
    release(outer);
    EXPECT_EQ(parentOf(inner), nullptr);
    EXPECT_NE(element("i"), outer) << "the record must not be used again while inner may look at it";
    leaveParent(inner);
    release(inner);
}

TEST_F(CoreTest, MoreHoldersThanTheNodeCanCount) {
    NodeRec *node = child("p");
    constexpr int holders = 200'000;
    for (int i = 0; i < holders; ++i)
        hold(node);
    detach(node);
    for (int i = 1; i < holders; ++i)
        release(node);
    EXPECT_FALSE(isFree(node));
    release(node);
    EXPECT_TRUE(isFree(node));
}

TEST_F(CoreTest, MergedArenasLiveAndDieTogether) {
    const std::size_t before = spaceInUse();
    Arena *other = Arena::createLoose();
    NodeRec *loose = other->newElement(Kind::Element, tagRec(TagId::B));
    other->setBaseUri("http://b/");
    hold(loose);
    EXPECT_EQ(spaceInUse(), before + smallSlot);
    Arena &merged = Arena::merge(*other, arenaOf(root));
    EXPECT_EQ(&arenaOf(loose), &merged);
    EXPECT_EQ(&arenaOf(root), &merged);
    append(root, loose);
    EXPECT_EQ(baseUriOf(loose), "http://b/");
    EXPECT_EQ(baseUriOf(root), "");
    release(root);
    EXPECT_EQ(parentOf(loose), nullptr) << "the weak link of a parent that nobody holds";
    hold(root = loose);
    release(loose);
}

TEST(SpaceTest, ChunksComeBack) {
    const std::size_t before = spaceInUse();
    for (int round = 0; round < 3; ++round) {
        std::vector<Arena *> arenas;
        for (std::size_t size : {0, 1, 100'000, 0, 3'000'000, 20, 0, 80'000'000}) {
            arenas.push_back(Arena::create(size));
            const std::string_view text = arenas.back()->store(std::string(size, 'x'));
            EXPECT_EQ(&arenaOf(arenas.back()->anchor()), arenas.back());
            if (!text.empty()) {
                EXPECT_EQ(&arenaOf(&text.back()), arenas.back());
            }
            for (int i = 0; i < 5000; ++i)
                arenas.back()->newText("y");
        }
        for (std::size_t i = 0; i < 300; ++i)
            arenas.push_back(Arena::createLoose());
        for (std::size_t i = 0; i < arenas.size(); i += 2)
            arenas[i]->destroy();
        for (std::size_t i = 1; i < arenas.size(); i += 2)
            arenas[i]->destroy();
        EXPECT_EQ(spaceInUse(), before);
    }
}

/// What callers make on their own is small on its own and stays small inside a page.
TEST(SpaceTest, LooseNodesTakeLittle) {
    const std::size_t before = spaceInUse();
    {
        const Document page("");
        const std::size_t empty = spaceInUse();
        constexpr std::size_t count = 1000;
        for (std::size_t i = 0; i < count; ++i)
            page.appendChild(TextNode("some text", ""));
        EXPECT_LE(spaceInUse(), empty + count * smallSlot);
        const Document other("");
        other.appendChild(Element(Tag::valueOf("p"), "").attr("id", "x"));
        other.appendChild(TextNode(std::string(300, 'x'), "http://host/"));
        page.appendChild(other.child(0));
        EXPECT_EQ(page.getElementById("x").outerHtml(), "<p id=\"x\"></p>");
        EXPECT_EQ(other.textNodes().at(0).getWholeText().size(), 300U);
        EXPECT_EQ(other.childNode(0).getBaseUri(), "http://host/");
    }
    EXPECT_EQ(spaceInUse(), before);
}

TEST(SpaceTest, LongListsStandWherePagesAre) {
    constexpr std::size_t count = 3 * largeBuffer / sizeof(std::uint64_t);
    const std::size_t before = spaceInUse();
    {
        Pile<std::uint64_t> pile;
        std::vector<std::uint64_t, LargeBuffers<std::uint64_t>> list;
        for (std::size_t i = 0; i < count; ++i) {
            pile.push_back(i);
            list.push_back(i);
        }
        EXPECT_GE(spaceInUse(), before + 2 * count * sizeof(std::uint64_t));
        std::size_t right = 0;
        for (std::size_t i = 0; i < count; ++i)
            right += pile[i] == i && list[i] == i;
        EXPECT_EQ(right, count);
    }
    EXPECT_EQ(spaceInUse(), before);
}

/// More than is kept comes and goes, beside memory that is in use.
TEST(SpaceTest, StretchesOfAllWarmthsDoNotMixUp) {
    const std::size_t before = spaceInUse();
    std::vector<std::pair<unsigned char *, std::size_t>> held;
    std::uint32_t state = 1;
    const auto random = [&state](std::uint32_t below) {
        state = state * 1664525 + 1013904223;
        return (state >> 8) % below;
    };
    // The first and the last byte of each 64 KiB tell whose it is.
    const auto mark = [](std::pair<unsigned char *, std::size_t> piece, unsigned char value, bool check) {
        for (std::size_t at = 0; at < piece.second; at += granuleSize / 2) {
            if (check) {
                EXPECT_EQ(piece.first[at], value);
            }
            piece.first[at] = value;
        }
    };
    for (int round = 0; round < 300; ++round) {
        if (held.size() < 12 || random(2)) {
            const std::size_t size = (std::size_t(1) + random(200)) * granuleSize;
            held.emplace_back(static_cast<unsigned char *>(takeLargeBuffer(size)), size);
            mark(held.back(), static_cast<unsigned char>(std::uintptr_t(held.back().first) >> 16), false);
        } else {
            const auto gone = held.begin() + random(std::uint32_t(held.size()));
            mark(*gone, static_cast<unsigned char>(std::uintptr_t(gone->first) >> 16), true);
            giveLargeBuffer(gone->first);
            held.erase(gone);
        }
    }
    for (const auto &piece : held) {
        mark(piece, static_cast<unsigned char>(std::uintptr_t(piece.first) >> 16), true);
        giveLargeBuffer(piece.first);
    }
    EXPECT_EQ(spaceInUse(), before);
}

/// Memory that was just used is handed out again, also beside a stretch that was too large to be kept.
TEST(SpaceTest, MemoryStaysReadyAfterALargePage) {
    constexpr std::size_t large = std::size_t(100) << 20, small = std::size_t(1) << 20;
    giveBack(takeChunk(large));
    const auto faults = [] {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        return usage.ru_minflt;
    };
    const auto before = faults();
    constexpr int rounds = 200;
    for (int i = 0; i < rounds; ++i) {
        Chunk *const chunk = takeChunk(small);
        std::memset(chunk + 1, i, small - sizeof(Chunk));
        giveBack(chunk);
    }
    constexpr long pagesOfOne = small / 4096;
    EXPECT_LT(faults() - before, rounds * pagesOfOne / 4);
}

} // namespace
} // namespace orl::html::core
