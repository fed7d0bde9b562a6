#include "app/application.h"
#include "app/gallery_window.h"
#include "demo/endpoints_in_force.h"
#include "platform/qt/single_instance.h"

#include <QGuiApplication>
#include <QLocale>
#include <QStandardPaths>

#include <cstdio>

namespace {

/// The exit code where this start must not go on; nothing where it is the first one.
std::optional<int> endsHere(orl::SingleInstance &instance, const QString &activationToken) {
    switch (instance.start(activationToken)) {
    case orl::SingleInstance::Start::First: break;
    case orl::SingleInstance::Start::Second: return 0;
    case orl::SingleInstance::Start::NoAnswer:
        std::fputs("orl: it runs already but does not answer\n", stderr);
        return 1;
    }
    return std::nullopt;
}

/// The web engine starts a process that forks off those without a sandbox, of which there are none here, and
/// keeps the one that plays sounds long after the last. Before any thread reads the environment.
void keepFewWebProcesses() {
    constexpr const char *variable = "QTWEBENGINE_CHROMIUM_FLAGS";
    qputenv(variable, qgetenv(variable) + " --no-unsandboxed-zygote --audio-service-quit-timeout-ms=1000");
}

} // namespace

int main(int argc, char **argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    const orl::CommandLine line = orl::readCommandLine(arguments);
    if (!line.options) {
        std::fputs(qUtf8Printable(line.text), line.exitCode == 0 ? stdout : stderr);
        return line.exitCode;
    }
    const QString activationToken =
        qEnvironmentVariable("XDG_ACTIVATION_TOKEN"); // gone once a window took it
    // The web view of a mail, which comes later if at all, draws with what the window draws with.
    QGuiApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    keepFewWebProcesses();
    QGuiApplication gui(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("orl"));
    QGuiApplication::setDesktopFileName(QStringLiteral("orl"));
    QGuiApplication::setLayoutDirection(QLocale().textDirection());

    if (line.options->gallery) return orl::runGallery();

    const QDBusConnection bus = QDBusConnection::sessionBus();
    // Asked for only where it is needed: the question alone prints a warning where there is no such folder.
    const QString runtimeFolder =
        bus.isConnected() ? QString() : QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    orl::SingleInstance instance(line.options->dataFolder, bus, runtimeFolder);
    // A picture is taken beside a running program.
    if (line.options->picture.isEmpty()) {
        if (const auto exitCode = endsHere(instance, activationToken)) {
            if (*exitCode == 0 && line.options->choose)
                std::fputs("orl: it runs already; choose the number there\n", stderr);
            if (*exitCode == 0 && line.options->resetConsent)
                std::fputs("orl: it runs already; close it to be asked again\n", stderr);
            return *exitCode;
        }
    }

    const auto endpoints = orl::EndpointsInForce::open(line.options->endpointsFile);
    if (!endpoints) {
        std::fprintf(stderr, "orl: %s\n", qUtf8Printable(endpoints.error().description));
        return 2;
    }
    orl::Application application(*line.options, endpoints.value()->endpoints());
    QObject::connect(&instance, &orl::SingleInstance::activated,
                     [&application](const QString &token) { application.bringToFront(token); });
    return application.run();
}
