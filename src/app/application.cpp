#include "app/application.h"

#include "screens/screens.h"

#include <QGuiApplication>
#include <QQuickWindow>

#include <cstdio>

namespace orl {

using namespace std::chrono_literals;

namespace {

/// Time for pictures to load and fades to end before the home screen is taken for complete.
constexpr auto settling = 800ms;

} // namespace

Application::Application(const Options &options, const Endpoints &endpoints)
    : options_(options),
      linux_({options.dataFolder.isEmpty() ? LinuxPlatform::defaultDataFolder() : options.dataFolder,
              endpoints,
              {{QStringLiteral("CFBundleShortVersionString"), QStringLiteral(ORL_VERSION)},
               {QStringLiteral("CFBundleDisplayName"), QStringLiteral("Orl")}}}),
      process_(platform()),
      content_(process_, appearance_) {
    if (options_.choose) startChoice_ = std::make_unique<StartChoice>(content_.requestVM(), *options_.choose);
}

Application::~Application() {
    // Workers may use what hangs on the process; they end while it still lives.
    linux_.stop();
}

Platform Application::platform() {
    const Platform base = linux_.platform();
    return {base.clock,         base.mainQueue, base.globalQueue, base.urlReader, base.store,
            base.reachability,  base.bundle,    base.console,     base.fatal,     base.endpoints,
            base.notifications, haptics_,       pasteboard_,      browser_};
}

int Application::run() {
    if (!show()) return 1;
    if (!options_.picture.isEmpty()) awaitPicture();
    return QGuiApplication::exec();
}

bool Application::show() {
    prepareScreens(engine_, process_.platform());
    engine_.setInitialProperties({{QStringLiteral("content"), QVariant::fromValue(&content_)}});
    engine_.load(QUrl(QString::fromLatin1(mainWindow)));
    return !engine_.rootObjects().isEmpty();
}

void Application::awaitPicture() {
    process_.platform().mainQueue.postAfter(picturePatience, [] { QGuiApplication::exit(noMessages); });
    const auto whenShown = [this, waiting = false]() mutable {
        const HomeView *home = content_.home();
        if (waiting || !home || home->state() != HomeView::State::Messages) return;
        waiting = true;
        process_.platform().mainQueue.postAfter(settling, [this] { savePicture(); });
    };
    QObject::connect(&content_.requestVM(), &RequestViewModel::messagesChanged, &content_, whenShown);
}

void Application::savePicture() {
    auto *window = qobject_cast<QQuickWindow *>(engine_.rootObjects().value(0));
    const bool saved = window && window->grabWindow().save(options_.picture);
    if (!saved) std::fprintf(stderr, "orl: cannot write %s\n", qUtf8Printable(options_.picture));
    QGuiApplication::exit(saved ? 0 : 2);
}

} // namespace orl
