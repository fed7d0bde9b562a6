#pragma once

#include "ads/native_ad_card_view.h"

#include <QUuid>

namespace orl {

/// A native card that stands above the button of the identity generator and holds it back for some seconds.
/// The generator shows it by `showNativeBeforeGenerate` and goes on at each new `doGenerate`.
class NativeWithGenerateButton : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool showNativeBeforeGenerate READ showNativeBeforeGenerate WRITE setShowNativeBeforeGenerate
                   NOTIFY showNativeBeforeGenerateChanged)
    Q_PROPERTY(bool showGenerateBtn READ showGenerateBtn NOTIFY secondsChanged)
    Q_PROPERTY(double seconds READ seconds NOTIFY secondsChanged)
    Q_PROPERTY(orl::NativeAdCardView *card READ card NOTIFY showNativeBeforeGenerateChanged)
public:
    static constexpr std::chrono::milliseconds tick{100};
    static constexpr int ticksToWait = 50; ///< five seconds

    NativeWithGenerateButton(Process &process, AppConfigViewModel &appVM, QObject *parent = nullptr);

    /// Shown, it builds its card and counts down while the card is on show. A card that cannot be loaded
    /// holds nobody back.
    bool showNativeBeforeGenerate() const { return card_ != nullptr; }
    void setShowNativeBeforeGenerate(bool show);

    NativeAdCardView *card() const { return card_.get(); } ///< null while not shown
    double seconds() const { return ticksLeft_ / 10.0; }   ///< what is left
    bool showGenerateBtn() const { return showGenerateBtn_; }
    const QUuid &doGenerate() const { return doGenerate_; }

    Q_INVOKABLE void tapGenerate();

Q_SIGNALS:
    void showNativeBeforeGenerateChanged();
    void secondsChanged();
    void doGenerateChanged();

private:
    void countDown();

    Process &process_;
    AppConfigViewModel &appVM_;
    std::unique_ptr<NativeAdCardView> card_;
    std::unique_ptr<RepeatingTimer> timer_;
    int ticksLeft_ = ticksToWait;
    bool showGenerateBtn_ = false;
    QUuid doGenerate_;
};

} // namespace orl
