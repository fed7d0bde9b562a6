#include "platform/qt/application_object.h"

#include "platform/qt/single_instance.h"

namespace orl {

ApplicationObject::ApplicationObject(SingleInstance &instance)
    : QDBusAbstractAdaptor(&instance), instance_(instance) {}

void ApplicationObject::Activate(const QVariantMap &platformData) {
    Q_EMIT instance_.activated(platformData.value(QStringLiteral("activation-token")).toString());
}

void ApplicationObject::Open(const QStringList &, const QVariantMap &platformData) {
    Activate(platformData);
}

void ApplicationObject::ActivateAction(const QString &, const QVariantList &,
                                       const QVariantMap &platformData) {
    Activate(platformData);
}

} // namespace orl
