#pragma once

#include "screens/appearance.h"

#include <QDBusVariant>
#include <QObject>

#include <functional>

namespace orl {

/// Keeps an Appearance in step with the desktop: colour scheme, text size and reduced motion from the
/// settings portal, also when they change later; without a portal the scheme of the palette. Never waits for
/// an answer.
class DesktopAppearance : public QObject {
    Q_OBJECT
public:
    explicit DesktopAppearance(Appearance &appearance, QObject *parent = nullptr);

private Q_SLOTS:
    void apply(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void follow();
    void read(const QString &group, const QString &key, const std::function<void()> &then = {});

    Appearance &appearance_;
};

} // namespace orl
