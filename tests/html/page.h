// Pages for tests.
#pragma once

#include <orl/html/document.h>
#include <orl/html/elements.h>
#include <orl/html/exception.h>
#include <orl/html/parser.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace orl::html {

inline Document page(std::string_view html, std::string_view baseUri = "") {
    return Parser::parse(html, baseUri);
}

/// The same without line breaks and indents in what it prints.
inline Document plainPage(std::string_view html, std::string_view baseUri = "") {
    const Document document = page(html, baseUri);
    document.outputSettings().prettyPrint(false);
    return document;
}

/// The first element of this tag name.
inline Element first(const Element &in, std::string_view tagName) {
    return in.getElementsByTag(tagName).first();
}

/// The words of the failure that `action` raises; "" if it raises none.
template<class Action>
std::string failure(Action action, ExceptionType type = ExceptionType::IllegalArgumentException) {
    try {
        action();
    } catch (const Exception::Error &error) {
        EXPECT_EQ(error.type, type);
        EXPECT_STREQ(error.what(), error.Message.c_str());
        return error.Message;
    }
    return {};
}

/// The "id" attributes of the elements, joined with blanks.
inline std::string ids(const Elements &elements) {
    std::string all;
    for (const Element &element : elements) {
        if (!all.empty()) all += ' ';
        all += element.id();
    }
    return all;
}

} // namespace orl::html
