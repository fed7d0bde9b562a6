#pragma once

#include "app/app_delegate.h"
#include "app/desktop_appearance.h"
#include "app/options.h"
#include "app/start_choice.h"
#include "app/store_pages.h"
#include "app/window_scene.h"
#include "platform/process.h"
#include "platform/qt/desktop_mail_composer.h"
#include "platform/qt/desktop_notifications.h"
#include "platform/qt/desktop_ports.h"
#include "platform/qt/feedback_haptics.h"
#include "platform/qt/house_ads.h"
#include "platform/qt/linux_device.h"
#include "platform/qt/linux_platform.h"
#include "platform/qt/stored_consent.h"
#include "platform/queued_background_scheduler.h"
#include "screens/content_view.h"
#include "screens/full_screen_ad_view.h"
#include "screens/review_prompt.h"

#include <QQmlApplicationEngine>

#include <memory>

namespace orl {

/// The application on a Linux phone or desktop: adapters, state and window. Needs a QGuiApplication.
class Application {
public:
    /// How long --picture waits for messages.
    static constexpr std::chrono::seconds picturePatience{20};
    static constexpr int noMessages = 3; ///< its exit code when none came

    Application(const Options &options, const Endpoints &endpoints);
    ~Application();
    Application(const Application &) = delete;
    Application &operator=(const Application &) = delete;

    /// Shows the window and runs until it is closed; gives the exit code.
    int run();

    /// See WindowScene::bringToFront.
    void bringToFront(const QString &activationToken) { window_.bringToFront(activationToken); }

private:
    /// A picture is taken without a user who could answer a question, and without ads.
    Platform platform();
    bool show();
    /// Whether a window is there for questions and for ads over everything else.
    void setStage(bool ready);
    void awaitPicture();
    void takePictureOnceComplete();
    void savePicture();

    const Options options_;
    DesktopPasteboard pasteboard_;
    DesktopBrowser browser_;
    Scene scene_;
    WindowScene window_{scene_};
    LinuxPlatform linux_;
    const Platform base_; ///< what needs no desktop
    FeedbackHaptics haptics_;
    DesktopNotifications notifications_;
    DesktopMailComposer mailComposer_;
    LinuxDevice device_;
    HouseAds houseAds_;
    StoredTracking tracking_;
    StoredConsent consent_;
    QueuedBackgroundScheduler background_;
    StorePages storePages_;
    ReviewPrompt reviewPrompt_;
    Process process_;
    FullScreenAdView fullScreenAd_{process_, houseAds_.stage()};
    AppDelegate delegate_;
    Appearance appearance_;
    DesktopAppearance desktop_{appearance_};
    ContentView content_;
    std::unique_ptr<StartChoice> startChoice_;
    QQmlApplicationEngine engine_;
    bool pictureIsDue_ = false;
};

} // namespace orl
