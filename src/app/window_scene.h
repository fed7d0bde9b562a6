#pragma once

#include "platform/scene.h"

#include <QObject>
#include <QPointer>
#include <QWindow>

namespace orl {

/// Keeps a Scene in step with the program's window: active while it has the focus, in the background while it
/// is closed, minimised or covered as a whole.
class WindowScene : public QObject {
    Q_OBJECT
public:
    explicit WindowScene(Scene &scene) : scene_(scene) {}

    void follow(QWindow &window);

    /// Shows the window and asks the desktop for the focus. The token says that the user wants it; without
    /// one a desktop may only mark the window as waiting.
    void bringToFront(const QString &activationToken);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void settle();

    Scene &scene_;
    QPointer<QWindow> window_;
};

} // namespace orl
