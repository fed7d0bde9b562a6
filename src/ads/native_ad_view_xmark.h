#pragma once

#include "ads/banner_view.h"
#include "ads/native_ad_controller.h"

namespace orl {

/// The native card over the whole screen, which the user closes: it comes three seconds after its ad is
/// ready, once, and can be closed four seconds after that. Without native cards of this look an inline banner
/// stands in its place. Make it once the configuration is there and has native ads on.
class NativeAdView_XMARK : public QObject {
    Q_OBJECT
    /// the card and its backdrop take room and touches
    Q_PROPERTY(bool isPresented READ isPresented NOTIFY changed)
    Q_PROPERTY(bool displayNativeAd READ displayNativeAd NOTIFY changed)
    Q_PROPERTY(bool hideNativeAd READ hideNativeAd NOTIFY changed)
    Q_PROPERTY(bool showXMark READ showXMark NOTIFY changed)
    Q_PROPERTY(orl::NativeAdView *nativeAdView READ nativeAdView NOTIFY changed)
    /// null where the native card stands
    Q_PROPERTY(orl::InlineBannerView *banner READ banner NOTIFY changed)
    Q_PROPERTY(QString closeTitle READ closeTitle CONSTANT)
public:
    static constexpr std::chrono::seconds tick{1};
    static constexpr std::chrono::seconds displayDelay{3};
    static constexpr std::chrono::seconds xMarkDelay{4};
    static constexpr double bannerHeight = 400; ///< points

    NativeAdView_XMARK(Process &process, AppConfigViewModel &appVM, NativeModel item,
                       QObject *parent = nullptr);
    ~NativeAdView_XMARK() override;

    NativeAdState nativeAdState() const { return nativeAdState_; }
    bool displayNativeAd() const { return displayNativeAd_; }
    bool hideNativeAd() const { return hideNativeAd_; }
    bool showXMark() const { return showXMark_; }
    bool isSet() const { return isSet_; }
    bool isPresented() const { return nativeAdState_ == NativeAdState::loaded && !hideNativeAd_; }
    NativeAdView *nativeAdView() const { return nativeAdView_.get(); } ///< null: empty
    InlineBannerView *banner() const { return banner_.get(); }
    static QString closeTitle() { return QStringLiteral("Dismiss"); }

    /// The width of the card on a screen of this width, in points.
    Q_INVOKABLE static double cardWidth(double screenWidth);

    Q_INVOKABLE void close();

Q_SIGNALS:
    void changed();

private:
    void begin();
    void look();
    void presentLater();
    void display();

    Process &process_;
    AppConfigViewModel &appVM_;
    const NativeModel item_;
    std::unique_ptr<NativeAdController> native_;
    std::unique_ptr<InlineBannerView> banner_;
    std::shared_ptr<NativeAdView> nativeAdView_;
    NativeAdState nativeAdState_ = NativeAdState::none;
    bool displayNativeAd_ = false;
    bool hideNativeAd_ = false;
    bool showXMark_ = false;
    bool isSet_ = false;
    std::unique_ptr<RepeatingTimer> timer_;
};

} // namespace orl
