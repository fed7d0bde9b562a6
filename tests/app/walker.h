#pragma once

#include "accessible.h"
#include "demo/demo_host.h"
#include "desk.h"

#include <QImage>
#include <QTemporaryDir>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>

namespace orl {

/// What the walk was started with.
struct WalkSetup {
    QString program, pictureFolder, own;
};
inline WalkSetup walkSetup;

/// Somebody who uses the program on a desktop of its own. Whatever waits gives up after a minute.
class Walker : public testing::Test {
protected:
    using Fits = std::function<bool(const Accessible &)>;

    void SetUp() override;

    /// What a failed walk looked like at its end.
    void TearDown() override;

    /// Until its window is there.
    void launch(const QStringList &options = {});
    /// Until it can be used, served without ads unless the options name a host. What it asks a new user is
    /// answered with no.
    void startProgram(const QStringList &options = {});
    /// The options that have the program served by this host, which has started, in the place of the one
    /// within.
    QStringList servedBy(const DemoHost &host) { return servedBy(host.endpoints()); }
    QStringList servedBy(const Endpoints &endpoints);
    /// The same, and whether there is a network depends on Desk::network: a host of this machine itself would
    /// always count as reachable.
    QStringList servedByNetwork(const DemoHost &host);

    /// As when the phone's battery is taken out.
    void killProgram();

    std::optional<Accessible> root();
    QList<Accessible> all(const Fits &fits);

    /// Waits until something fits; the first of it.
    std::optional<Accessible> wait(const Fits &fits);

    static Fits named(const QString &name);
    static Fits beginning(const QString &start);
    /// A message card's name is "sender, age: content".
    static Fits message();

    void press(const Fits &fits, const char *what);
    void type(const Accessible &field, const QString &text);
    void resize(int width, int height);

    /// Keeps a picture under this name and gives it.
    QImage look(const QString &station);

    /// Looks until nothing moves, which some screens never come to.
    void lookAtRest(const QString &station);

    /// Looks until the window has followed the desktop into the dark or into the light.
    void lookWhen(bool dark, const QString &station);

    /// The station in light and dark, large and small.
    void lookAround(const QString &station);

    /// Waits until the splash has left the root screen to the user.
    void waitForTheSplash();
    /// Waits until nothing fits any more.
    bool gone(const Fits &fits);

    /// A finger that is put down in the middle of the left side and moved to the right by so many points.
    void drag(int distance);
    void drop() { desk.run(QStringLiteral("xdotool"), {QStringLiteral("mouseup"), QStringLiteral("1")}); }

    /// Turns the wheel over the middle of the window until something fits; the first of it.
    std::optional<Accessible> scrollTo(const Fits &fits);

    QString clipboard() { return desk.run(walkSetup.own, {QStringLiteral("--clipboard")}); }

    /// How many messages of a sender are unread.
    static int badge(const Accessible &row);

    static QString digitsOf(QString text);
    static bool isButton(const Accessible &control);
    /// A tab or a layout. The toolkit takes them for buttons.
    static Fits tab(const QString &label);
    static Fits number(const QString &prefix);
    /// A sender's name is "sender, time: last message"; this one's holds a code.
    static Fits sender();
    /// Something that copies itself.
    static Fits code();

    Desk desk;
    DemoHost quietHost; ///< has all advertising off
    QTemporaryDir data;
    std::unique_ptr<QProcess> program;
    QSize window{390, 844};
};

} // namespace orl
