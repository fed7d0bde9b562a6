#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace orl::demo {

/// A file that comes with a letter; its bytes are made when they are asked for.
struct LetterFile {
    QString name;
    QByteArray type;
};

/// One mail as its sender wrote it.
struct Letter {
    QString senderName;
    QString senderAddress;
    QString subject;
    QByteArray html; ///< empty for plain text alone
    QByteArray text; ///< empty for HTML alone
    QList<LetterFile> files;
};

/// How many mails come one after the other in a fixed order, so that a new inbox soon shows each kind; after
/// them the order is drawn.
inline constexpr int openingLetters = 8;

/// The mail with this number in an inbox; `key` is the inbox's own. Depends on its arguments alone. `host` is
/// where the pictures in it come from, with a port; `address` may be empty where nobody knows it.
Letter letter(quint64 key, int number, const QByteArray &host, const QString &address);

} // namespace orl::demo
