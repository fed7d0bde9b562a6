#include "core.h"

#include "orl/html/document.h"
#include "orl/html/exception.h"
#include "orl/html/output_settings.h"
#include "tables.h"
#include "utf8.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <utility>

namespace orl::html::core {

namespace {

constexpr std::size_t maxPage = std::size_t(1) << 31;
constexpr std::size_t maxStep = std::size_t(64) << 20;
constexpr std::size_t looseSize = 4 * largeSlot; ///< what an arena takes in slots before whole granules

constexpr std::size_t chunkOverhead = sizeof(Chunk) + Arena::readable;

bool isLowerAscii(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return c >= 0 && (c < 'A' || c > 'Z'); });
}

std::string_view textKey(Kind kind) {
    return kind == Kind::Text ? "text" : kind == Kind::Data ? "data" : "comment";
}

} // namespace

// ---- Memory ----

Arena *Arena::create(std::size_t inputBytes) {
    return createLoose(inputBytes ? padding + inputBytes * 5 / 2 : largeSlot - chunkOverhead);
}

Arena *Arena::createLoose(std::size_t bytes) {
    openSpace();
    Chunk *chunk = takeChunk(chunkOverhead + bytes);
    chunk->next = nullptr;
    chunk->baseUri = "";
    chunk->baseUriLength = 0;
    return new Arena(chunk);
}

Arena::Arena(Chunk *first) : chunks_(first), oldest_(first), size_(first->size()) {
    startChunk(first);
}

void Arena::startChunk(Chunk *chunk) {
    chunk->arena = this;
    cursor_ = reinterpret_cast<char *>(chunk + 1);
    end_ = reinterpret_cast<char *>(chunk) + chunk->size() - readable;
}

void Arena::destroy() {
    Chunk *chunk = chunks_;
    delete this;
    while (chunk)
        giveBack(std::exchange(chunk, chunk->next));
}

void Arena::TablesDeleter::operator()(Tables *tables) const {
    delete tables;
}

Arena::Tables &Arena::tables() {
    if (!tables_) tables_.reset(new Tables);
    return *tables_;
}

void Arena::grow(std::size_t bytes) {
    const std::size_t wanted = bytes + chunkOverhead;
    if (size_ + largeSlot <= looseSize && wanted <= largeSlot)
        return addChunk(chunkCount_ == 1 ? wanted : largeSlot);
    addChunk(std::max(wanted, std::min(maxStep, size_ / 4) + largeSlot + 1));
}

bool Arena::isInOneRow() const {
    for (const Chunk *chunk = chunks_; chunk->next; chunk = chunk->next)
        if (chunk < chunk->next) return false;
    return true;
}

void Arena::addChunk(std::size_t bytes) {
    Chunk *chunk = takeChunk(bytes);
    chunk->next = chunks_;
    chunk->baseUri = chunks_->baseUri;
    chunk->baseUriLength = chunks_->baseUriLength;
    chunks_ = chunk;
    startChunk(chunk);
    size_ += chunk->size();
    ++chunkCount_;
}

const char *Arena::retain(std::string_view page) {
    if (page.size() >= maxPage)
        throw Exception::Error(ExceptionType::IllegalArgumentException, "A page must be shorter than 2 GiB");
    char *copy = allocateText(page.size() + padding);
    std::copy(page.begin(), page.end(), copy);
    std::fill_n(copy + page.size(), padding, '\0');
    return copy;
}

std::string_view Arena::store(std::string_view text) {
    if (text.empty()) return {"", 0};
    if (text.size() >= maxPage)
        throw Exception::Error(ExceptionType::IllegalArgumentException, "A text must be shorter than 2 GiB");
    char *copy = allocateText(text.size());
    std::copy(text.begin(), text.end(), copy);
    return {copy, text.size()};
}

Arena &Arena::merge(Arena &left, Arena &right) {
    if (&left == &right) return left;
    Arena &stays = left.size_ >= right.size_ ? left : right;
    Arena &goes = &stays == &left ? right : left;
    for (Chunk *chunk = goes.chunks_; chunk; chunk = chunk->next)
        chunk->arena = &stays;
    // The survivor goes on filling its own newest chunk, so what comes in stands behind its oldest.
    stays.oldest_->next = goes.chunks_;
    stays.oldest_ = goes.oldest_;
    stays.size_ += goes.size_;
    stays.chunkCount_ += goes.chunkCount_;
    stays.held_ += goes.held_;
    stays.mergeLists(goes);
    stays.dropped_ += goes.dropped_;
    stays.version += goes.version + 1;
    if (goes.tables_) {
        stays.tables().forms.merge(goes.tables_->forms);
        stays.tables().baseUris.merge(goes.tables_->baseUris);
        stays.tables().moreHolders.merge(goes.tables_->moreHolders);
        stays.tables().settings.merge(goes.tables_->settings);
    }
    delete &goes;
    return stays;
}

