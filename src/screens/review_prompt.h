#pragma once

#include "platform/browser.h"
#include "platform/store_review.h"

#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace orl {

/// Asks for a rating with a sheet of our own, where the system has none.
class ReviewPrompt : public QObject, public StoreReview {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool isPresented READ isPresented NOTIFY isPresentedChanged)
public:
    /// The link is where a review is written.
    ReviewPrompt(Browser &browser, QUrl reviewLink) : browser_(browser), reviewLink_(std::move(reviewLink)) {}

    void requestReview() override { setIsPresented(true); }

    bool isPresented() const { return isPresented_; }
    Q_INVOKABLE void rate();
    Q_INVOKABLE void dismiss() { setIsPresented(false); }

Q_SIGNALS:
    void isPresentedChanged();

private:
    void setIsPresented(bool presented);

    Browser &browser_;
    const QUrl reviewLink_;
    bool isPresented_ = false;
};

} // namespace orl
