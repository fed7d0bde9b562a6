#pragma once

#include "ads/ad_face.h"
#include "ads/native_model.h"
#include "platform/ad_service.h"
#include "platform/process.h"

#include <QObject>

namespace orl {

/// A native card: its layout and, once filled, what stands in it. Texts and pictures that the ad does not
/// have are empty; the layout hides their places.
class NativeAdView : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString layout READ layout CONSTANT)
    Q_PROPERTY(bool spinning READ spinning NOTIFY filled)
    Q_PROPERTY(orl::AdFace face READ face NOTIFY filled)
public:
    NativeAdView(Process &process, NativeAdType type) : process_(process), type_(type) {}

    QString layout() const { return layoutFile(type_); } ///< the name of the component
    bool spinning() const { return !ad_; }               ///< the layout's spinner, until filled
    const AdFace &face() const { return face_; }

    void fill(std::shared_ptr<NativeAdContent> ad);

    Q_INVOKABLE void tap();

    /// The layout tells that it has shown the last frame.
    Q_INVOKABLE void videoDidEnd();

Q_SIGNALS:
    void filled();

private:
    Process &process_;
    const NativeAdType type_;
    std::shared_ptr<NativeAdContent> ad_;
    AdFace face_;
};

} // namespace orl
