#pragma once

#include "platform/process.h"
#include "screens/alert_item.h"

namespace orl {

/// An alert of our own over the whole window. Whoever owns it decides when it is shown.
class CustomAlertView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the screens that alert")
    Q_PROPERTY(orl::AlertItem item READ item CONSTANT)
    Q_PROPERTY(double rediuceHeightBy READ rediuceHeightBy CONSTANT)
    Q_PROPERTY(double iconHeight READ iconHeight CONSTANT)
public:
    /// `rediuceHeightBy` is taken off an alert's usual height, `iconHeight` is that of its picture, both in
    /// points. An alert grows with its texts all the same.
    CustomAlertView(Process &process, AlertItem item, double rediuceHeightBy, double iconHeight)
        : process_(process),
          item_(std::move(item)),
          rediuceHeightBy_(rediuceHeightBy),
          iconHeight_(iconHeight) {}

    const AlertItem &item() const { return item_; }
    double rediuceHeightBy() const { return rediuceHeightBy_; }
    double iconHeight() const { return iconHeight_; }

    Q_INVOKABLE void openTermsOfService();
    Q_INVOKABLE void openPrivacyPolicy();

Q_SIGNALS:
    // QML raises them with the two buttons.
    void tapped();
    void cancel();

private:
    Process &process_;
    const AlertItem item_;
    const double rediuceHeightBy_;
    const double iconHeight_;
};

/// What all lists of numbers say once the allowance is used up.
AlertItem limitReached();

} // namespace orl
