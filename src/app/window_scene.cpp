#include "app/window_scene.h"

#include <QEvent>
#include <QGuiApplication>

namespace orl {

void WindowScene::follow(QWindow &window) {
    window_ = &window;
    scene_.setHasWindow(true);
    window.installEventFilter(this); // being uncovered is told by an event only
    connect(&window, &QWindow::visibilityChanged, this, &WindowScene::settle);
    connect(&window, &QObject::destroyed, this, [this] {
        scene_.setHasWindow(false);
        settle();
    });
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &WindowScene::settle);
    settle();
}

bool WindowScene::eventFilter(QObject *watched, QEvent *event) {
    // The window's own answer to the event comes after this; what it shows is asked behind that.
    if (event->type() == QEvent::Expose)
        QMetaObject::invokeMethod(this, &WindowScene::settle, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void WindowScene::settle() {
    const bool seen = window_ && window_->isVisible() && window_->isExposed() &&
                      window_->visibility() != QWindow::Minimized;
    if (!seen)
        scene_.setPhase(ScenePhase::Background);
    else if (QGuiApplication::applicationState() == Qt::ApplicationActive)
        scene_.setPhase(ScenePhase::Active);
    else
        scene_.setPhase(ScenePhase::Inactive);
}

void WindowScene::bringToFront(const QString &activationToken) {
    if (!window_) return;
    // The window system's plugin takes the token from here, and out of it.
    if (!activationToken.isEmpty()) qputenv("XDG_ACTIVATION_TOKEN", activationToken.toUtf8());
    if (window_->visibility() == QWindow::Minimized || !window_->isVisible()) window_->showNormal();
    window_->raise();
    window_->requestActivate();
}

} // namespace orl
