#pragma once

#include <QObject>

namespace orl {

/// How far the program is in front of the user.
enum class ScenePhase {
    Background, ///< nothing of it is on the screen
    Inactive,   ///< on the screen, but the user is busy with something else
    Active
};

/// The program's one window as the phone sees it. Main thread. Whoever owns the window tells its changes.
class Scene : public QObject {
    Q_OBJECT
public:
    Scene() = default;

    ScenePhase phase() const { return phase_; }
    /// Whether there is a window that something can be shown in.
    bool hasWindow() const { return hasWindow_; }

    void setPhase(ScenePhase phase);
    void setHasWindow(bool hasWindow) { hasWindow_ = hasWindow; }

    /// The scene of a program without a window: it stays in the background.
    static Scene &none();

Q_SIGNALS:
    /// After a change; the new phase is never the old one.
    void phaseChanged(orl::ScenePhase phase);

private:
    ScenePhase phase_ = ScenePhase::Background;
    bool hasWindow_ = false;
};

} // namespace orl
