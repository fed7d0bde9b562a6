#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace orl {

/// What an alert of our own says and asks.
struct AlertItem {
    Q_GADGET
    QML_VALUE_TYPE(alertItem)
    Q_PROPERTY(QString image MEMBER image CONSTANT)
    Q_PROPERTY(QString title READ titleOrEmpty CONSTANT)
    Q_PROPERTY(QString subtitle MEMBER subtitle CONSTANT)
    Q_PROPERTY(QString title2 READ title2OrEmpty CONSTANT)
    Q_PROPERTY(QString subtitle2 READ subtitle2OrEmpty CONSTANT)
    Q_PROPERTY(QString mainButtonTitle MEMBER mainButtonTitle CONSTANT)
    Q_PROPERTY(QString cancelButtonTitle READ cancelButtonTitleOrEmpty CONSTANT)
    Q_PROPERTY(bool showsLegalLinks READ showsLegalLinks CONSTANT)
public:
    QString image; ///< name of a drawing
    std::optional<QString> title;
    QString subtitle;
    std::optional<QString> title2; ///< a second paragraph
    std::optional<QString> subtitle2;
    QString mainButtonTitle;
    std::optional<QString> cancelButtonTitle;

    /// Who asks for an agreement says what is agreed to.
    bool showsLegalLinks() const { return mainButtonTitle == QStringLiteral("agree"); }

    QString titleOrEmpty() const { return title.value_or(QString()); }
    QString title2OrEmpty() const { return title2.value_or(QString()); }
    QString subtitle2OrEmpty() const { return subtitle2.value_or(QString()); }
    QString cancelButtonTitleOrEmpty() const { return cancelButtonTitle.value_or(QString()); }

    bool operator==(const AlertItem &) const = default;
};

} // namespace orl
