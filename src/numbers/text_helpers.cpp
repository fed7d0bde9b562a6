#include "numbers/text_helpers.h"

#include <QRegularExpression>

namespace orl {

namespace {

QString digitsOf(const QString &text) {
    QString digits;
    for (const QChar c : text) {
        if (c >= u'0' && c <= u'9') digits += c;
    }
    return digits;
}

/// Without the closing punctuation of the sentence; a closing bracket stays where the address itself opened
/// one.
QString withoutTrailingPunctuation(QString link) {
    static const QString closers = QStringLiteral(".,;:!?'\"\u00bb\u201d\u2019\u2026");
    while (!link.isEmpty()) {
        const QChar last = link.back();
        const bool unopened = last == u')' && link.count(u'(') < link.count(u')');
        if (!unopened && !closers.contains(last)) break;
        link.chop(1);
    }
    return link;
}

} // namespace

QString formattedNumber(const QString &number, const QString &format, QChar placeholder) {
    QString text = digitsOf(number);
    if (format.isEmpty() || text.isEmpty()) return text;
    for (qsizetype i = 0; i < format.size() && i < text.size(); ++i) {
        if (format[i] != placeholder) text.insert(i, format[i]);
    }
    return text;
}

QStringList extractNumbers(qsizetype minimumLength, const QString &text) {
    QString joined = text;
    joined.remove(u' ').remove(u'-');
    QStringList numbers;
    static const QRegularExpression notDigit(QStringLiteral("\\P{Nd}"));
    for (const QString &piece : joined.split(notDigit, Qt::SkipEmptyParts)) {
        if (piece.size() < minimumLength) continue;
        const bool international = text.contains(u'+' + piece.left(2));
        numbers << (international ? u'+' + piece : piece);
    }
    return numbers;
}

std::optional<QString> firstLink(const QString &text) {
    static const QRegularExpression address(QStringLiteral("\\bhttps?://[^\\s<>\"\u201c\u201d]+"),
                                            QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = address.match(text);
    if (!match.hasMatch()) return std::nullopt;
    const QString link = withoutTrailingPunctuation(match.captured());
    if (link.endsWith(QStringLiteral("//"))) return std::nullopt;
    return link;
}

} // namespace orl
