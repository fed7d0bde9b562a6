// Surgery on trees, copies, and who keeps whom alive.
#include "core.h"
#include "page.h"

#include <orl/html/string_builder.h>

#include <functional>
#include <thread>

namespace orl::html {
namespace {

const char *const missing = "Object must not be null";

/// A tree to operate on; the ids name its elements.
struct Subject {
    std::string html() const { return root.html(); }
    /// Every node's place is what its parent's list says.
    void expectExactPlaces() const {
        for (const Element &element : document.getAllElements()) {
            std::size_t place = 0;
            for (const Node &node : element.getChildNodes()) {
                EXPECT_EQ(node.siblingIndex(), place++);
                EXPECT_EQ(node.parent(), element);
            }
            EXPECT_EQ(element.childNodeSize(), place);
        }
    }

    Document document = plainPage("<div id=root><a id=a></a><b id=b></b><i id=i></i></div>");
    Element root = document.getElementById("root");
    const Element a = root.child(0), b = root.child(1), i = root.child(2);
};

class TreeTest : public testing::Test, protected Subject {};

TEST(PlaceTest, EveryWayToPutANode) {
    struct Case {
        const char *what;
        std::function<void(Subject &)> act;
        const char *names; ///< of the root's children then
    };
    const Node text = TextNode("t", "");
    const auto make = [](const char *name) { return Document("").createElement(name); };
    const std::vector<Case> cases = {
        {"append", [&](Subject &t) { t.root.appendChild(make("x")); }, "a b i x"},
        {"append a child", [&](Subject &t) { t.root.appendChild(t.a); }, "b i a"},
        {"append the last child", [&](Subject &t) { t.root.appendChild(t.i); }, "a b i"},
        {"prepend", [&](Subject &t) { t.root.prependChild(make("x")); }, "x a b i"},
        {"prepend a child", [&](Subject &t) { t.root.prependChild(t.i); }, "i a b"},
        {"prepend the first child", [&](Subject &t) { t.root.prependChild(t.a); }, "a b i"},
        {"before", [&](Subject &t) { t.b.before(make("x")); }, "a x b i"},
        {"before, of a later sibling", [&](Subject &t) { t.a.before(t.i); }, "i a b"},
        {"before, of an earlier sibling", [&](Subject &t) { t.i.before(t.a); }, "b a i"},
        {"before itself", [&](Subject &t) { t.b.before(t.b); }, "a b i"},
        {"after", [&](Subject &t) { t.b.after(make("x")); }, "a b x i"},
        {"after, of a later sibling", [&](Subject &t) { t.a.after(t.i); }, "a i b"},
        {"after, of an earlier sibling", [&](Subject &t) { t.i.after(t.a); }, "b i a"},
        {"after itself", [&](Subject &t) { t.b.after(t.b); }, "a b i"},
        {"after the next sibling's place", [&](Subject &t) { t.a.after(t.b); }, "a b i"},
        {"insert",
         [&](Subject &t) {
             t.root.insertChildren(1, {make("x"), make("y")});
         },
         "a x y b i"},
        {"insert at the end",
         [&](Subject &t) {
             t.root.insertChildren(-1, {make("x"), make("y")});
         },
         "a b i x y"},
        {"insert before the end", [&](Subject &t) { t.root.insertChildren(-2, {make("x")}); }, "a b x i"},
        {"insert children",
         [&](Subject &t) {
             t.root.insertChildren(0, {t.i, t.b});
         },
         "i b a"},
        {"insert a child further on", [&](Subject &t) { t.root.insertChildren(2, {t.a}); }, "b i a"},
        {"insert nothing", [&](Subject &t) { t.root.insertChildren(0, {}); }, "a b i"},
        {"add",
         [&](Subject &t) {
             t.root.addChildren({t.b, make("x"), t.a});
         },
         "i b x a"},
        {"new elements", [&](Subject &t) { t.root.appendElement("X").parent().prependElement("y"); },
         "y a b i X"},
        {"remove", [&](Subject &t) { t.b.remove(); }, "a i"},
        {"remove twice", [&](Subject &t) { (t.b.remove(), t.b.remove()); }, "a i"},
        {"remove a child", [&](Subject &t) { t.root.removeChild(t.i); }, "a b"},
        {"replace", [&](Subject &t) { t.b.replaceWith(make("x")); }, "a x i"},
        {"replace by a sibling", [&](Subject &t) { t.root.replaceChild(t.a, t.i); }, "i b"},
        {"replace by itself", [&](Subject &t) { t.b.replaceWith(t.b); }, "a b i"},
        {"move below another", [&](Subject &t) { t.i.setParentNode(t.b); }, "a b"},
        {"unwrap a leaf", [&](Subject &t) { EXPECT_FALSE(t.b.unwrap()); }, "a i"},
        {"unwrap",
         [&](Subject &t) {
             t.b.appendElement("x").parent().appendElement("y");
             EXPECT_EQ(t.b.unwrap().nodeName(), "x");
         },
         "a x y i"},
    };
    for (const Case &c : cases) {
        Subject fresh;
        c.act(fresh);
        std::string names;
        for (const Element &child : fresh.root.children())
            names += (names.empty() ? "" : " ") + child.tagName();
        EXPECT_EQ(names, c.names) << c.what;
        fresh.expectExactPlaces();
    }
}

TEST_F(TreeTest, FragmentsArePutInTheContextOfTheirParent) {
    b.before("1<u>2</u>").after("<s>3</s>4");
    EXPECT_EQ(html(), "<a id=\"a\"></a>1<u>2</u><b id=\"b\"></b><s>3</s>4<i id=\"i\"></i>");
    b.append("<p>5").prepend("6<q></q>");
    EXPECT_EQ(b.html(), "6<q></q><p>5</p>");
    b.html("<em>x</em>y");
    EXPECT_EQ(b.html(), "<em>x</em>y");
    b.html("");
    EXPECT_EQ(b.html(), "");
    const Element table = root.appendElement("table").appendElement("tbody");
    table.append("<tr><td>1</td></tr>");
    EXPECT_EQ(table.html(), "<tr><td>1</td></tr>");
    first(table, "td").after("<td>2<td>3");
    EXPECT_EQ(table.text(), "1 2 3");
    EXPECT_EQ(first(table, "td").html(), "1");
    expectExactPlaces();
}

TEST_F(TreeTest, Wrap) {
    EXPECT_EQ(b.wrap("<div class=w><span></span></div><u></u>t").outerHtml(),
              "<div class=\"w\"><span><b id=\"b\"></b></span><u></u>t</div>");
    EXPECT_EQ(b.parent().tagName(), "span");
    EXPECT_FALSE(b.wrap("only text"));
    EXPECT_FALSE(b.wrap("<!-- c --><p></p>"));
    EXPECT_EQ(html(),
              "<a id=\"a\"></a><div class=\"w\"><span><b id=\"b\"></b></span><u></u>t</div><i id=\"i\"></i>");
    EXPECT_EQ(failure([&] { b.wrap(""); }), "String must not be empty");
    EXPECT_EQ(TextNode(a.appendText("x").firstChild().record()).wrap("<b></b>").outerHtml(), "<b>x</b>");
    expectExactPlaces();
}

TEST_F(TreeTest, WhatCannotBeDoneFailsAndChangesNothing) {
    const Element loose = document.createElement("x");
    struct Case {
        const char *what;
        std::function<void()> act;
        const char *words;
    };
    const std::vector<Case> cases = {
        {"before nothing", [&] { b.before(Node()); }, missing},
        {"after without a parent", [&] { loose.after(a); }, missing},
        {"before without a parent", [&] { loose.before("<p>"); }, missing},
        {"replace with nothing", [&] { b.replaceWith(Node()); }, missing},
        {"replace without a parent", [&] { loose.replaceWith(a); }, missing},
        {"unwrap without a parent", [&] { loose.unwrap(); }, missing},
        {"wrap without a parent", [&] { loose.wrap("<p>"); }, missing},
        {"append nothing", [&] { b.appendChild(Node()); }, missing},
        {"remove another's child", [&] { b.removeChild(a); }, "Must be true"},
        {"remove a loose node", [&] { b.removeChild(loose); }, "Must be true"},
        {"replace another's child", [&] { b.replaceChild(a, i); }, "Must be true"},
        {"put into itself", [&] { b.appendChild(b); }, "Must be false"},
        {"put below itself", [&] { b.appendChild(root); }, "Must be false"},
        {"add one that cannot be",
         [&] {
             b.addChildren({a, root});
         },
         "Must be false"},
        {"insert one that is missing",
         [&] {
             root.insertChildren(0, {i, Node()});
         },
         missing},
        {"put into a text", [&] { TextNode("x", "").addChildren({a}); }, "Must be true"},
        {"before the start", [&] { root.insertChildren(-5, {loose}); }, "Insert position out of bounds."},
        {"past the end", [&] { root.insertChildren(4, {loose}); }, "Insert position out of bounds."},
        {"an element without a name", [&] { root.appendElement(" "); }, "String must not be empty"},
        {"negative split", [&] { TextNode("x", "").splitText(-1); }, "Split offset must be not be negative"},
        {"split at the end", [&] { TextNode("x", "").splitText(1); },
         "Split offset must not be greater than current text length"},
    };
    const std::string before = html();
    for (const Case &c : cases) {
        EXPECT_EQ(failure(c.act), c.words) << c.what;
        EXPECT_EQ(html(), before) << c.what;
    }
    expectExactPlaces();
}

TEST_F(TreeTest, SplitText) {
    root.text("a\u00e4\U0001f600b");
    const TextNode head = root.textNodes().at(0);
    const TextNode tail = head.splitText(2);
    EXPECT_EQ(head.getWholeText(), "a\u00e4");
    EXPECT_EQ(tail.getWholeText(), "\U0001f600b");
    EXPECT_EQ(head.nextSibling(), tail);
    EXPECT_EQ(head.splitText(0).getWholeText(), "a\u00e4");
    EXPECT_EQ(head.getWholeText(), "");
    EXPECT_EQ(root.childNodeSize(), 3U);
    const TextNode loose("xy", "http://h/");
    EXPECT_EQ(loose.splitText(1).getBaseUri(), "http://h/");
    EXPECT_FALSE(loose.nextSibling());
}

TEST_F(TreeTest, AnEmptiedElementsHeldChildGoesOnNamingIt) {
    root.empty();
    EXPECT_EQ(html(), "");
    EXPECT_EQ(b.parent(), root);
    EXPECT_EQ(b.ownerDocument(), document);
    EXPECT_FALSE(b.nextSibling());
    EXPECT_EQ(failure([&] { b.nextElementSibling(); }), missing) << "it is in nobody's list";
    b.remove();
    EXPECT_FALSE(b.parent());
    root.appendChild(a);
    EXPECT_EQ(html(), "<a id=\"a\"></a>");
    root.remove();
    root = Element();
    EXPECT_FALSE(i.parent()) << "the old parent has gone";
    EXPECT_FALSE(a.parent());
}

// ---- Leaves ----

TEST(LeafTest, TextMovesIntoItsAttributesWhenSomebodyAsks) {
    const TextNode node("a  b", "http://h/");
    EXPECT_EQ(node.text(), "a b");
    EXPECT_EQ(node.attr("TEXT"), "a  b");
    EXPECT_EQ(node.getAttributes().size(), 1U);
    node.attr("text", "new");
    node.attr("x", "y");
    EXPECT_EQ(node.getWholeText(), "new");
    node.text("n2");
    EXPECT_EQ(node.attr("text"), "n2");
    EXPECT_EQ(node.outerHtml(), "n2");
    EXPECT_TRUE(node.hasAttr("x"));
    const TextNode copy = node.copy();
    node.getAttributes().asList().at(0).setValue("shared");
    EXPECT_EQ(copy.getWholeText(), "shared");
    copy.text("own");
    EXPECT_EQ(node.getWholeText(), "shared");
    node.removeAttr("text");
    EXPECT_EQ(node.getWholeText(), "");
    EXPECT_TRUE(node.isBlank());
    EXPECT_EQ(node.absUrl("x"), "http://h/y");
}

TEST(LeafTest, HowLeavesPrint) {
    struct Case {
        const char *what;
        Node node;
        const char *html, *xml;
    };
    const XmlDeclaration declaration("xml", "", false), instruction("DOCTYPE", "", true);
    declaration.attr("version", "1.0");
    instruction.attr("a", "b");
    const Case cases[] = {
        {"text", TextNode("<", ""), "&lt;", "&lt;"},
        {"data", DataNode("<&", ""), "<&", "<&"},
        {"comment", Comment(" <c> ", ""), "<!-- <c> -->", "<!-- <c> -->"},
        {"plain doctype", DocumentType("html", "", "", ""), "<!doctype html>", "<!DOCTYPE html>"},
        {"nameless doctype", DocumentType("", "", "", ""), "<!doctype>", "<!DOCTYPE>"},
        {"public doctype", DocumentType("html", "PUBLIC", "-//X", "http://x", ""),
         "<!DOCTYPE html PUBLIC \"-//X\" \"http://x\">", "<!DOCTYPE html PUBLIC \"-//X\" \"http://x\">"},
        {"doctype without keyword", DocumentType("html", "-//X", "", ""), "<!DOCTYPE html \"-//X\">",
         "<!DOCTYPE html \"-//X\">"},
        {"declaration", declaration, "<?xml version=\"1.0\"?>", "<?xml version=\"1.0\"?>"},
        {"instruction", instruction, "<!DOCTYPE a=\"b\"!>", "<!DOCTYPE a=\"b\"!>"},
    };
    for (const Case &c : cases) {
        const Document document("");
        document.outputSettings().prettyPrint(false);
        document.appendChild(c.node);
        EXPECT_EQ(c.node.outerHtml(), c.html) << c.what;
        EXPECT_EQ(c.node.copy().outerHtml(),
                  std::string(c.what == std::string("comment") ? "\n" : "") + c.html);
        document.outputSettings().syntax(OutputSettings::Syntax::xml);
        EXPECT_EQ(c.node.outerHtml(), c.xml) << c.what;
    }
    EXPECT_EQ(declaration.getWholeDeclaration(), "version=\"1.0\"");
    EXPECT_EQ(declaration.name(), "xml");
    EXPECT_EQ(Comment("c", "").attr("comment"), "c");
    EXPECT_EQ(Comment("c", "").getData(), "c");
    EXPECT_EQ(DataNode("d", "").setWholeData("e").attr("data"), "e");
    EXPECT_EQ(DocumentType("n", "p", "s", "").attr("publicId"), "p");
    EXPECT_FALSE(DocumentType("n", "p", "s", "").hasAttr("pubsyskey"));
    const char *const names[] = {"#text",    "#data",    "#comment",     "#doctype",    "#doctype",
                                 "#doctype", "#doctype", "#declaration", "#declaration"};
    for (std::size_t k = 0; k < std::size(cases); ++k)
        EXPECT_EQ(cases[k].node.nodeName(), names[k]);
    EXPECT_FALSE(cases[0].node.as<Comment>());
    EXPECT_TRUE(cases[0].node.is<TextNode>());
}

// ---- Walks and copies ----

class Trace : public NodeVisitor {
public:
    void head(const Node &node, int depth) override { text += "<" + node.nodeName() + std::to_string(depth); }
    void tail(const Node &node, int depth) override {
        text += ">";
        if (node.nodeName() == stopAt)
            throw Exception::Error(ExceptionType::IOException, std::to_string(depth));
    }
    std::string text, stopAt;
};

TEST(WalkTest, HeadsAndTailsWithDepths) {
    const Document document = page("<div><p>a<b></b></p><i></i></div><u></u>");
    Trace trace;
    first(document, "div").traverse(trace);
    EXPECT_EQ(trace.text, "<div0<p1<#text2><b2>><i1>>");
    trace.text.clear();
    Elements{first(document, "b"), first(document, "u")}.traverse(trace);
    EXPECT_EQ(trace.text, "<b0><u0>");
    trace = Trace();
    trace.stopAt = "b";
    EXPECT_EQ(failure([&] { document.traverse(trace); }, ExceptionType::IOException), "5");
    EXPECT_TRUE(trace.text.ends_with("<b5>"));
}

TEST(CopyTest, ADeepCopyIsItsOwnTree) {
    const Document document =
        plainPage("<div id=d class=c><p>a<!--c--><script>s</script></p></div>", "http://h/");
    const Element div = first(document, "div"), copy = div.copy();
    document.outputSettings().prettyPrint(true);
    EXPECT_TRUE(copy.hasSameValue(div));
    EXPECT_FALSE(copy == div);
    EXPECT_EQ(copy.hashValue(), first(document.copy(), "div").hashValue());
    EXPECT_NE(copy.hashValue(), div.copy().attr("id", "e").hashValue());
    document.outputSettings().prettyPrint(false);
    EXPECT_FALSE(copy.parent());
    EXPECT_EQ(copy.siblingIndex(), 0U);
    EXPECT_EQ(copy.getBaseUri(), "http://h/");
    copy.child(0).empty();
    copy.attr("id", "x").addClass("y").attr("new", "1");
    div.removeAttr("class");
    EXPECT_EQ(div.outerHtml(), "<div id=\"d\"><p>a<!--c--><script>s</script></p></div>");
    EXPECT_EQ(copy.outerHtml(), "<div id=\"x\" class=\"c y\" new=\"1\">\n <p></p>\n</div>");
    EXPECT_EQ(div.childNodesCopy().at(0).outerHtml(), "<p>a\n <!--c--><script>s</script></p>");

    const Element second = div.copy();
    div.getAttributes().asList().at(0).setValue("both");
    EXPECT_EQ(second.id(), "both") << "the attributes of a copy are the original's";
    EXPECT_EQ(copy.id(), "x") << "unless they were replaced";
}

TEST(CopyTest, DocumentsAndForms) {
    Document document = page("<form id=f><input name=a></form>", "http://h/");
    document.outputSettings().prettyPrint(false);
    document.quirksMode(QuirksMode::quirks);
    const Document copy = document.copy();
    document.outputSettings().prettyPrint(true);
    EXPECT_FALSE(copy.outputSettings().prettyPrint());
    EXPECT_EQ(copy.quirksMode(), QuirksMode::quirks);
    EXPECT_EQ(copy.location(), "http://h/");
    const FormElement form = document.getElementById("f").as<FormElement>();
    const FormElement formCopy = copy.getElementById("f").as<FormElement>();
    ASSERT_TRUE(form);
    ASSERT_TRUE(formCopy);
    EXPECT_EQ(formCopy.elements(), form.elements()) << "the original's controls";
    form.addElement(document.createElement("button"));
    EXPECT_EQ(formCopy.elements().size(), 2U);
    EXPECT_EQ(document.getElementsByTag("form").forms().size(), 1U);
}

// ---- Lifetimes ----

TEST(LifetimeTest, AHeldNodeLosesAParentThatNobodyHolds) {
    Element p, b;
    {
        const Document document = page("<div><p>a<b>c</b></p></div>");
        p = first(document, "p");
        b = first(document, "b");
        EXPECT_EQ(p.parent().tagName(), "div");
    }
    EXPECT_FALSE(p.parent());
    EXPECT_FALSE(p.ownerDocument());
    EXPECT_FALSE(p.nextSibling());
    EXPECT_EQ(p.text(), "ac");
    EXPECT_EQ(b.parent(), p);
    p = Element();
    EXPECT_FALSE(b.parent());
    EXPECT_EQ(b.outerHtml(), "<b>c</b>");
}

TEST(LifetimeTest, NodesMoveBetweenDocuments) {
    Document from = page("<p id=p>one</p>", "http://from/"), to = page("<div></div>", "http://to/");
    const Element p = from.getElementById("p");
    first(to, "div").appendChild(p);
    EXPECT_EQ(p.ownerDocument(), to);
    EXPECT_EQ(p.getBaseUri(), "http://from/");
    from = Document();
    EXPECT_EQ(to.body().text(), "one");
    const Element added = p.appendElement("b");
    EXPECT_EQ(added.getBaseUri(), "http://from/");
    EXPECT_EQ(first(to, "div").appendElement("i").getBaseUri(), "http://to/");
    to = Document();
    EXPECT_FALSE(p.parent());
    EXPECT_EQ(p.html(), "one<b></b>");
}

TEST(LifetimeTest, EverythingIsGivenBack) {
    const std::size_t before = core::spaceInUse();
    {
        std::vector<Element> kept;
        for (int round = 0; round < 20; ++round) {
            const Document document = page("<form><input><div class=x><p>1<p>2</div></form>");
            kept.push_back(document.getElementsByTag("p").last());
            kept.push_back(document.body().copy());
            kept.back().appendChild(kept[std::size_t(round)]);
            const Tag tag = document.createElement("x-y").tag();
            const Attributes list = document.body().attr("a", "b").getAttributes().clone();
        }
        EXPECT_GT(core::spaceInUse(), before);
    }
    EXPECT_EQ(core::spaceInUse(), before);
}

TEST(LifetimeTest, NodesThatComeAndGoTakeNoMoreRoom) {
    const Document document = page("<div></div>");
    const Element div = first(document, "div");
    const auto cycle = [&div] {
        for (int i = 0; i < 1000; ++i)
            div.appendElement("p").appendElement("b");
        div.empty();
    };
    cycle();
    const std::size_t before = core::spaceInUse();
    for (int round = 0; round < 50; ++round)
        cycle();
    EXPECT_EQ(core::spaceInUse(), before);
}

TEST(LifetimeTest, ManyLooseElementsTakeLittleRoom) {
    const std::size_t before = core::spaceInUse();
    const Document document = page("<div></div>");
    for (int i = 0; i < 10'000; ++i)
        first(document, "div").appendChild(Element(Tag::valueOf("p"), ""));
    EXPECT_LT(core::spaceInUse() - before, 10'000U * 600);
    EXPECT_EQ(document.getElementsByTag("p").size(), 10'000U);
}

TEST(LifetimeTest, MoreHandlesThanANodeCounts) {
    const Document document = page("<p>x</p>");
    const Element p = first(document, "p");
    std::vector<Element> handles(70'000, p);
    p.remove();
    handles.resize(3);
    EXPECT_EQ(p.text(), "x");
    handles.assign(66'000, p);
    handles.clear();
    EXPECT_EQ(p.outerHtml(), "<p>x</p>");
}

/// Lists as searches give them, and the same after each way in which a list may come about.
std::vector<Elements> listsOf(const Element &root) {
    Elements found = root.select("p, b");
    Elements copied = found, moved = found, assigned, added = found;
    Elements taken = std::move(moved);
    assigned = root.select("i");
    assigned = taken;
    moved = assigned;
    added.add(root.getElementsByTag("i").first());
    return {std::move(found), copied, taken, assigned, moved, added, Elements(copied.array())};
}

TEST(LifetimeTest, AListKeepsItsElementsAndNotWhatIsAboveThem) {
    std::vector<Elements> lists;
    {
        const Document document = page("<div><p>1<b>2</b></div><p>3<b>4<i></i></b></p>");
        lists = listsOf(document);
        for (const Elements &list : lists)
            EXPECT_EQ(list.first().parent(), first(document, "div"));
    }
    for (const Elements &list : lists) {
        EXPECT_EQ(Elements({list[0], list[1], list[2], list[3]}).text(), "12 2 34 4");
        EXPECT_FALSE(list[0].parent());
        EXPECT_EQ(list[1].parent(), list[0]);
        EXPECT_EQ(list[3].parent(), list[2]);
    }
    EXPECT_EQ(lists.back(), lists.front());
    const Element b = lists.front()[1];
    lists.clear();
    EXPECT_FALSE(b.parent());
    EXPECT_EQ(b.text(), "2");
}

TEST(LifetimeTest, AListKeepsWhatLeavesTheTree) {
    const Document document = page("<div><p>1<p>2<p>3</div>");
    const Elements list = document.getElementsByTag("p"), copy = list;
    for (const Element &p : list)
        p.remove();
    EXPECT_EQ(copy.text(), "1 2 3");
    const Elements more = document.body().append("<b>4</b><b>5</b>").getElementsByTag("b");
    document.body().empty();
    EXPECT_EQ(more.text(), "4 5");
    EXPECT_EQ(more[0].parent(), document.body());
    const Elements below = more[1].html("<i>6</i>").select("i");
    more.empty();
    EXPECT_EQ(more.text() + below.text(), "6");
    EXPECT_EQ(below.first().parent(), more[1]);
    Element inner;
    {
        const Elements gone = document.body().html("<u><s>7</s></u>").select("u");
        for (const Element &u : gone)
            u.remove();
        inner = gone[0].child(0);
        EXPECT_EQ(inner.parent(), gone.begin()->child(0).parent());
    }
    EXPECT_FALSE(inner.parent());
}

TEST(LifetimeTest, ListsOutliveTheirTreesAndMergeWithThem) {
    const std::size_t before = core::spaceInUse();
    {
        Elements from, to, loose;
        {
            const Document one = page("<p>1<p>2"), two = page("<b>3</b><b>4</b>");
            from = one.select("p");
            to = two.select("b");
            loose = Element(Tag::valueOf("u"), "").text("5").getAllElements();
            two.body().appendChild(from[1]);
            EXPECT_EQ(from[1].parent(), two.body());
        }
        EXPECT_EQ(from.text() + to.text() + loose.text(), "1 23 45");
        to = from;
        from = loose;
        EXPECT_EQ(to.text() + from.text(), "1 25");
        EXPECT_EQ(Elements({to[0], from[0]}).select("*").text(), "1 5");
    }
    EXPECT_EQ(core::spaceInUse(), before);
}

TEST(LifetimeTest, AFormKeepsItsControls) {
    Document document = page("<form><input name=a><input name=b></form>");
    FormElement form = document.getElementsByTag("form").forms().at(0);
    document.getElementsByTag("input").first().remove();
    EXPECT_EQ(form.elements().first().attr("name"), "a");
    document = Document();
    EXPECT_EQ(form.elements().size(), 2U);
    const Element b = form.elements().last();
    form = FormElement();
    EXPECT_EQ(b.attr("name"), "b");
    EXPECT_FALSE(b.parent());
}

TEST(LifetimeTest, TreesOfDifferentThreadsAreIndependent) {
    const std::size_t before = core::spaceInUse();
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([thread] {
            for (int round = 0; round < 200; ++round) {
                const Document document =
                    page("<div><p class=x data-new" + std::to_string(round) + ">1</div>");
                const Element p = first(document, "p");
                for (int i = 0; i < 20; ++i)
                    p.appendChild(Element(Tag::valueOf("u-" + std::to_string(thread)), ""));
                ASSERT_EQ(document.getElementsByTag("u-" + std::to_string(thread)).size(), 20U);
                ASSERT_EQ(document.copy().text(), "1");
            }
        });
    }
    Document handedOver = page("<p>a</p>");
    threads.emplace_back([document = std::move(handedOver)]() mutable { document.body().append("<p>b"); });
    threads.clear();
    EXPECT_EQ(core::spaceInUse(), before);
}

// ---- Depth and breadth ----

/// A tree of a million levels, the deepest of which holds a text.
Document deepDocument() {
    constexpr int levels = 1'000'000;
    core::Arena *arena = core::Arena::create(1);
    core::NodeRec *node = arena->newDocument("");
    const Document document(node);
    for (int level = 0; level < levels; ++level) {
        core::NodeRec *child = arena->newElement(core::Kind::Element, core::tagRec(core::TagId::Div));
        core::append(node, child);
        node = child;
    }
    core::append(node, arena->newText("deep"));
    document.outputSettings().prettyPrint(false);
    return document;
}

TEST(DepthTest, AMillionLevels) {
    Document document = deepDocument();
    EXPECT_EQ(document.text(), "deep");
    EXPECT_EQ(document.ownText(), "");
    EXPECT_EQ(document.outerHtml().size(), 1'000'000U * 11 + 4);
    const Elements all = document.getElementsByTag("div");
    ASSERT_EQ(all.size(), 1'000'000U);
    EXPECT_EQ(all.last().ownerDocument(), document);
    EXPECT_EQ(all.last().parents().size(), 1'000'000U);
    document.setBaseUri("http://h/");
    EXPECT_EQ(all.last().getBaseUri(), "http://h/");
    Element copy = document.child(0).copy();
    EXPECT_EQ(copy.text(), "deep");
    const Element kept = all[500'000];
    document = Document();
    EXPECT_EQ(kept.text(), "deep");
    copy.empty();
    EXPECT_EQ(copy.outerHtml(), "<div></div>");
}

TEST(DepthTest, DestroyingPartsOfADeepTree) {
    Document document = deepDocument();
    Element kept = document.getElementsByTag("div").get(999'000);
    document.child(0).remove();
    EXPECT_EQ(kept.parents().size(), 0U);
    EXPECT_EQ(kept.getElementsByTag("div").size(), 1'000U);
}

TEST(DepthTest, RemovingEachOfAMillionChildrenFromTheFront) {
    const Document document("");
    const Element list = document.appendElement("ul");
    core::Arena &arena = core::arenaOf(list.record());
    for (int i = 0; i < 1'000'000; ++i)
        core::append(list.record(), arena.newElement(core::Kind::Element, core::tagRec(core::TagId::Li)));
    std::size_t left = list.childNodeSize();
    ASSERT_EQ(left, 1'000'000U);
    while (const Node item = list.firstChild()) {
        ASSERT_EQ(item.siblingIndex(), 0U);
        ASSERT_EQ(list.lastChild().siblingIndex(), --left);
        item.remove();
    }
}

} // namespace
} // namespace orl::html
