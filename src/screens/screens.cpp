#include "screens/screens.h"

#include "screens/mail/attachment_pictures.h"
#include "screens/pictures.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QQmlEngine>

// Generated with the module. A static library is linked without it unless somebody asks for it.
void qml_register_types_Orl_Screens();

/// Global, as the macro declares the function it calls in the namespace where it stands.
static void keepCompiledFiles() {
    Q_INIT_RESOURCE(qmlcache_orl_screens);
}

namespace orl {

namespace {

/// Where the plug-in with the web view is: beside the programs of a build, or installed.
void addWebViewPath(QQmlEngine &engine) {
    for (const char *folder : {"/../web", "/../lib/orl/web"}) {
        const QString path = QCoreApplication::applicationDirPath() + QLatin1String(folder);
        if (QFileInfo::exists(path)) engine.addImportPath(path);
    }
}

} // namespace

void prepareScreens(QQmlEngine &engine, const Platform &platform) {
    qml_register_types_Orl_Screens();
    keepCompiledFiles();
    addWebViewPath(engine);
    engine.addImportPath(QStringLiteral("qrc:/"));
    engine.addImageProvider(QStringLiteral("symbol"), new SymbolImages);
    engine.addImageProvider(QStringLiteral("flag"), new FlagImages);
    engine.addImageProvider(QStringLiteral("sender"),
                            new SenderPictures(platform.globalQueue, platform.urlReader));
    engine.addImageProvider(QStringLiteral("attachment"),
                            new AttachmentPictures(platform.globalQueue, platform.urlReader));
}

} // namespace orl
