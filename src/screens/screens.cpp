#include "screens/screens.h"

#include "screens/pictures.h"

#include <QQmlEngine>

// Generated with the module. A static library is linked without it unless somebody asks for it.
void qml_register_types_Orl_Screens();

/// Global, as the macro declares the function it calls in the namespace where it stands.
static void keepCompiledFiles() {
    Q_INIT_RESOURCE(qmlcache_orl_screens);
}

namespace orl {

void prepareScreens(QQmlEngine &engine, const Platform &platform) {
    qml_register_types_Orl_Screens();
    keepCompiledFiles();
    engine.addImportPath(QStringLiteral("qrc:/"));
    engine.addImageProvider(QStringLiteral("symbol"), new SymbolImages);
    engine.addImageProvider(QStringLiteral("flag"), new FlagImages);
    engine.addImageProvider(QStringLiteral("sender"),
                            new SenderPictures(platform.globalQueue, platform.urlReader));
}

} // namespace orl
