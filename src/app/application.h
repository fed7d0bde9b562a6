#pragma once

#include "app/desktop_appearance.h"
#include "app/desktop_ports.h"
#include "app/options.h"
#include "app/start_choice.h"
#include "platform/process.h"
#include "platform/qt/linux_platform.h"
#include "screens/content_view.h"

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

private:
    Platform platform();
    bool show();
    void awaitPicture();
    void savePicture();

    const Options options_;
    DesktopPasteboard pasteboard_;
    DesktopBrowser browser_;
    FeedbackHaptics haptics_;
    LinuxPlatform linux_;
    Process process_;
    Appearance appearance_;
    DesktopAppearance desktop_{appearance_};
    ContentView content_;
    std::unique_ptr<StartChoice> startChoice_;
    QQmlApplicationEngine engine_;
};

} // namespace orl
