#include "mail/mail_page.h"

#include <QStringList>
#include <orl/html/cleaner.h>
#include <orl/html/html.h>
#include <orl/html/parser.h>

#include <functional>
#include <string>

namespace orl {

namespace {

const QString head = QStringLiteral(
    "\n<!DOCTYPE html>\n<html>\n<head>\n<style>\n.myDiv1 {\n   color: white;\n}\na:link {\n  color: "
    "orange;\n}\n"
    "p {\n   color: white;\n}\nbody {\n    color: white;\n    font-size: 20px;\n}\n\n</style>\n\n"
    "<meta name='viewport' content='width=device-width, initial-scale=1.0, maximum-scale=1.0, "
    "minimum-scale=1.0, user-scalable=no'>\n</head>\n            \n<body>\n");
const QString tail = QStringLiteral("\n</body>\n</html>");

/// Collects words, and breaks the line where a block begins or ends.
class Lines : public html::NodeVisitor {
public:
    void head(const html::Node &node, int) override {
        if (const auto text = node.as<html::TextNode>()) line_ += QString::fromStdString(text.getWholeText());
        breakLineAt(node);
    }
    void tail(const html::Node &node, int) override { breakLineAt(node); }

    QString text() {
        breakLine();
        return lines_.join(QLatin1Char('\n'));
    }

private:
    void breakLineAt(const html::Node &node) {
        const auto element = node.as<html::Element>();
        if (!element) return;
        const std::string tag = element.nodeName();
        const bool cell = tag == "td" || tag == "th";
        if (cell) line_ += QLatin1Char(' ');
        if (!cell && (element.isBlock() || tag == "br")) breakLine();
    }

    void breakLine() {
        if (const QString line = line_.simplified(); !line.isEmpty()) lines_ << line;
        line_.clear();
    }

    QString line_;
    QStringList lines_;
};

QString quietly(const std::function<QString()> &work) {
    try {
        return work();
    } catch (const html::Exception::Error &) {
        return {};
    }
}

html::Document parsed(const QByteArray &markup) {
    return html::Parser::parse(std::string_view(markup.constData(), size_t(markup.size())), "");
}

} // namespace

QString mailPage(QString body) {
    body.replace(QLatin1String("<div>"), QLatin1String(R"(<div class="myDiv1">)"));
    return head + body + tail;
}

QString mailBody(const QString &page) {
    return page.sliced(head.size(), page.size() - head.size() - tail.size());
}

QString mailText(const QString &markup) {
    return quietly([&] {
        Lines lines;
        parsed(markup.toUtf8()).body().traverse(lines);
        return lines.text();
    });
}

PrivateMail privateMail(const QString &page, bool showPictures) {
    PrivateMail mail;
    mail.page = mailPage(quietly([&] {
        html::Document document =
            html::Cleaner(html::Whitelist::relaxed()).clean(parsed(mailBody(page).toUtf8()));
        document.outputSettings(html::OutputSettings().prettyPrint(false));
        const html::Element body = document.body();
        for (const html::Element &picture : body.select("img[src]")) {
            ++mail.pictures;
            if (!showPictures) picture.removeAttr("src");
        }
        return QString::fromStdString(body.html());
    }));
    return mail;
}

} // namespace orl
