#pragma once

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
    Q_PROPERTY(QString headline READ headline NOTIFY filled)
    Q_PROPERTY(QString body READ body NOTIFY filled)
    Q_PROPERTY(QString callToAction READ callToAction NOTIFY filled)
    Q_PROPERTY(QString advertiser READ advertiser NOTIFY filled)
    Q_PROPERTY(QString store READ store NOTIFY filled)
    Q_PROPERTY(QString price READ price NOTIFY filled)
    Q_PROPERTY(QString stars READ stars NOTIFY filled)
    Q_PROPERTY(bool hasVideoContent READ hasVideoContent NOTIFY filled)
public:
    NativeAdView(Process &process, NativeAdType type) : process_(process), type_(type) {}

    QString layout() const { return layoutFile(type_); } ///< the name of the component
    bool spinning() const { return !ad_; }               ///< the layout's spinner, until filled
    QString headline() const { return assets().headline; }
    QString body() const { return assets().body; }
    QString callToAction() const { return assets().callToAction; }
    QString advertiser() const { return assets().advertiser; }
    QString store() const { return assets().store; }
    QString price() const { return assets().price; }
    QString stars() const { return starImage(assets().starRating); } ///< the name of a picture
    bool hasVideoContent() const { return assets().media.hasVideoContent(); }

    const std::shared_ptr<NativeAdContent> &ad() const { return ad_; }
    const AdAssets &assets() const;

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
};

} // namespace orl
