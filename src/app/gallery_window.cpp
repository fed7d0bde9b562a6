#include "app/gallery_window.h"

#include "app/desktop_appearance.h"
#include "platform/qt/linux_platform.h"
#include "screens/ad_images.h"
#include "screens/gallery.h"
#include "screens/screens.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QTemporaryDir>

namespace orl {

int runGallery() {
    const QTemporaryDir scratch;
    LinuxPlatform phone({scratch.path(), {}, {}});
    Appearance appearance;
    const DesktopAppearance desktop(appearance);
    Process process(phone.platform());
    Gallery gallery(appearance, process);
    QQmlApplicationEngine engine;
    prepareScreens(engine, phone.platform());
    prepareAds(engine, process);
    engine.setInitialProperties({{QStringLiteral("gallery"), QVariant::fromValue(&gallery)}});
    engine.load(QUrl(QString::fromLatin1(galleryWindow)));
    const int exitCode = engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
    phone.stop();
    return exitCode;
}

} // namespace orl
