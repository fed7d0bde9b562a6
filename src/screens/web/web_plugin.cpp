#include "screens/web/mail_web.h"

#include <QQmlEngineExtensionPlugin>

void qml_register_types_Orl_Web();

namespace orl {

/// Brings the web engine into the program when the module is first imported.
class WebPlugin : public QQmlEngineExtensionPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlEngineExtensionInterface_iid)
public:
    explicit WebPlugin(QObject *parent = nullptr) : QQmlEngineExtensionPlugin(parent) {
        volatile auto registration = &qml_register_types_Orl_Web;
        Q_UNUSED(registration);
        MailWeb::registerScheme();
    }
};

} // namespace orl

#include "web_plugin.moc"
