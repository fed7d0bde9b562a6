#include "app/application.h"

#include "screens/ad_images.h"
#include "screens/screens.h"

#include <QDBusConnection>
#include <QDesktopServices>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QLocale>
#include <QQmlComponent>
#include <QQuickWindow>
#include <QStandardPaths>

#include <cstdio>

namespace orl {

using namespace std::chrono_literals;

namespace {

/// Time for pictures to load and fades to end before the home screen is taken for complete.
constexpr auto settling = 800ms;

/// Sounds are made anew where they are missing, so they are kept where whatever may be lost is kept.
QString soundFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
}

} // namespace

Application::Application(const Options &options, const Endpoints &endpoints)
    : options_(options),
      linux_({options.dataFolder.isEmpty() ? LinuxPlatform::defaultDataFolder() : options.dataFolder,
              endpoints,
              {{QStringLiteral("CFBundleShortVersionString"), QStringLiteral(ORL_VERSION)},
               {QStringLiteral("CFBundleDisplayName"), QStringLiteral("Orl")}}}),
      base_(linux_.platform()),
      haptics_(QGuiApplication::desktopFileName(), QDBusConnection::sessionBus()),
      notifications_({QStringLiteral("Orl"), QGuiApplication::desktopFileName(), soundFolder()}, base_.bundle,
                     QDBusConnection::sessionBus()),
      mailComposer_(base_.mainQueue, QDesktopServices::openUrl),
      houseAds_(base_.with(browser_)),
      tracking_(base_.store),
      consent_(base_.mainQueue, base_.store, QLocale::territoryToCode(QLocale::system().territory())),
      background_(base_.clock, base_.mainQueue, scene_, {AppDelegate::fetchingKey, AppDelegate::cleaningKey}),
      storePages_(base_.endpoints.storeHost),
      reviewPrompt_(browser_, StoreLinks(base_).review),
      process_(platform()),
      delegate_(process_),
      content_(process_, appearance_) {
    if (options_.resetConsent) forgetConsent(base_.store);
    delegate_.didFinishLaunching();
    QObject::connect(&notifications_, &DesktopNotifications::chosen, &window_, &WindowScene::bringToFront);
    if (options_.choose) startChoice_ = std::make_unique<StartChoice>(content_.requestVM(), *options_.choose);
}

Application::~Application() {
    // Workers may use what hangs on the process; they end while it still lives.
    linux_.stop();
}

Platform Application::platform() {
    const Platform desktop = base_.with(notifications_, haptics_, pasteboard_, browser_, mailComposer_,
                                        reviewPrompt_, scene_, background_, device_);
    return options_.picture.isEmpty() ? desktop.with(houseAds_, tracking_, consent_) : desktop;
}

int Application::run() {
    if (!show()) return 1;
    if (!options_.picture.isEmpty()) awaitPicture();
    setStage(true);
    const int code = QGuiApplication::exec();
    setStage(false);
    return code;
}

bool Application::show() {
    prepareScreens(engine_, process_.platform());
    prepareAds(engine_, process_);
    // The engine reads the window's files on a thread of its own; looking through the system's fonts takes as
    // long.
    const QQmlComponent ahead(&engine_, QUrl(QString::fromLatin1(mainWindow)), QQmlComponent::Asynchronous);
    QFontMetricsF(QGuiApplication::font()).height();
    engine_.setInitialProperties(
        {{QStringLiteral("content"), QVariant::fromValue(&content_)},
         {QStringLiteral("reviewPrompt"), QVariant::fromValue(&reviewPrompt_)},
         {QStringLiteral("fullScreenAd"), QVariant::fromValue(&fullScreenAd_)},
         {QStringLiteral("trackingQuestion"), QVariant::fromValue(&tracking_.question())},
         {QStringLiteral("consentQuestion"), QVariant::fromValue(&consent_.question())}});
    engine_.load(QUrl(QString::fromLatin1(mainWindow)));
    if (auto *window = qobject_cast<QWindow *>(engine_.rootObjects().value(0))) window_.follow(*window);
    return !engine_.rootObjects().isEmpty();
}

void Application::setStage(bool ready) {
    houseAds_.stage().setReady(ready);
    tracking_.question().setReady(ready);
    consent_.question().setReady(ready);
}

void Application::awaitPicture() {
    process_.platform().mainQueue.postAfter(picturePatience, [] { QGuiApplication::exit(noMessages); });
    const auto look = [this] { takePictureOnceComplete(); };
    QObject::connect(&content_.requestVM(), &RequestViewModel::messagesChanged, &content_, look);
    QObject::connect(&content_, &ContentView::splashIsPresentedChanged, &content_, look);
}

void Application::takePictureOnceComplete() {
    const HomeView *home = content_.home();
    if (pictureIsDue_ || content_.splashIsPresented()) return;
    if (!home || home->state() != HomeView::State::Messages) return;
    pictureIsDue_ = true;
    process_.platform().mainQueue.postAfter(settling, [this] { savePicture(); });
}

void Application::savePicture() {
    auto *window = qobject_cast<QQuickWindow *>(engine_.rootObjects().value(0));
    const bool saved = window && window->grabWindow().save(options_.picture);
    if (!saved) std::fprintf(stderr, "orl: cannot write %s\n", qUtf8Printable(options_.picture));
    QGuiApplication::exit(saved ? 0 : 2);
}

} // namespace orl