// ---- Names ----

namespace {

/// The place of a record in an open table, or the free place where it belongs. The table is never full.
template<class Table, class Same>
auto &placeOf(const Table &table, std::uint32_t hash, Same same) {
    std::uint32_t i = hash & (table.capacity - 1);
    while (table.places[i].ref && !(table.places[i].hash == hash && same(table.places[i].ref)))
        i = (i + 1) & (table.capacity - 1);
    return table.places[i];
}

template<class Table>
void makeRoom(Arena &arena, Table &table) {
    if (table.count * 2 < table.capacity) return;
    Table larger{.capacity = std::max(32U, table.capacity * 2), .count = table.count};
    const std::size_t bytes = larger.capacity * sizeof *larger.places;
    larger.places = static_cast<decltype(larger.places)>(arena.allocate(bytes));
    std::fill_n(larger.places, larger.capacity, typename Table::Place{});
    for (std::uint32_t i = 0; i < table.capacity; ++i)
        if (const auto place = table.places[i]; place.ref)
            placeOf(larger, place.hash, [](Ref) { return false; }) = place;
    table = larger;
}

std::uint32_t tagHash(std::string_view name, std::uint16_t flags) {
    return hashOf(name) + flags;
}

} // namespace

Ref Arena::internName(std::string_view name) {
    if (const NameRec *known = knownName(name)) return refOf(known);
    makeRoom(*this, names_);
    const std::uint32_t hash = hashOf(name);
    auto &found = placeOf(names_, hash, [name](Ref ref) { return at<NameRec>(ref)->name() == name; });
    if (found.ref) return found.ref;

    auto *record = static_cast<NameRec *>(allocate(sizeof(NameRec)));
    const std::string_view text = store(name);
    const bool isData = name.starts_with("data-") && name.size() > 5;
    *record = {text.data(), std::uint32_t(text.size()), refOf(record), isData ? NameRec::Data : 0U, hash};
    const Ref ref = refOf(record);
    found = {ref, hash};
    ++names_.count;
    if (!isLowerAscii(name)) {
        const std::string lower = lowerCase(name);
        if (lower != name) record->lower = internName(lower);
        if (isBooleanAttribute(lower)) record->flags |= NameRec::Boolean;
    }
    return ref;
}

void Arena::expectName(std::string_view name) const {
    if (names_.capacity) __builtin_prefetch(&names_.places[hashOf(name) & (names_.capacity - 1)], 1);
}

const TagRec *Arena::tag(std::string_view name) {
    if (const TagRec *known = knownTag(name)) return known;
    return dynamicTag(name, TagRec::unknown, nullptr);
}

const TagRec *Arena::selfClosing(const TagRec *tag) {
    if (tag->closesItself()) return tag;
    return dynamicTag(tag->name(), tag->flags | TagRec::SelfClosing, tag);
}

const TagRec *Arena::adopt(const TagRec *tag) {
    if (isStatic(refOf(tag)) || &arenaOf(tag) == this) return tag;
    return dynamicTag(tag->name(), tag->flags, tag);
}

/// `like`, if given, is a record with the same name.
const TagRec *Arena::dynamicTag(std::string_view name, std::uint16_t flags, const TagRec *like) {
    makeRoom(*this, tags_);
    const std::uint32_t hash = tagHash(name, flags);
    auto &found = placeOf(tags_, hash, [name, flags](Ref ref) {
        return at<TagRec>(ref)->flags == flags && at<TagRec>(ref)->name() == name;
    });
    if (found.ref) return at<TagRec>(found.ref);

    auto *record = static_cast<TagRec *>(allocate(sizeof(TagRec)));
    const std::string_view text = store(name);
    std::string_view normal = text;
    if (!isLowerAscii(name)) {
        const std::string lower = lowerCase(name);
        if (lower != name) normal = store(lower);
    }
    const TagRec *known = knownTag(normal);
    const TagId id = like ? like->id : TagId::Unknown;
    *record = {{0, 0},
               text.data(),
               normal.data(),
               std::uint32_t(text.size()),
               std::uint32_t(normal.size()),
               like ? like->sets : 0,
               flags,
               id,
               known ? known->id : TagId::Unknown};
    found = {refOf(record), hash};
    ++tags_.count;
    return record;
}

