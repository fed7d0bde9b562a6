#pragma once

#include "config/app_config_view_model.h"

#include <QtQml/qqmlregistration.h>

#include <chrono>

namespace orl {

/// The timed start: the program's name, then the questions of consent, then a fade to what was loading
/// behind it.
class SplashView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by ContentView")
    Q_PROPERTY(QString displayName READ displayName CONSTANT)
    Q_PROPERTY(QString subtitle READ subtitle CONSTANT)
    Q_PROPERTY(bool showIDFAAlert READ showIDFAAlert NOTIFY showIDFAAlertChanged)
    Q_PROPERTY(bool hideContent READ hideContent NOTIFY hideContentChanged)
    Q_PROPERTY(int fadeTime READ fadeTime CONSTANT)
public:
    static constexpr std::chrono::milliseconds wait{1500};
    static constexpr std::chrono::milliseconds fade{1000};

    SplashView(Process &process, AppConfigViewModel &appVM, QObject *parent = nullptr);

    QString displayName() const;
    static QString subtitle() { return QStringLiteral("Virtual Phone Numbers"); }

    /// Our own explanation covers the screen ahead of the platform's dialog on tracking.
    bool showIDFAAlert() const { return showIDFAAlert_; }
    bool hideContent() const { return hideContent_; }
    static int fadeTime() { return int(fade.count()); } ///< milliseconds

    /// Starts the clock; to be called once, when the splash is first seen.
    void appear();

    /// The explanation's one button.
    Q_INVOKABLE void continueTapped();

Q_SIGNALS:
    void showIDFAAlertChanged();
    void hideContentChanged();
    void gone(); ///< faded; to be removed. May come more than once.

private:
    void gate();
    void presentForm();
    void leave();
    void setShowIDFAAlert(bool shown);
    std::function<void()> loadAds() const;

    Process &process_;
    AppConfigViewModel &appVM_;
    bool showIDFAAlert_ = false;
    bool hideContent_ = false;
};

} // namespace orl
