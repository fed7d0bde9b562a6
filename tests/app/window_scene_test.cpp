#include "app/window_scene.h"

#include <QGuiApplication>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>
#include <memory>

namespace orl {
namespace {

class WindowSceneTest : public testing::Test {
protected:
    WindowSceneTest() {
        QObject::connect(&scene, &Scene::phaseChanged, &scene, [this](ScenePhase phase) { phases << phase; });
    }

    bool reaches(ScenePhase phase) {
        return QTest::qWaitFor([&] { return scene.phase() == phase; });
    }

    void showAndFollow() {
        windowScene.follow(*window);
        window->show();
        window->requestActivate();
        ASSERT_TRUE(reaches(ScenePhase::Active));
    }

    QList<ScenePhase> phases;
    Scene scene;
    WindowScene windowScene{scene};
    std::unique_ptr<QWindow> window = std::make_unique<QWindow>();
};

TEST_F(WindowSceneTest, AWindowThatIsNotShownIsInTheBackground) {
    EXPECT_FALSE(scene.hasWindow());
    windowScene.follow(*window);
    EXPECT_TRUE(scene.hasWindow());
    EXPECT_EQ(scene.phase(), ScenePhase::Background);
    EXPECT_TRUE(phases.isEmpty());
}

TEST_F(WindowSceneTest, AWindowThatIsSeenWithoutTheFocusIsInactive) {
    window->setFlags(Qt::ToolTip); // takes no focus when it is shown
    windowScene.follow(*window);
    window->show();
    ASSERT_TRUE(reaches(ScenePhase::Inactive));
    window->requestActivate();
    EXPECT_TRUE(reaches(ScenePhase::Active));
    EXPECT_EQ(phases, (QList{ScenePhase::Inactive, ScenePhase::Active}));
}

TEST_F(WindowSceneTest, BeingMinimisedHiddenOrGoneIsTheBackground) {
    showAndFollow();
    window->showMinimized();
    ASSERT_TRUE(reaches(ScenePhase::Background));
    windowScene.bringToFront({});
    ASSERT_TRUE(reaches(ScenePhase::Active));
    window->hide();
    ASSERT_TRUE(reaches(ScenePhase::Background));
    windowScene.bringToFront({});
    ASSERT_TRUE(reaches(ScenePhase::Active));
    window.reset();
    EXPECT_EQ(scene.phase(), ScenePhase::Background);
    EXPECT_FALSE(scene.hasWindow());
    windowScene.bringToFront({}); // there is nothing to bring
}

TEST_F(WindowSceneTest, TheTokenIsLaidOutForTheWindowSystem) {
    qunsetenv("XDG_ACTIVATION_TOKEN");
    showAndFollow();
    windowScene.bringToFront({});
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
    windowScene.bringToFront(QStringLiteral("token 1"));
    EXPECT_EQ(qgetenv("XDG_ACTIVATION_TOKEN"), "token 1");
    qunsetenv("XDG_ACTIVATION_TOKEN");
}

} // namespace
} // namespace orl

int main(int argc, char **argv) {
    QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