// ---- Nodes ----

NodeRec *Arena::newDoctype(std::string_view name, std::string_view pubSysKey, std::string_view publicId,
                           std::string_view systemId) {
    AttrRec attrs[4];
    std::size_t count = 0;
    const auto add = [&attrs, &count](NameId key, std::string_view value) {
        attrs[count++] = {nameRef(key), std::uint32_t(value.size()), value.empty() ? "" : value.data()};
    };
    add(NameId::Name, name);
    if (!pubSysKey.empty()) add(NameId::PubSysKey, pubSysKey);
    add(NameId::PublicId, publicId);
    add(NameId::SystemId, systemId);
    return newElement(Kind::Doctype, tagRec(TagId::Unknown), attrs, count);
}

NodeRec *Arena::newXmlDeclaration(std::string_view name, bool processingInstruction, const AttrRec *attrs,
                                  std::size_t count) {
    NodeRec *node = newElement(Kind::XmlDeclaration, tag(name), attrs, count);
    if (processingInstruction) node->flags |= NodeRec::ProcessingInstruction;
    return node;
}

NodeRec *Arena::newDocument(std::string_view location) {
    auto *document = static_cast<DocumentRec *>(allocate(sizeof(DocumentRec)));
    const std::string_view text = store(location);
    document->node = NodeRec{.parent = 0,
                             .next = 0,
                             .prev = 0,
                             .kind = std::uint32_t(Kind::Document),
                             .flags = NodeRec::IndexValid,
                             .attrCount = 0,
                             .holders = 0,
                             .index = 0,
                             .tag = tagRef(TagId::Root),
                             .branch = {0, 0}};
    document->location = text.data();
    document->locationLength = std::uint32_t(text.size());
    document->quirksMode = QuirksMode::noQuirks;
    document->updateMetaCharset = false;
    return &document->node;
}

NodeRec *Arena::shallowCopy(NodeRec *node) {
    NodeRec *copy;
    if (kindOf(node) == Kind::Document) {
        auto *document = static_cast<DocumentRec *>(allocate(sizeof(DocumentRec)));
        *document = *documentOf(node);
        copy = &document->node;
    } else {
        copy = newNode();
        *copy = *node;
    }
    copy->parent = copy->next = copy->prev = 0;
    copy->index = 0;
    copy->holders = 0;
    copy->flags &= ~std::uint32_t(NodeRec::SideData | NodeRec::OwnBaseUri);
    if (hasBranch(node)) {
        copy->branch.firstChild = 0;
        copy->flags |= isElement(node) ? NodeRec::IndexValid : 0U;
        shareAttrs(node, copy);
    }
    setOwnBaseUri(copy, baseUriOf(node));
    if (!(node->flags & NodeRec::SideData)) return copy;
    copy->flags |= NodeRec::SideData;
    if (kindOf(node) == Kind::Document)
        tables().settings[copy] = std::make_unique<OutputSettings>(*tables().settings.at(node));
    else
        tables().forms[copy] = tables().forms.at(node);
    return copy;
}

void shareAttrs(NodeRec *from, NodeRec *to) {
    to->attrCount = from->attrCount;
    to->branch.attrs = from->branch.attrs;
    if (from->attrCount == 0) return;
    from->flags |= NodeRec::SharedAttrs;
    to->flags |= NodeRec::SharedAttrs;
}

const AttrRec *findAttr(const NodeRec *node, Ref name) {
    if (!hasBranch(node)) return nullptr;
    for (const AttrRec &entry : attrBlock(node))
        if (sameName(entry.target().name, name)) return &entry.target();
    return nullptr;
}

std::string_view textInAttrs(const NodeRec *leaf) {
    const NameRec *key = knownName(textKey(kindOf(leaf)));
    return attrValue(leaf, refOf(key));
}

std::string_view baseUriOf(const NodeRec *node) {
    const Chunk *chunk = chunkOf(node);
    if (!(node->flags & NodeRec::OwnBaseUri)) [[likely]]
        return {chunk->baseUri, chunk->baseUriLength};
    return chunk->arena->tablesIfAny()->baseUris.at(node);
}

