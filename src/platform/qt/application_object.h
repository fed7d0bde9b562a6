#pragma once

#include <QDBusAbstractAdaptor>
#include <QStringList>
#include <QVariantMap>

namespace orl {

class SingleInstance;

/// The program on the bus, as a desktop starts and activates it.
class ApplicationObject : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    explicit ApplicationObject(SingleInstance &instance);

public Q_SLOTS:
    void Activate(const QVariantMap &platformData);
    /// The program opens no files; it comes to the front.
    void Open(const QStringList &uris, const QVariantMap &platformData);
    /// It has no actions either.
    void ActivateAction(const QString &name, const QVariantList &parameter, const QVariantMap &platformData);

private:
    SingleInstance &instance_;
};

} // namespace orl
