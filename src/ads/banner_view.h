#pragma once

#include "ads/ad_face.h"
#include "ads/ad_status.h"
#include "config/app_config_view_model.h"
#include "platform/ad_service.h"
#include "platform/process.h"
#include "platform/queues.h"

#include <memory>
#include <optional>

namespace orl {

/// What anchored and inline banners have in common: when they take room, when they load, what a tap does.
///
/// The switches are those of the configuration that is there when the banner is made, or of the first one to
/// arrive after that. It is asked for once consent has been dealt with.
class BannerBase : public QObject {
    Q_OBJECT
    /// nothing is drawn and no room is taken while false
    Q_PROPERTY(bool isShown READ isShown NOTIFY isShownChanged)
    /// false: opacity 0 and a bottom padding of -100; true: both slide to their place
    Q_PROPERTY(bool isLoaded READ isLoaded NOTIFY statusChanged)
    Q_PROPERTY(double height READ height CONSTANT)
    /// what is to be drawn, once there is something
    Q_PROPERTY(bool hasFace READ hasFace NOTIFY faceChanged)
    Q_PROPERTY(orl::AdFace face READ face NOTIFY faceChanged)
public:
    bool isShown() const;
    AdStatus status() const { return status_; }
    bool isLoaded() const { return status_ == AdStatus::loaded; }
    virtual double height() const = 0; ///< points

    bool hasFace() const { return face_.has_value(); } ///< false: the frame is empty
    AdFace face() const { return face_.value_or(AdFace()); }

    Q_INVOKABLE void tap();

Q_SIGNALS:
    void isShownChanged();
    void statusChanged();
    void faceChanged();

protected:
    BannerBase(Process &process, AppConfigViewModel &appVM, QString unit, BannerSize size, QObject *parent);

    /// To be called by the constructors that know what `begin` and the events do.
    void takeConfiguration();

    virtual void begin() {} ///< the banner takes its room from now on
    virtual void received() = 0;
    virtual void failed() {}

    void setStatus(AdStatus status);

    Process &process_;
    AppConfigViewModel &appVM_;

private:
    void configure();
    void load();
    void receive();
    void fail(const Error &error);
    void click();

    const QString unit_;
    const BannerSize size_;
    std::optional<AdmobConfig> admobConfig_;
    std::unique_ptr<Banner> banner_;
    std::optional<AdFace> face_;
    AdStatus status_ = AdStatus::none;
};

/// The banner at the foot of a screen. Twice a second it looks at the status that all anchored banners share.
class BannerView final : public BannerBase {
    Q_OBJECT
    Q_PROPERTY(bool isAnchored MEMBER isAnchored CONSTANT)
    Q_PROPERTY(bool enableSpacer MEMBER enableSpacer CONSTANT)
public:
    static constexpr std::chrono::milliseconds tick{500};

    explicit BannerView(Process &process, AppConfigViewModel &appVM, bool isAnchored = true,
                        bool enableSpacer = false, QObject *parent = nullptr);

    double height() const override { return BannerAd::height; }

    const bool isAnchored;
    const bool enableSpacer; ///< pushes the banner to the foot of where it stands

private:
    void begin() override;
    void received() override;

    std::unique_ptr<RepeatingTimer> timer_;
};

/// A banner among other things. It tells its callback whether its ad came.
class InlineBannerView final : public BannerBase {
    Q_OBJECT
public:
    using Callback = std::function<void(bool arrived)>;

    InlineBannerView(Process &process, AppConfigViewModel &appVM, const QString &unit, double height,
                     Callback callback = {}, QObject *parent = nullptr);

    double height() const override { return height_; }

private:
    void received() override;
    void failed() override;

    const double height_;
    const Callback callback_;
};

} // namespace orl