void setOwnBaseUri(NodeRec *node, std::string_view uri) {
    if (baseUriOf(node) == uri) return;
    Arena &arena = arenaOf(node);
    auto &uris = arena.tables().baseUris;
    const Chunk *chunk = chunkOf(node);
    if (uri == std::string_view(chunk->baseUri, chunk->baseUriLength)) {
        uris.erase(node);
        node->flags &= ~std::uint32_t(NodeRec::OwnBaseUri);
        return;
    }
    // Most often the caller passes a text that another node of the arena has already.
    std::string_view &own = uris[node];
    const bool isStored = isInSpace(uri.data()) && chunkOf(uri.data())->arena == &arena;
    own = isStored ? uri : arena.store(uri);
    node->flags |= NodeRec::OwnBaseUri;
}

void Arena::setBaseUri(std::string_view uri) {
    const std::string_view text = store(uri);
    for (Chunk *chunk = chunks_; chunk; chunk = chunk->next) {
        chunk->baseUri = text.data();
        chunk->baseUriLength = std::uint32_t(text.size());
    }
}

OutputSettings &settingsOf(NodeRec *document) {
    auto &settings = arenaOf(document).tables().settings[document];
    if (!settings) {
        settings = std::make_unique<OutputSettings>();
        document->flags |= NodeRec::SideData;
    }
    return *settings;
}

const OutputSettings *settingsIfAny(const NodeRec *document) {
    if (!(document->flags & NodeRec::SideData)) return nullptr;
    return arenaOf(document).tablesIfAny()->settings.at(document).get();
}

// ---- Holders and what is given back ----

void Arena::addToForm(NodeRec *form, NodeRec *control) {
    auto &list = tables().forms[form];
    if (!list) list = std::make_shared<FormList>();
    form->flags |= NodeRec::SideData;
    list->push_back(control);
    if (control->holders != NodeRec::manyHolders)
        ++control->holders;
    else
        holdMore(control);
}

const std::vector<NodeRec *> &Arena::formControls(const NodeRec *form) const {
    static const FormList none;
    return form->flags & NodeRec::SideData ? *tables_->forms.at(form) : none;
}

void Arena::holdMore(NodeRec *node) {
    ++tables().moreHolders[node];
}

/// Whether the holder that goes was one of those above the limit.
bool Arena::releaseMore(NodeRec *node) {
    if (!tables_) return false;
    const auto more = tables_->moreHolders.find(node);
    if (more == tables_->moreHolders.end()) return false;
    if (--more->second == 0) tables_->moreHolders.erase(more);
    return true;
}

void Arena::reclaim(NodeRec *root) {
    countLists();
    if (root->holders) return;
    ++version;
    std::vector<NodeRec *> orphans;
    while (root) {
        if (root->parent) --dropped_;
        root->parent = 0;
        for (NodeRec *node = root; node;) {
            if (NodeRec *child = firstChild(node)) {
                if (child->holders)
                    detach(child);
                else
                    node = child;
                continue;
            }
            NodeRec *above = parent(node);
            detach(node);
            freeNode(node, orphans);
            node = above;
        }
        root = orphans.empty() ? nullptr : orphans.back();
        if (root) orphans.pop_back();
    }
}

void Arena::freeNode(NodeRec *node, std::vector<NodeRec *> &orphans) {
    if (node->flags & NodeRec::OwnBaseUri) tables_->baseUris.erase(node);
    if (node->flags & NodeRec::SideData) {
        if (kindOf(node) == Kind::Document) {
            tables_->settings.erase(node);
        } else {
            const auto entry = tables_->forms.extract(node);
            const auto &list = entry.mapped();
            for (NodeRec *control : list.use_count() == 1 ? *list : FormList()) {
                if (control->holders == NodeRec::manyHolders && releaseMore(control)) continue;
                if (--control->holders == 0 && !isLinked(control) && control != node)
                    orphans.push_back(control);
            }
        }
    }
    node->parent = refOf(node);
    // While a dropped node may still name this one as its parent, the record must go on saying that it is
    // free.
    if (dropped_ > 0) return;
    node->next = freeNodes_;
    freeNodes_ = refOf(node);
}

void dropIfUnheld(NodeRec *node) {
    if (!node->holders && !isLinked(node)) arenaOf(node).reclaim(node);
}

void leaveParent(NodeRec *node) {
    // A list does not look whether a node has a parent when it lets go of the arena.
    if (isLinked(node)) arenaOf(node).countLists();
    if (!isLinked(node) && node->parent) --arenaOf(node).dropped_;
    detach(node);
}

void dropChildren(NodeRec *node) {
    Arena &arena = arenaOf(node);
    arena.countLists();
    while (NodeRec *child = firstChild(node)) {
        detach(child);
        if (!child->holders) {
            arena.reclaim(child);
            continue;
        }
        child->parent = refOf(node);
        ++arena.dropped_;
    }
}

} // namespace orl::html::core
