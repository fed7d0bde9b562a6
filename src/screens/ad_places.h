#pragma once

#include "ads/black_banner.h"
#include "ads/native_ad_card_view.h"
#include "ads/native_ad_view_xmark.h"
#include "ads/native_with_generate_button.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace orl {

/// Makes the ads of the screens. What is made belongs to the item that it is made for and goes with it: a
/// card begins its load when its row is built, and one that was scrolled away starts anew.
class AdPlaces : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by ContentView")
    Q_PROPERTY(bool nativeAdEnabled READ nativeAdEnabled NOTIFY nativeAdEnabledChanged)
public:
    static constexpr double chatBannerHeight = 240; ///< points

    AdPlaces(Process &process, AppConfigViewModel &appVM, QObject *parent = nullptr);

    /// Whether the configuration has arrived and has native cards on.
    bool nativeAdEnabled() const { return nativeAdEnabled_; }

    Q_INVOKABLE orl::BannerView *anchoredBanner(QObject *place);
    Q_INVOKABLE orl::BlackBanner *blackBanner(QObject *place);
    /// The one behind the last message of a conversation.
    Q_INVOKABLE orl::InlineBannerView *chatBanner(QObject *place);
    /// The card of a slot within a list; its id says what list that is.
    Q_INVOKABLE orl::NativeAdCardView *nativeCard(QObject *place, const QString &id);
    /// The card above the tabs.
    Q_INVOKABLE orl::NativeAdView_XMARK *homeCard(QObject *place);
    /// What may hold the button of the identity generator back.
    std::unique_ptr<NativeWithGenerateButton> nativeWithGenerateButton() const;

Q_SIGNALS:
    void nativeAdEnabledChanged();

private:
    void followConfiguration();

    Process &process_;
    AppConfigViewModel &appVM_;
    bool nativeAdEnabled_ = false;
};

} // namespace orl
