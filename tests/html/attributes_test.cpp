// Attribute lists and tags.
#include "page.h"

#include <orl/html/attributes.h>
#include <orl/html/parse_settings.h>
#include <orl/html/string_builder.h>
#include <orl/html/tag.h>

namespace orl::html {
namespace {

const char *const emptyText = "String must not be empty";

TEST(AttributesTest, PutComparesExactlyAndKeepsPlaces) {
    Attributes list;
    list.put("A", "1");
    list.put("a", "2");
    list.put("b", "3");
    list.put("A", "4");
    EXPECT_EQ(list.html(), " A=\"4\" a=\"2\" b=\"3\"");
    EXPECT_EQ(list.getIgnoreCase("a"), "4") << "the first one";
    EXPECT_EQ(list.get("a"), "2");
    EXPECT_EQ(list.get("B"), "");
    EXPECT_TRUE(list.hasKey("b"));
    EXPECT_FALSE(list.hasKey("B"));
    EXPECT_TRUE(list.hasKeyIgnoreCase("B"));
    list.removeIgnoreCase("B");
    list.remove("A");
    EXPECT_EQ(list.toString(), " a=\"2\"");
    list.put("a", false);
    EXPECT_EQ(list.size(), 0U);
    list.put("foo", true);
    EXPECT_EQ(list.html(), " foo");
}

TEST(AttributesTest, KeysOfAnyLetters) {
    Attributes list;
    list.put("\u00c4rger", "1");
    list.put("data-Foo", "2");
    EXPECT_EQ(list.getIgnoreCase("\u00e4RGER"), "1");
    EXPECT_EQ(list.getIgnoreCase("DATA-FOO"), "2");
    list.lowercaseAllKeys();
    EXPECT_EQ(list.html(), " \u00e4rger=\"1\" data-foo=\"2\"");
}

TEST(AttributesTest, EmptyKeysFailWhereAKeyIsNeeded) {
    const Attributes list;
    EXPECT_EQ(failure([&] { list.put("", "x"); }), emptyText);
    EXPECT_EQ(failure([&] { list.put(" ", "x"); }), emptyText);
    EXPECT_EQ(failure([&] { list.put("", true); }), emptyText);
    EXPECT_EQ(failure([&] { list.remove(""); }), emptyText);
    EXPECT_EQ(failure([&] { list.removeIgnoreCase(""); }), emptyText);
    EXPECT_EQ(failure([&] { list.getIgnoreCase(""); }), emptyText);
    EXPECT_EQ(failure([&] { Attribute("", "x"); }), emptyText);
    EXPECT_EQ(failure([&] { Attribute("a", "x").setKey(" "); }), emptyText);
    EXPECT_EQ(list.get(""), "");
    EXPECT_FALSE(list.hasKey(""));
    EXPECT_FALSE(list.hasKeyIgnoreCase(""));
}

TEST(AttributesTest, ValuesCollapseInHtmlWhereTheyMay) {
    struct Case {
        const char *key, *value, *html, *xml;
    };
    const Case cases[] = {
        {"disabled", "disabled", " disabled", " disabled=\"disabled\""},
        {"CHECKED", "Checked", " CHECKED", " CHECKED=\"Checked\""},
        {"checked", "", " checked", " checked=\"\""},
        {"checked", "no", " checked=\"no\"", " checked=\"no\""},
        {"id", "", " id=\"\"", " id=\"\""},
        {"id", "id", " id=\"id\"", " id=\"id\""},
        {"a", "<\"&'>\u00a0\u00e4", " a=\"<&quot;&amp;'>&nbsp;\u00e4\"", " a=\"<&quot;&amp;'>&nbsp;\u00e4\""},
    };
    OutputSettings xml;
    xml.syntax(OutputSettings::Syntax::xml);
    for (const Case &c : cases) {
        Attributes list;
        list.put(c.key, c.value);
        EXPECT_EQ(list.html(), c.html);
        StringBuilder text;
        list.html(text, xml);
        EXPECT_EQ(text.toString(), c.xml);
        EXPECT_EQ(" " + Attribute(c.key, c.value).toString(), c.html);
    }
}

TEST(AttributesTest, ABooleanAttributeStaysOneWithAValue) {
    const BooleanAttribute attribute("foo");
    EXPECT_EQ(attribute.html(), "foo");
    EXPECT_EQ(attribute.setValue("x"), "");
    EXPECT_EQ(attribute.html(), "foo=\"x\"");
    EXPECT_EQ(attribute.setValue("FOO"), "x");
    EXPECT_EQ(attribute.html(), "foo");
    attribute.setValue("");
    EXPECT_EQ(attribute.html(), "foo");
    EXPECT_TRUE(attribute.isBooleanAttribute());
    EXPECT_FALSE(Attribute("foo", "").isBooleanAttribute());
    EXPECT_EQ(attribute, Attribute("foo", "")) << "value and key decide";
}

TEST(AttributesTest, OneAttribute) {
    const Attribute attribute(" Key ", "value");
    EXPECT_EQ(attribute.getKey(), "Key");
    EXPECT_EQ(attribute.hashCode(), Attribute("Key", "value").hashCode());
    EXPECT_NE(attribute.hashCode(), Attribute("value", "Key").hashCode());
    EXPECT_FALSE(attribute == Attribute("key", "value"));
    const Attribute same = attribute, other = attribute.clone();
    same.setValue("new");
    same.setKey(" k2 ");
    EXPECT_EQ(attribute.html(), "k2=\"new\"");
    EXPECT_EQ(other.html(), "Key=\"value\"");
    EXPECT_TRUE(Attribute("data-x", "").isDataAttribute());
    EXPECT_FALSE(Attribute("data-", "").isDataAttribute());
    EXPECT_FALSE(Attribute("DATA-X", "").isDataAttribute());
    EXPECT_EQ(Attribute::createFromEncoded("k", "&lt;&amp;copy").getValue(), "<&copy");
}

TEST(AttributesTest, Dataset) {
    Attributes list;
    list.put("data-", "none");
    list.put("data-one", "1");
    list.put("id", "x");
    list.put("data-Two", "2");
    EXPECT_THAT(list.dataset(), testing::ElementsAre(testing::Pair("Two", "2"), testing::Pair("one", "1")));
    const Attribute clash("data-two", "3");
    list.put(clash);
    clash.setKey("data-one");
    EXPECT_EQ(failure([&] { list.dataset(); }), "Duplicate values for key: 'one'");
}

TEST(AttributesTest, ACloneHasTheSameAttributesInAListOfItsOwn) {
    Attributes list;
    for (const char *key : {"x", "y", "z"})
        list.put(key, "0");
    Attributes clone = list.clone(), second = clone.clone();
    clone.put("new", "1");
    clone.put("y", "replaced");
    list.remove("x");
    list.asList().at(1).setValue("seen");
    clone.asList().at(1).setValue("not seen");
    EXPECT_EQ(list.html(), " y=\"0\" z=\"seen\"");
    EXPECT_EQ(clone.html(), " x=\"0\" y=\"not seen\" z=\"seen\" new=\"1\"");
    EXPECT_EQ(second.html(), " x=\"0\" y=\"0\" z=\"seen\"");
    second.asList().at(0).setKey("first");
    EXPECT_EQ(clone.html(), " first=\"0\" y=\"not seen\" z=\"seen\" new=\"1\"");
    EXPECT_FALSE(list == clone);
    EXPECT_EQ(list.clone(), list);
}

TEST(AttributesTest, AnAttributeOutlivesItsPlaceInTheList) {
    Element element = page("<p a=1 b=2>").body().child(0);
    const Attribute a = *element.getAttributes().begin();
    element.removeAttr("a").attr("c", "3");
    EXPECT_EQ(a.html(), "a=\"1\"");
    element.getAttributes().put(a);
    a.setValue("again");
    EXPECT_EQ(element.getAttributes().html(), " b=\"2\" c=\"3\" a=\"again\"");
    element = Element();
    EXPECT_EQ(a.getValue(), "again");
}

TEST(AttributesTest, ManyAttributes) {
    Attributes list;
    for (int i = 0; i < 1000; ++i)
        list.put("k" + std::to_string(i), std::to_string(i));
    const Attributes clone = list.clone();
    list.put("k999", "last");
    clone.asList().at(500).setValue("both");
    for (int i = 0; i < 900; ++i)
        list.remove("k" + std::to_string(i));
    EXPECT_EQ(list.size(), 100U);
    EXPECT_EQ(list.get("k999"), "last");
    EXPECT_EQ(clone.size(), 1000U);
    EXPECT_EQ(clone.get("k999"), "999");
    EXPECT_EQ(clone.get("k500"), "both");
    list.addAll(clone);
    EXPECT_EQ(list.size(), 1000U);
    EXPECT_EQ(list.get("k999"), "999");
}

TEST(TagTest, TheRegistryIsMadeOfItsTables) {
    struct Case {
        const char *name;
        bool block, formatAsBlock, canContainBlock, data, empty, selfClosing, preserves, listed, submittable;
    };
    const Case cases[] = {
        {"div", true, true, true, false, false, false, false, false, false},
        {"p", true, false, true, false, false, false, false, false, false},
        {"pre", true, false, true, false, false, false, true, false, false},
        {"script", true, false, true, false, false, false, false, false, false},
        {"meta", true, true, false, false, true, true, false, false, false},
        {"br", false, false, false, false, true, true, false, false, false},
        {"span", false, false, false, false, false, false, false, false, false},
        {"input", false, false, false, false, true, true, false, true, true},
        {"button", false, false, false, false, false, false, false, true, false},
        {"textarea", false, false, false, false, false, false, true, true, true},
        {"fieldset", true, true, true, false, false, false, false, true, false},
        {"center", false, true, true, false, false, false, false, false, false},
        {"anything", false, true, true, false, false, false, false, false, false},
    };
    for (const Case &c : cases) {
        const Tag tag = Tag::valueOf(c.name, ParseSettings::htmlDefault);
        EXPECT_EQ(tag.isBlock(), c.block) << c.name;
        EXPECT_EQ(tag.isInline(), !c.block) << c.name;
        EXPECT_EQ(tag.formatAsBlock(), c.formatAsBlock) << c.name;
        EXPECT_EQ(tag.canContainBlock(), c.canContainBlock) << c.name;
        EXPECT_EQ(tag.isData(), c.data) << c.name;
        EXPECT_EQ(tag.isEmpty(), c.empty) << c.name;
        EXPECT_EQ(tag.isSelfClosing(), c.selfClosing) << c.name;
        EXPECT_EQ(tag.preserveWhitespace(), c.preserves) << c.name;
        EXPECT_EQ(tag.isFormListed(), c.listed) << c.name;
        EXPECT_EQ(tag.isFormSubmittable(), c.submittable) << c.name;
    }
    EXPECT_TRUE(Tag::isKnownTag("bdi"));
    EXPECT_FALSE(Tag::isKnownTag("center"));
    EXPECT_FALSE(Tag::isKnownTag("DIV"));
    EXPECT_FALSE(Tag::isKnownTag("#root"));
}

TEST(TagTest, NamesAreNormalisedUnlessCaseIsKept) {
    EXPECT_TRUE(Tag::valueOf(" DIV ", ParseSettings::htmlDefault).isKnownTag());
    const Tag kept = Tag::valueOf(" DIV ", ParseSettings::preserveCase);
    EXPECT_EQ(kept.getName(), "DIV");
    EXPECT_EQ(kept.getNameNormal(), "div");
    EXPECT_FALSE(kept.isKnownTag());
    EXPECT_FALSE(kept.isBlock());
    EXPECT_EQ(failure([] { Tag::valueOf(" ", ParseSettings::htmlDefault); }), emptyText);
}

TEST(TagTest, EachUseOfAnUnknownTagIsItsOwn) {
    Tag one = Tag::valueOf("foo"), two = Tag::valueOf("foo");
    EXPECT_EQ(one, two);
    EXPECT_EQ(one.hashValue(), two.hashValue());
    one.setSelfClosing();
    EXPECT_TRUE(one.isSelfClosing());
    EXPECT_FALSE(two.isSelfClosing());
    EXPECT_FALSE(one == two);
    EXPECT_EQ(Element(one, "").outerHtml(), "<foo />");
    EXPECT_EQ(Element(two, "").outerHtml(), "<foo></foo>");
    EXPECT_FALSE(Tag::valueOf("div").setSelfClosing().isSelfClosing()) << "the registry is only read";
}

} // namespace
} // namespace orl::html
