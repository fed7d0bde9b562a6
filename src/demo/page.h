#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace orl::demo {

class Random;

/// `text` as markup, in one of the many ways in which real pages write it: named, decimal and hexadecimal
/// references or the plain character, <br> for a line feed.
QString encoded(const QString &text, Random &random);

using Attributes = std::vector<std::pair<QString, QString>>;

/// `attributes` in drawn order and quoting, each with a leading blank. With `lastStaysLast` the final one
/// keeps its place and is written in double quotes.
QString written(Attributes attributes, Random &random, bool lastStaysLast = false);

/// What one page of a website consists of.
struct PageParts {
    QString siteName;
    QString title;
    QString path; ///< as the client asked for it
    QString body; ///< the markup that matters
    /// Markup that looks like the body's but is only quoted in comments, scripts and text fields.
    QString decoy;
    QStringList linkTexts; ///< what the link farm is made of
    quint64 seed = 0;
};

/// A whole page of 60 to 120 KB in UTF-8, as a real website would deliver it: menus, inline styles, scripts,
/// icons, questions and answers, a link farm, tags left open, closed twice and nested the wrong way round.
QByteArray realWorldPage(const PageParts &parts);

} // namespace orl::demo
