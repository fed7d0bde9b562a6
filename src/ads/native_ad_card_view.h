#pragma once

#include "ads/native_ad_controller.h"
#include "config/app_config_view_model.h"
#include "platform/queues.h"

#include <QObject>

#include <optional>

namespace orl {

/// A native card within a list. Its load begins when it is built and ads may load; it shows the card of its
/// type that arrived last, and takes no room until there is one.
class NativeAdCardView : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isLoaded READ isLoaded NOTIFY nativeAdStateChanged)
    Q_PROPERTY(orl::NativeAdView *nativeAdView READ nativeAdView NOTIFY nativeAdStateChanged)
    Q_PROPERTY(Qt::Alignment alignment READ alignment CONSTANT)
public:
    static constexpr std::chrono::milliseconds tick{500};

    NativeAdCardView(Process &process, AppConfigViewModel &appVM, NativeModel item,
                     Qt::Alignment alignment = Qt::AlignCenter, QObject *parent = nullptr);

    const NativeModel &item() const { return item_; }
    Qt::Alignment alignment() const { return alignment_; }
    NativeAdState nativeAdState() const { return nativeAdState_; }

    /// A load is under way or has ended; false before ads may load and where they are switched off.
    bool hasBegun() const { return native_ && native_->nativeAdView(); }

    bool isLoaded() const { return nativeAdState_ == NativeAdState::loaded; }
    NativeAdView *nativeAdView() const { return nativeAdView_.get(); } ///< null: empty

Q_SIGNALS:
    void nativeAdStateChanged();

private:
    void copyShared();

    Process &process_;
    const NativeModel item_;
    const Qt::Alignment alignment_;
    std::optional<NativeAdController> native_;
    NativeAdState nativeAdState_ = NativeAdState::none;
    std::shared_ptr<NativeAdView> nativeAdView_;
    std::unique_ptr<RepeatingTimer> timer_;
};

} // namespace orl
