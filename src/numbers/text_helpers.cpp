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

} // namespace orl
