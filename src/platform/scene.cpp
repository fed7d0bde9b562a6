#include "platform/scene.h"

namespace orl {

void Scene::setPhase(ScenePhase phase) {
    if (phase == phase_) return;
    phase_ = phase;
    Q_EMIT phaseChanged(phase);
}

Scene &Scene::none() {
    static Scene scene;
    return scene;
}

} // namespace orl
