#pragma once

#include "platform/process.h"

#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace orl {

class CopyViewModel;

/// Hands a text that ends with a link to somebody else: by the clipboard, by mail, or by opening the link.
class ShareSheet : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by SettingsView")
    Q_PROPERTY(bool isPresented READ isPresented NOTIFY isPresentedChanged)
    Q_PROPERTY(QString text READ text NOTIFY isPresentedChanged)
    Q_PROPERTY(bool canMail READ canMail NOTIFY isPresentedChanged)
public:
    ShareSheet(Process &process, CopyViewModel &copy, QObject *parent = nullptr);

    bool isPresented() const { return isPresented_; }
    const QString &text() const { return text_; }
    bool canMail() const;

    void present(const QString &text, const QUrl &link);

    // Each one ends the sheet.
    Q_INVOKABLE void copyText();
    Q_INVOKABLE void mailText();
    Q_INVOKABLE void openLink();
    Q_INVOKABLE void dismiss() { setIsPresented(false); }

Q_SIGNALS:
    void isPresentedChanged();

private:
    void setIsPresented(bool presented);

    Process &process_;
    CopyViewModel &copy_;
    bool isPresented_ = false;
    QString text_;
    QUrl link_;
};

} // namespace orl
