// Pages and the trees that come of them, by what they are about.
#pragma once

#include <ostream>
#include <string_view>

namespace orl::html {

using namespace std::string_view_literals;

struct Case {
    const char *name;
    std::string_view page;
    std::string_view tree; ///< behind a line feed
};

inline void PrintTo(const Case &c, std::ostream *out) {
    *out << c.name;
}

struct FragmentCase {
    const char *context;
    std::string_view fragment;
    std::string_view tree;
};

// clang-format off

/// The whole tree.
constexpr Case wholePages[] = {
    {"nothing", "", R"(
| <html>
|   <head>
|   <body>
)"},
    {"text", "  a b", R"(
| <html>
|   <head>
|   <body>
|     "  a b"
)"},
    {"whole page", "<!DOCTYPE html><html lang=en><head><title>a</title></head><body class=b>c</body></html>", R"(
| <!doctype html>
| <html>
|   lang="en"
|   <head>
|     <title>
|       "a"
|   <body>
|     class="b"
|     "c"
)"},
    {"white space and comments around", " <!--a--> <!doctype html> <!--b--> <html> <!--c--> <head> <!--d--> </head> <!--e--> <body> f </body> <!--g--> </html> <!--h-->", R"(
| <!--a-->
| <!doctype html>
| <!--b-->
| <html>
|   <!--c-->
|   <head>
|     " "
|     <!--d-->
|     " "
|   " "
|   <!--e-->
|   " "
|   <body>
|     " f "
|     " "
|     " "
|     " "
|   <!--g-->
| <!--h-->
)"},
    {"attributes of repeated tags", "<html a=1 b=2><body c=1><p><html a=3 d=4><body c=2 e=5>", R"(
| <html>
|   a="1"
|   b="2"
|   d="4"
|   <head>
|   <body>
|     c="1"
|     e="5"
|     <p>
)"},
    {"second head and doctype", "<head><title>a</title></head><head><!doctype x><body><head>b", R"(
| <html>
|   <head>
|     <title>
|       "a"
|   <body>
|     "b"
)"},
    {"head's elements behind the head", "<head></head><title>a</title><meta name=b><p>c", R"(
| <html>
|   <head>
|     <title>
|       "a"
|     <meta>
|       name="b"
|   <body>
|     <p>
|       "c"
)"},
    {"end tags first", "</p></html></head>a", R"(
| <html>
|   <head>
|   <body>
|     "a"
)"},
    {"end tags in the head", "<head></p><title>a</title></br>b", R"(
| <html>
|   <head>
|     <title>
|       "a"
|   <body>
|     "b"
)"},
    {"noscript in the head", "<head><noscript><link href=a><style>b</style><!--c--></noscript><meta>", R"(
| <html>
|   <head>
|     <noscript>
|       <link>
|         href="a"
|       <style>
|         #data "b"
|       <!--c-->
|     <meta>
|   <body>
)"},
    {"noscript that breaks out", "<head><noscript>a</noscript><p>b", R"(
| <html>
|   <head>
|     <noscript>
|   <body>
|     "a"
|     <p>
|       "b"
)"},
    {"frameset", "<frameset cols=1><frame src=a><frameset><frame></frameset><noframes>b</noframes></frameset><!--c--></html><!--d--> <p>e", R"(
| <html>
|   <head>
|   <frameset>
|     cols="1"
|     <frame>
|       src="a"
|     <frameset>
|       <frame>
|     <noframes>
|       "b"
|   <!--c-->
|   " "
| <!--d-->
)"},
    {"frameset behind text", "a<frameset><frame>", R"(
| <html>
|   <head>
|   <body>
|     "a"
)"},
    {"frameset behind white space", "<p> <frameset><frame>", R"(
| <html>
|   <head>
|   <frameset>
|     <frame>
)"},
    {"frameset behind a body", "<body><frameset>", R"(
| <html>
|   <head>
|   <body>
)"},
    {"content behind the body", "<body>a</body>b<!--c--></html>d<!--e-->", R"(
| <html>
|   <head>
|   <body>
|     "a"
|     "b"
|     <!--c-->
|     "d"
|     <!--e-->
)"},
    {"comment behind the body", "<body></body><!--a--></html><!--b-->", R"(
| <html>
|   <head>
|   <body>
|   <!--a-->
| <!--b-->
)"},
    {"base", R"(<head><base href="/b/"><base href="http://c/"></head><a href=d>)", R"(
| <html>
|   <head>
|     <base>
|       href="/b/"
|     <base>
|       href="http://c/"
|   <body>
|     <a>
|       href="d"
)"},
    {"unclosed title", "<title>a<b>c", R"(
| <html>
|   <head>
|     <title>
|       "a"
|   <body>
|     <b>
|       "c"
)"},
    {"unclosed script", "<script>a<b>", R"(
| <html>
|   <head>
|     <script>
|       #data "a<b>"
|   <body>
)"},
    {"unclosed textarea", "<textarea>a<b>c</b></textarea>d", R"(
| <html>
|   <head>
|   <body>
|     <textarea>
|       "a<b>c</b>"
|     "d"
)"},
    {"self-closing script and title", "<title/><script/><p>a", R"(
| <html>
|   <head>
|     <title>
|     <script>
|   <body>
|     <p>
|       "a"
)"},
    {"script data", "<head><script>a<b>&lt;</script><style>&amp;</style>", R"(
| <html>
|   <head>
|     <script>
|       #data "a<b>&lt;"
|     <style>
|       #data "&amp;"
|   <body>
)"},
    {"public doctype", R"(<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.01//EN" "http://www.w3.org/TR/html4/strict.dtd">)", R"(
| <!DOCTYPE html PUBLIC "-//W3C//DTD HTML 4.01//EN" "http://www.w3.org/TR/html4/strict.dtd">
| <html>
|   <head>
|   <body>
)"},
    {"broken doctype", "<!doctype>", R"(
| <!doctype>
| <html>
|   <head>
|   <body>
)"},
};

/// What is in the body.
constexpr Case bodies[] = {
    {"paragraphs close each other", "<p>One<p>Two<div>Three</div>", R"(
| <p>
|   "One"
| <p>
|   "Two"
| <div>
|   "Three"
)"},
    {"end of a paragraph that is not open", "a</p>b", R"(
| "a"
| <p>
| "b"
)"},
    {"heading in a heading", "<h1>a<h2>b</h2>c", R"(
| <h1>
|   "a"
| <h2>
|   "b"
| "c"
)"},
    {"heading closed by another", "<h1>a</h3>b", R"(
| <h1>
|   "a"
| "b"
)"},
    {"list items", "<ul><li>a<p>b<li>c<ul><li>d</ul>e</ul>f", R"(
| <ul>
|   <li>
|     "a"
|     <p>
|       "b"
|   <li>
|     "c"
|     <ul>
|       <li>
|         "d"
|     "e"
| "f"
)"},
    {"item reaches through a div but not a section", "<li>a<div><li>b<section><li>c", R"(
| <li>
|   "a"
|   <div>
| <li>
|   "b"
|   <section>
|     <li>
|       "c"
)"},
    {"definition list", "<dl><dt>a<dd>b<dt>c<dd>d</dl>", R"(
| <dl>
|   <dt>
|     "a"
|   <dd>
|     "b"
|   <dt>
|     "c"
|   <dd>
|     "d"
)"},
    {"first line feed of pre", R"(<pre>
a
</pre><textarea>
b</textarea>)", R"(
| <pre>
|   "a
"
| <textarea>
|   "b"
)"},
    {"button in a button", "<button>a<button>b", R"(
| <button>
|   "a"
| <button>
|   "b"
)"},
    {"form in a form", "<form id=1><div><form id=2>a</form>b</div>c", R"(
| <form>
|   id="1"
|   <div>
|     "a"
|     "b"
| "c"
)"},
    {"end of form under open elements", "<form><b>a</form>b", R"(
| <form>
|   <b>
|     "a"
|     "b"
)"},
    {"options", "<select><option>a<option>b<optgroup><option>c<optgroup>d</select>e", R"(
| <select>
|   <option>
|     "a"
|   <option>
|     "b"
|   <optgroup>
|     <option>
|       "c"
|   <optgroup>
|     "d"
| "e"
)"},
    {"select closed by an input", "<select><b>a<input>b", R"(
| <select>
|   "a"
| <input>
| "b"
)"},
    {"select in a select", "<select>a<select>b", R"(
| <select>
|   "a"
| "b"
)"},
    {"ruby", "<ruby>a<rt>b<rp>c</ruby>d", R"(
| <ruby>
|   "a"
|   <rt>
|     "b"
|   <rp>
|     "c"
| "d"
)"},
    {"an end tag with a case of its own", "<p>a<sarcasm>b<i>c</sarcasm>d", R"(
| <p>
|   "a"
|   <sarcasm>
|     "b"
|     <i>
|       "c"
|   <i>
|     "d"
)"},
    {"image means img", "<image src=a>", R"(
| <img>
|   src="a"
)"},
    {"image in a drawing", "<svg><image/></svg><image>", R"(
| <svg>
|   <image>
| <img>
)"},
    {"unknown elements", "<foo><bar>a</foo>b</bar>", R"(
| <foo>
|   <bar>
|     "a"
| "b"
)"},
    {"self-closing unknown", "<foo/>a<foo a=1 />b", R"(
| <foo>
| "a"
| <foo>
|   a="1"
| "b"
)"},
    {"self-closing known", "<div/>a<br/>b", R"(
| <div>
| "a"
| <br>
| "b"
)"},
    {"raw text elements", "<iframe>a<b></iframe><noembed><i></noembed><xmp><p></xmp>", R"(
| <iframe>
|   "a<b>"
| <noembed>
|   "<i>"
| <xmp>
|   "<p>"
)"},
    {"plain text", "<p>a<plaintext>b</plaintext><p>c", R"(
| <p>
|   "a"
| <plaintext>
|   "b</plaintext><p>c"
)"},
    {"noscript in the body", "<p>a<noscript><img></noscript>", R"(
| <p>
|   "a"
|   <noscript>
|     <img>
)"},
    {"character data section", "a<![CDATA[<b>]]>c", R"(
| "a<b>c"
)"},
    {"comment between texts", "a<!--b-->c", R"(
| "a"
| <!--b-->
| "c"
)"},
    {"dropped tags", "<tr><td>a</td><caption>b<frame><head>", R"(
| "a"
| "b"
)"},
    {"br end tag", "a</br>b", R"(
| "a"
| <br>
| "b"
)"},
    {"head's elements in the body", "<p>a<title>b</title><style>c</style><script>d</script><meta>", R"(
| <p>
|   "a"
|   <title>
|     "b"
|   <style>
|     #data "c"
|   <script>
|     #data "d"
|   <meta>
)"},
    {"isindex", "<isindex>", R"(
| <form>
|   <hr>
|   <label>
|     "self is a searchable index. Enter search keywords: "
|     <input>
|       name="isindex"
|   <hr>
)"},
    {"isindex with attributes", "<isindex prompt=p action=a name=n x=y>", R"(
| <form>
|   action="a"
|   <hr>
|   <label>
|     "p"
|     <input>
|       x="y"
|       name="isindex"
|   <hr>
)"},
    {"isindex in a form", "<form><isindex>", R"(
| <form>
)"},
    {"media", "<video><source><track></video><object><param>a</object>", R"(
| <video>
|   <source>
|   <track>
| <object>
|   <param>
|   "a"
)"},
    {"hidden input", "<input type=HIDDEN><hr>", R"(
| <input>
|   type="HIDDEN"
| <hr>
)"},
    {"applets keep their formatting", "<b>a<applet><i>b</applet>c", R"(
| <b>
|   "a"
|   <applet>
|     <i>
|       "b"
|   "c"
)"},
    {"NUL is dropped", "a\0b<p>\0"sv, R"(
| "ab"
| <p>
)"},
    {"nobr", "<nobr>a<nobr>b", R"(
| <nobr>
|   "a"
| <nobr>
|   "b"
)"},
};

constexpr Case tables[] = {
    {"cells without rows", "<table><td>a<th>b</table>", R"(
| <table>
|   <tbody>
|     <tr>
|       <td>
|         "a"
|       <th>
|         "b"
)"},
    {"text behind a table", "<table><tr><td>x</table>y", R"(
| <table>
|   <tbody>
|     <tr>
|       <td>
|         "x"
| "y"
)"},
    {"text in a table", "<table>text</table>", R"(
| "text"
| <table>
)"},
    {"white space in a table", " <table> <tr> <td>a</td> </tr> </table> ", R"(
| <table>
|   " "
|   <tbody>
|     <tr>
|       " "
|       <td>
|         "a"
|       " "
|     " "
| " "
)"},
    {"text between rows", "<table><tr><td>a</td></tr>b<tr><td>c", R"(
| "b"
| <table>
|   <tbody>
|     <tr>
|       <td>
|         "a"
|     <tr>
|       <td>
|         "c"
)"},
    {"elements between rows", "<table><div>a</div><tr><b>c<td>d</table>e", R"(
| <div>
|   "a"
| <b>
|   "c"
| <table>
|   <tbody>
|     <tr>
|       <td>
|         "d"
| <b>
|   "e"
)"},
    {"formatting between rows goes on", "<table><b>a<tr><td>b</td></tr>c</table>d", R"(
| <b>
|   "a"
| <b>
|   "c"
| <table>
|   <tbody>
|     <tr>
|       <td>
|         "b"
| <b>
|   "d"
)"},
    {"table in a table", "<table><tr><td>a<table><td>b</table>c</table>d", R"(
| <table>
|   <tbody>
|     <tr>
|       <td>
|         "a"
|         <table>
|           <tbody>
|             <tr>
|               <td>
|                 "b"
|         "c"
| "d"
)"},
    {"table directly in a table", "<table><tr><td>a</td><table><td>b", R"(
| <table>
|   <tbody>
|     <tr>
|       <td>
|         "a"
| <table>
|   <tbody>
|     <tr>
|       <td>
|         "b"
)"},
    {"caption", "<table><caption>a<p>b<tr><td>c", R"(
| <table>
|   <caption>
|     "a"
|     <p>
|       "b"
|       "c"
)"},
    {"caption closed by the table", "<table><caption>a</table>b", R"(
| <table>
|   <caption>
|     "a"
| "b"
)"},
    {"columns", "<table><col><col span=2><tr><td>a", R"(
| <table>
|   <colgroup>
|     <col>
|     <col>
|       span="2"
|   <tbody>
|     <tr>
|       <td>
|         "a"
)"},
    {"column group", "<table><colgroup> <col><!--c--></col>a</colgroup><td>b", R"(
| "a"
| <table>
|   <colgroup>
|     " "
|     <col>
|     <!--c-->
|   <tbody>
|     <tr>
|       <td>
|         "b"
)"},
    {"row groups", "<table><thead><tr><th>a<tbody><tr><td>b<tfoot><tr><td>c", R"(
| <table>
|   <thead>
|     <tr>
|       <th>
|         "a"
|   <tbody>
|     <tr>
|       <td>
|         "b"
|   <tfoot>
|     <tr>
|       <td>
|         "c"
)"},
    {"wrong row group ends", "<table><tbody></thead><tr></tfoot><td>a</tbody>b", R"(
| "b"
| <table>
|   <tbody>
|     <tr>
|       <td>
|         "a"
)"},
    {"row ends", "<table><tr></td><td>a</tr></tr><td>b", R"(
| <table>
|   <tbody>
|     <tr>
|       <td>
|         "a"
|     <tr>
|       <td>
|         "b"
)"},
    {"cell ends", "<table><td>a</th></body>b</td></td>c", R"(
| "c"
| <table>
|   <tbody>
|     <tr>
|       <td>
|         "a"
|         "b"
)"},
    {"form in a table", "<table><form id=1><tr><td><input name=a></form><input name=b></table>", R"(
| <table>
|   <form>
|     id="1"
|   <tbody>
|     <tr>
|       <td>
|         <input>
|           name="a"
|         <input>
|           name="b"
)"},
    {"hidden input in a table", "<table><input type=hidden><input type=text></table>", R"(
| <input>
|   type="text"
| <table>
|   <input>
|     type="hidden"
)"},
    {"style and script in a table", "<table><style>a</style><script>b</script></table>", R"(
| <table>
|   <style>
|     #data "a"
|   <script>
|     #data "b"
)"},
    {"select in a table", "<table><select><tr><td>a", R"(
| <select>
| <table>
|   <tbody>
|     <tr>
|       <td>
|         "a"
)"},
    {"select in a cell", "<table><td><select><option>a</td>b</table>c", R"(
| "b"
| <table>
|   <tbody>
|     <tr>
|       <td>
|         <select>
|           <option>
|             "a"
| "c"
)"},
    {"paragraph before a table", "<p>a<table><td>b", R"(
| <p>
|   "a"
| <table>
|   <tbody>
|     <tr>
|       <td>
|         "b"
)"},
    {"paragraph in quirks mode", "<!doctype html SYSTEM><p>a<table><td>b", R"(
| <p>
|   "a"
|   <table>
|     <tbody>
|       <tr>
|         <td>
|           "b"
)"},
    {"formatting stops at a cell", "<b><table><td>a</table>b", R"(
| <b>
|   <table>
|     <tbody>
|       <tr>
|         <td>
|           "a"
|   "b"
)"},
    {"link around a table", "<a href=1>a<table><tr><td><a href=2>b</a></table>c", R"(
| <a>
|   href="1"
|   "a"
|   <table>
|     <tbody>
|       <tr>
|         <td>
|           <a>
|             href="2"
|             "b"
|   "c"
)"},
    {"link between cells", "<a><table><a>", R"(
| <a>
|   <a>
|   <table>
)"},
    {"NUL in a table", "<table>\0a\0<tr>\0"sv, R"(
| "a"
| <table>
|   <tbody>
|     <tr>
)"},
    {"nested deep", "<table><tbody><tr><td><p>a<tr><td>b", R"(
| <table>
|   <tbody>
|     <tr>
|       <td>
|         <p>
|           "a"
|     <tr>
|       <td>
|         "b"
)"},
    {"comment and doctype", "<table><!--a--><!doctype b><tr><!--c--><td>", R"(
| <table>
|   <!--a-->
|   <tbody>
|     <tr>
|       <!--c-->
|       <td>
)"},
};

constexpr Case formatting[] = {
    {"misnested", "<b>1<i>2</b>3</i>4", R"(
| <b>
|   "1"
|   <i>
|     "2"
| <i>
|   "3"
| "4"
)"},
    {"across a paragraph", "<b>1<p>2</b>3</p>4", R"(
| <b>
|   "1"
| <p>
|   <b>
|     "2"
|   "3"
| "4"
)"},
    {"two across a paragraph", "<a>1<b>2<div>3</a>4</div>5", R"(
| <a>
|   "1"
|   <b>
|     "2"
| <b>
|   <div>
|     <a>
|       "3"
|     "4"
|   "5"
)"},
    {"across two blocks", "<b>1<div>2<p>3</b>4</p>5</div>6", R"(
| <b>
|   "1"
| <div>
|   <b>
|     "2"
|   <p>
|     <b>
|       "3"
|     "4"
|   "5"
| "6"
)"},
    {"attributes go along", "<b id=1 class=c>1<p>2</b>3", R"(
| <b>
|   id="1"
|   class="c"
|   "1"
| <p>
|   <b>
|     id="1"
|     class="c"
|     "2"
|   "3"
)"},
    {"nodes between lose theirs", "<b>1<i id=x><p>2</b>3", R"(
| <b>
|   "1"
|   <i>
|     id="x"
| <i>
|   <p>
|     <b>
|       "2"
|     "3"
)"},
    {"opened again", "<p><b id=1><i>a<p>b", R"(
| <p>
|   <b>
|     id="1"
|     <i>
|       "a"
| <p>
|   <b>
|     id="1"
|     <i>
|       "b"
)"},
    {"three of a kind", "<p><b><b><b><b>x<p>y", R"(
| <p>
|   <b>
|     <b>
|       <b>
|         <b>
|           "x"
| <p>
|   <b>
|     <b>
|       <b>
|         "y"
)"},
    {"three of each kind", "<p><b><b><b><b id=1><b id=1><b id=1><b id=1>x<p>y", R"(
| <p>
|   <b>
|     <b>
|       <b>
|         <b>
|           id="1"
|           <b>
|             id="1"
|             <b>
|               id="1"
|               <b>
|                 id="1"
|                 "x"
| <p>
|   <b>
|     <b>
|       <b>
|         <b>
|           id="1"
|           <b>
|             id="1"
|             <b>
|               id="1"
|               "y"
)"},
    {"end of formatting that is not open", "a</b>c", R"(
| "a"
| "c"
)"},
    {"formatting beyond a cell is out of reach", "<b><table><td></b>a", R"(
| <b>
|   <table>
|     <tbody>
|       <tr>
|         <td>
|           "a"
)"},
    {"link in a link", "<a href=1>a<a href=2>b", R"(
| <a>
|   href="1"
|   "a"
| <a>
|   href="2"
|   "b"
)"},
    {"link in a link across a block", "<a>1<div>2<div>3<a>4", R"(
| <a>
|   "1"
| <div>
|   <a>
|     "2"
|   <div>
|     <a>
|       "3"
|     <a>
|       "4"
)"},
    {"font runs on", "<font size=1><p>a<font size=2>b</p>c</font>d", R"(
| <font>
|   size="1"
|   <p>
|     "a"
|     <font>
|       size="2"
|       "b"
|   <font>
|     size="2"
|     "c"
|   "d"
)"},
    {"not open any more", "<p><b>a</p></b>c", R"(
| <p>
|   <b>
|     "a"
| "c"
)"},
    {"four levels between", "<b><i><u><s><em><p>a</b>c", R"(
| <b>
|   <i>
|     <u>
|       <s>
|         <em>
| <u>
|   <s>
|     <em>
|       <p>
|         <b>
|           "a"
|         "c"
)"},
    {"marker", "<b>a<object>c</b>d</object>e", R"(
| <b>
|   "a"
|   <object>
|     "c"
|     "d"
|   "e"
)"},
    {"code and pre", "<code>a<pre>b</code>c", R"(
| <code>
|   "a"
| <pre>
|   <code>
|     "b"
|   "c"
)"},
    {"formatting in a list", "<ul><b><li>a</b><li>c</ul>", R"(
| <ul>
|   <b>
|   <li>
|     <b>
|       "a"
|   <li>
|     "c"
)"},
    {"self-closing", "<p><b/>a<i>b</i>", R"(
| <p>
|   <b>
|   "a"
|   <i>
|     "b"
)"},
};

/// Parsed in the context of an element.
constexpr FragmentCase fragments[] = {
    {"div", "a<p>b</p><!--c-->", R"(
| "a"
| <p>
|   "b"
| <!--c-->
)"},
    {"body", "<td>x</td>", R"(
| "x"
)"},
    {"div", "</div><body a=1><html b=2><head>a</head>", R"(
| "a"
)"},
    {"table", "<tr><td>a<caption>b", R"(
| <tbody>
|   <tr>
|     <td>
|       "a"
| <caption>
|   "b"
)"},
    {"tbody", "<td>a<tbody><tr><td>b", R"(
| <tr>
|   <td>
|     "a"
| <tr>
|   <td>
|     "b"
)"},
    {"tr", "<td>a<tr><td>b</table>c", R"(
| <td>
|   "a"
| <td>
|   "b"
|   "c"
)"},
    {"td", "a<td>b</td></tr>c", R"(
| "a"
| "b"
| "c"
)"},
    {"th", "a<th>b", R"(
| "a"
| "b"
)"},
    {"select", "<option>a<select><table><option>b<input>", R"(
| <option>
|   "a"
| <option>
|   "b"
)"},
    {"title", "<b>a</b></title>&amp;c", R"(
| "<b>a</b></title>&c"
)"},
    {"textarea", "<b>a</textarea>b", R"(
| "<b>a</textarea>b"
)"},
    {"style", "<b>&amp;</style>c", R"(
| "<b>&amp;</style>c"
)"},
    {"script", "<b></script>c", R"(
| "<b></script>c"
)"},
    {"iframe", "<b></iframe>c", R"(
| "<b></iframe>c"
)"},
    {"plaintext", "<b>a</b>", R"(
| <b>
|   "a"
)"},
    {"noscript", "<b>a</b>", R"(
| <b>
|   "a"
)"},
    {"head", "<title>a</title><p>b", R"(
| <title>
|   "a"
| <p>
|   "b"
)"},
    {"html", "<title>a</title><p>b", R"(
| <head>
|   <title>
|     "a"
| <body>
|   <p>
|     "b"
)"},
    {"frameset", "<frame></frameset><frame>a", R"(
| <frame>
| <frame>
)"},
    {"caption", "<td>a</caption><p>b", R"(
| "a"
| <p>
|   "b"
)"},
    {"colgroup", "<col>a<col></colgroup><col>", R"(
| <col>
| <col>
| <col>
)"},
    {"option", "a<option>b", R"(
| "a"
| <option>
|   "b"
)"},
    {"p", "a<p>b", R"(
| "a"
| <p>
|   "b"
)"},
};

/// Read as XML.
constexpr Case xmlPages[] = {
    {"declaration", R"(<?xml version="1.0" encoding='utf-8'?><a B=1><C/>t</a>)", R"(
| <?xml version="1.0" encoding="utf-8"?>
| <a>
|   B="1"
|   <C>
|   "t"
)"},
    {"case", "<A><a></A>b", R"(
| <A>
|   <a>
| "b"
)"},
    {"known tags", "<div/><p>a<br/><p>b</p>c", R"(
| <div>
|   <p>
|     "a"
|     <br>
|     <p>
|       "b"
|     "c"
)"},
    {"unmatched ends", "</b><a>x</c></a>y</a>", R"(
| <a>
|   "x"
| "y"
)"},
    {"entities and data", "<a>&lt;<![CDATA[<b>&amp;]]></a>", R"(
| <a>
|   "<<b>&amp;"
)"},
    {"comments", "<!--a--><b><!--c--></b>", R"(
| <!--a-->
| <b>
|   <!--c-->
)"},
    {"instruction", "<!ELEMENT a b><?php x ?><!doctype D><? ?><!>", R"(
| <!ELEMENT a b!>
| <?php x?>
| <!doctype D>
| <!--? ?-->
| <!--!-->
)"},
    {"raw text is none", "<script><b></b></script><title><i></title>", R"(
| <script>
|   <b>
| <title>
|   <i>
)"},
    {"text at the top", "a<b/>c", R"(
| "a"
| <b>
|   "c"
)"},
};

// clang-format on

} // namespace orl::html
