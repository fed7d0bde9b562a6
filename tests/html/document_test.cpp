// Documents: head, body, title, normal form, encodings.
#include "page.h"

namespace orl::html {
namespace {

TEST(DocumentTest, TheUsualParts) {
    const Document document = page("<title> a \n b </title><base href=http://other/><p>x", "http://h/");
    EXPECT_EQ(document.title(), "a b");
    EXPECT_EQ(document.location(), "http://h/");
    EXPECT_EQ(document.getBaseUri(), "http://other/");
    EXPECT_EQ(document.nodeName(), "#document");
    EXPECT_EQ(document.tagName(), "#root");
    EXPECT_EQ(document.body().text(), "x");
    document.title("<t>").text("new");
    EXPECT_EQ(document.title(), "<t>");
    EXPECT_EQ(document.body().html(), "new");
    EXPECT_EQ(document.createElement("X").outerHtml(), "<X></X>");
    EXPECT_EQ(document.createElement("x").getBaseUri(), "http://other/");
}

TEST(DocumentTest, AnEmptyDocumentHasNoParts) {
    const Document document("http://h/");
    EXPECT_FALSE(document.body());
    EXPECT_FALSE(document.head());
    EXPECT_EQ(document.title(), "");
    document.title("x").text("y");
    EXPECT_EQ(document.outerHtml(), "");
    EXPECT_EQ(document.quirksMode(), QuirksMode::noQuirks);
    const Document shell = Document::createShell("http://h/");
    shell.outputSettings().prettyPrint(false);
    EXPECT_EQ(shell.title("t").outerHtml(), "<html><head><title>t</title></head><body></body></html>");
}

TEST(DocumentTest, Normalise) {
    struct Case {
        const char *what, *before, *after;
    };
    const Case cases[] = {
        {"nothing", "", "<html><head></head><body></body></html>"},
        {"text in the head", "<html><head>x<title></title></head><body>y</body></html>",
         "<html><head><title></title></head><body>x y</body></html>"},
        {"text everywhere", "1<html>2<head>3</head> <body>4</body>5</html>6",
         "<html><head></head> <body>1 6 2 5 3 4</body></html>"},
        {"two of each", "<html><head><a></a></head><head><b></b></head><body>1</body><body>2</body></html>",
         "<html><head><a></a><b></b></head><body>12</body></html>"},
        {"parts in the wrong place", "<html></html><head></head><div><body>1</body></div>",
         "<html><head></head><body>1</body></html><div></div>"},
    };
    for (const Case &c : cases) {
        const Document document = Parser::xmlParser().parseInput(c.before, "");
        document.outputSettings().prettyPrint(false);
        EXPECT_EQ(document.normalise().outerHtml(), c.after) << c.what;
    }
}

TEST(DocumentTest, CharsetIsDeclaredInTheHead) {
    const Document document = plainPage("<meta name=Charset content=x><p>\u20ac");
    document.charset("latin1");
    EXPECT_EQ(document.charset().name(), "ISO-8859-1");
    EXPECT_EQ(document.head().html(), "<meta charset=\"ISO-8859-1\">");
    EXPECT_EQ(document.body().html(), "<p>&#x20ac;</p>");
    document.charset(TextEncoding::utf8());
    EXPECT_EQ(document.head().html(), "<meta charset=\"UTF-8\">");
    EXPECT_TRUE(document.updateMetaCharsetElement());

    const Document untouched = plainPage("<p>");
    untouched.outputSettings().charset("ascii");
    untouched.ensureMetaCharsetElement();
    EXPECT_EQ(untouched.head().html(), "");
}

TEST(DocumentTest, CharsetIsDeclaredAtTheStartOfXml) {
    struct Case {
        const char *before, *after;
    };
    for (const Case &c : {Case{"<x />", "<?xml version=\"1.0\" encoding=\"UTF-8\"?><x />"},
                          {"<?xml encoding=\"x\"?><x />", "<?xml encoding=\"UTF-8\" version=\"1.0\"?><x />"},
                          {"<?xml version=\"1.1\"?><x />", "<?xml version=\"1.1\" encoding=\"UTF-8\"?><x />"},
                          {"<?other?><x />", "<?xml version=\"1.0\" encoding=\"UTF-8\"?><?other?><x />"}}) {
        const Document document = Parser::xmlParser().parseInput(c.before, "");
        document.outputSettings().prettyPrint(false).syntax(OutputSettings::Syntax::xml);
        document.charset("UTF-8");
        document.charset("UTF-8");
        EXPECT_EQ(document.outerHtml(), c.after);
    }
}

} // namespace
} // namespace orl::html
