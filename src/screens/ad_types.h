#pragma once

#include "ads/black_banner.h"
#include "ads/native_ad_card_view.h"
#include "ads/native_ad_view_xmark.h"
#include "ads/native_with_generate_button.h"
#include "platform/qt/stored_consent.h"

#include <QtQml/qqml.h>

namespace orl {

/// The state of ads under the names by which screens know it. The room of ads itself knows no QML.
struct AdFaceForQml {
    Q_GADGET
    QML_FOREIGN(orl::AdFace)
    QML_VALUE_TYPE(adFace)
};

struct BannerBaseForQml {
    Q_GADGET
    QML_FOREIGN(orl::BannerBase)
    QML_NAMED_ELEMENT(BannerBase)
    QML_UNCREATABLE("what banners have in common")
};

struct BannerViewForQml {
    Q_GADGET
    QML_FOREIGN(orl::BannerView)
    QML_NAMED_ELEMENT(BannerView)
    QML_UNCREATABLE("made by the screens that have a banner")
};

struct InlineBannerViewForQml {
    Q_GADGET
    QML_FOREIGN(orl::InlineBannerView)
    QML_NAMED_ELEMENT(InlineBannerView)
    QML_UNCREATABLE("made by the screens that have a banner")
};

struct BlackBannerForQml {
    Q_GADGET
    QML_FOREIGN(orl::BlackBanner)
    QML_NAMED_ELEMENT(BlackBanner)
    QML_UNCREATABLE("made by the cards that may have a banner")
};

struct NativeAdViewForQml {
    Q_GADGET
    QML_FOREIGN(orl::NativeAdView)
    QML_NAMED_ELEMENT(NativeAdView)
    QML_UNCREATABLE("made by its controller")
};

struct NativeAdCardViewForQml {
    Q_GADGET
    QML_FOREIGN(orl::NativeAdCardView)
    QML_NAMED_ELEMENT(NativeAdCardView)
    QML_UNCREATABLE("made by the screens that have ads in their lists")
};

struct NativeAdViewXMarkForQml {
    Q_GADGET
    QML_FOREIGN(orl::NativeAdView_XMARK)
    QML_NAMED_ELEMENT(NativeAdView_XMARK)
    QML_UNCREATABLE("made by MainView")
};

struct NativeWithGenerateButtonForQml {
    Q_GADGET
    QML_FOREIGN(orl::NativeWithGenerateButton)
    QML_NAMED_ELEMENT(NativeWithGenerateButton)
    QML_UNCREATABLE("made by the identity generator")
};

struct StoredQuestionForQml {
    Q_GADGET
    QML_FOREIGN(orl::StoredQuestion)
    QML_NAMED_ELEMENT(StoredQuestion)
    QML_UNCREATABLE("made by what asks")
};

} // namespace orl
