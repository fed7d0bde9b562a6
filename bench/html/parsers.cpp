#include "parsers.h"

#include <cstring>

namespace orl::bench {

bool hasWord(const char *value, const char *word) {
    const std::size_t size = std::strlen(word);
    const auto isEnd = [](char c) { return c == '\0' || c == ' ' || (c >= '\t' && c <= '\r'); };
    for (const char *p = value; (p = std::strstr(p, word)); p += size)
        if ((p == value || isEnd(p[-1])) && isEnd(p[size])) return true;
    return false;
}

#ifdef ORL_BENCH_LIBXML2

namespace {

const char *textOf(const xmlChar *text) {
    return reinterpret_cast<const char *>(text);
}

const char *classOf(const xmlNode *node) {
    for (const xmlAttr *attr = node->properties; attr; attr = attr->next)
        if (std::strcmp(textOf(attr->name), "class") == 0)
            return attr->children && attr->children->content ? textOf(attr->children->content) : "";
    return nullptr;
}

void collect(xmlNode *node, const char *className, std::vector<xmlNode *> &found) {
    for (; node; node = node->next) {
        if (node->type != XML_ELEMENT_NODE) continue;
        const char *value = classOf(node);
        if (value && hasWord(value, className)) found.push_back(node);
        collect(node->children, className, found);
    }
}

} // namespace

Libxml2::Tree Libxml2::parse(const std::string &page) {
    constexpr int quiet = HTML_PARSE_RECOVER | HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING | HTML_PARSE_NONET;
    return {htmlReadMemory(page.data(), int(page.size()), nullptr, "utf-8", quiet), xmlFreeDoc};
}

std::size_t Libxml2::byClass(const Tree &tree, const char *className) {
    std::vector<xmlNode *> found;
    collect(xmlDocGetRootElement(tree.get()), className, found);
    return found.size();
}

std::size_t Libxml2::text(const Tree &tree) {
    xmlChar *text = xmlNodeGetContent(reinterpret_cast<xmlNode *>(tree.get()));
    const std::size_t size = text ? std::strlen(textOf(text)) : 0;
    xmlFree(text);
    return size;
}

std::size_t Libxml2::markup(const Tree &tree) {
    xmlChar *printed = nullptr;
    int size = 0;
    htmlDocDumpMemoryFormat(tree.get(), &printed, &size, 0);
    xmlFree(printed);
    return std::size_t(size);
}

#endif
#ifdef ORL_BENCH_GUMBO

namespace {

void collect(const GumboNode *node, const char *className, std::vector<const GumboNode *> &found) {
    if (node->type != GUMBO_NODE_ELEMENT) return;
    const GumboAttribute *attribute = gumbo_get_attribute(&node->v.element.attributes, "class");
    if (attribute && hasWord(attribute->value, className)) found.push_back(node);
    const GumboVector &children = node->v.element.children;
    for (unsigned i = 0; i < children.length; ++i)
        collect(static_cast<const GumboNode *>(children.data[i]), className, found);
}

void appendText(const GumboNode *node, std::string &text) {
    if (node->type == GUMBO_NODE_TEXT || node->type == GUMBO_NODE_WHITESPACE) text += node->v.text.text;
    if (node->type != GUMBO_NODE_ELEMENT) return;
    const GumboVector &children = node->v.element.children;
    for (unsigned i = 0; i < children.length; ++i)
        appendText(static_cast<const GumboNode *>(children.data[i]), text);
}

} // namespace

Gumbo::Tree Gumbo::parse(const std::string &page) {
    return {gumbo_parse_with_options(&kGumboDefaultOptions, page.data(), page.size()),
            [](GumboOutput *output) { gumbo_destroy_output(&kGumboDefaultOptions, output); }};
}

std::size_t Gumbo::byClass(const Tree &tree, const char *className) {
    std::vector<const GumboNode *> found;
    collect(tree->root, className, found);
    return found.size();
}

std::size_t Gumbo::text(const Tree &tree) {
    std::string text;
    appendText(tree->root, text);
    return text.size();
}

#endif

} // namespace orl::bench
