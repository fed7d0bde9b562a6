// The walk: the real program on a desktop of its own, used as somebody uses it who cannot see it, through the
// names of its controls. Each station leaves a picture.
//
//     walk PROGRAM FOLDER            walks, with PROGRAM for orl, pictures into FOLDER
//     walk --look FILE WIDTH HEIGHT  saves a picture of the display's upper left, where the window is
//     walk --clipboard               prints the display's clipboard
#include "walker.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QPixmap>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>

#include <cstdio>
#include <cstdlib>
#include <tuple>
#include <utility>

namespace orl {

void Walker::SetUp() {
    ASSERT_EQ(desk.problem().toStdString(), "");
    ASSERT_TRUE(quietHost.start());
    QDir().mkpath(walkSetup.pictureFolder);
}

void Walker::TearDown() {
    if (!HasFailure() || !desk.problem().isEmpty()) return;
    look(QStringLiteral("failed"));
    for (const Accessible &control : all([](const Accessible &) { return true; }))
        std::fprintf(stderr, "  %s \"%s\"\n", qPrintable(control.role()), qPrintable(control.name()));
}

void Walker::launch(const QStringList &options) {
    program = desk.start(walkSetup.program, QStringList{QStringLiteral("--data"), data.path()} + options);
    ASSERT_TRUE(QTest::qWaitFor([this] { return root().has_value(); }, 60000)) << "it never came to the bus";
    const Fits rootScreen = [](const Accessible &control) {
        return control.name() == QStringLiteral("Tabs") ||
               control.name() == QStringLiteral("Phone Code or Country...");
    };
    ASSERT_TRUE(wait(rootScreen)) << "no screen came";
}

/// Nothing behind the splash can be used before it has gone; it is there ahead of the root screen.
void Walker::waitForTheSplash() {
    const Fits splash = named(QStringLiteral("Virtual Phone Numbers"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return all(splash).isEmpty(); }, 60000)) << "the splash stays";
}

void Walker::startProgram(const QStringList &options) {
    const bool served = options.contains(QStringLiteral("--endpoints"));
    ASSERT_NO_FATAL_FAILURE(launch(served ? options : servedBy(quietHost) + options));
    const Fits splash = named(QStringLiteral("Virtual Phone Numbers"));
    const Fits question = [](const Accessible &control) {
        return control.name() == QStringLiteral("Continue") ||
               control.name() == QStringLiteral("Don't allow");
    };
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            const QList<Accessible> asked = all(question);
            if (!asked.isEmpty()) asked.first().press();
            return all(splash).isEmpty();
        },
        60000))
        << "the splash stays";
}

QStringList Walker::servedBy(const Endpoints &endpoints) {
    const QString path = data.filePath(QStringLiteral("endpoints"));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(endpointsFile(endpoints)) > 0);
    return {QStringLiteral("--endpoints"), path};
}

QStringList Walker::servedByNetwork(const DemoHost &host) {
    Endpoints endpoints = host.endpoints();
    endpoints.connectivityProbe = QStringLiteral("https://probe.example");
    return servedBy(endpoints);
}

void Walker::killProgram() {
    program->kill();
    ASSERT_TRUE(program->waitForFinished(10000));
}

std::optional<Accessible> Walker::root() {
    return Accessible::program(desk.accessibilityBus(), QStringLiteral("orl"));
}

QList<Accessible> Walker::all(const Fits &fits) {
    const std::optional<Accessible> found = root();
    return found ? found->all(fits) : QList<Accessible>();
}

std::optional<Accessible> Walker::wait(const Fits &fits) {
    QList<Accessible> found;
    std::ignore = QTest::qWaitFor([&] { return !(found = all(fits)).isEmpty(); }, 60000);
    return found.isEmpty() ? std::nullopt : std::optional(found.first());
}

Walker::Fits Walker::named(const QString &name) {
    return [name](const Accessible &control) { return control.name() == name; };
}

Walker::Fits Walker::beginning(const QString &start) {
    return [start](const Accessible &control) { return control.name().startsWith(start); };
}

Walker::Fits Walker::message() {
    return [](const Accessible &control) {
        return control.role() == QStringLiteral("list item") && control.name().contains(QStringLiteral(": "));
    };
}

void Walker::press(const Fits &fits, const char *what) {
    const std::optional<Accessible> control = wait(fits);
    ASSERT_TRUE(control) << "nothing to press: " << what;
    ASSERT_TRUE(control->press()) << what;
}

void Walker::type(const Accessible &field, const QString &text) {
    const QPoint at = field.centre();
    desk.run(QStringLiteral("xdotool"),
             {QStringLiteral("search"), QStringLiteral("--name"), QStringLiteral("^orl$"),
              QStringLiteral("windowfocus"), QStringLiteral("mousemove"), QString::number(at.x()),
              QString::number(at.y()), QStringLiteral("click"), QStringLiteral("1"), QStringLiteral("type"),
              QStringLiteral("--delay"), QStringLiteral("40"), text});
}

void Walker::resize(int width, int height) {
    desk.run(QStringLiteral("xdotool"),
             {QStringLiteral("search"), QStringLiteral("--name"), QStringLiteral("^orl$"),
              QStringLiteral("windowsize"), QStringLiteral("--sync"), QString::number(width),
              QString::number(height)});
    window = {width, height};
}

QImage Walker::look(const QString &station) {
    const QString file = QDir(walkSetup.pictureFolder).filePath(station + QStringLiteral(".png"));
    QFile::remove(file);
    desk.run(walkSetup.own, {QStringLiteral("--look"), file, QString::number(window.width()),
                             QString::number(window.height())});
    QImage picture(file);
    EXPECT_FALSE(picture.isNull()) << qPrintable(station);
    return picture;
}

void Walker::lookAtRest(const QString &station) {
    QImage before = look(station);
    for (int looks = 0; looks < 5; ++looks) {
        const QImage now = look(station);
        if (now == std::exchange(before, now)) return;
    }
}

void Walker::lookWhen(bool dark, const QString &station) {
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return (look(station).pixelColor(1, 1).lightness() < 64) == dark; }, 20000))
        << qPrintable(station) << " did not follow the desktop's colour scheme";
    lookAtRest(station);
}

void Walker::lookAround(const QString &station) {
    lookWhen(false, station + QStringLiteral("-390x844-light"));
    resize(360, 640);
    lookAtRest(station + QStringLiteral("-360x640-light"));
    desk.portal().setDark(true);
    lookWhen(true, station + QStringLiteral("-360x640-dark"));
    resize(390, 844);
    lookAtRest(station + QStringLiteral("-390x844-dark"));
    desk.portal().setDark(false);
    lookWhen(false, station + QStringLiteral("-390x844-light"));
}

bool Walker::gone(const Fits &fits) {
    return QTest::qWaitFor([&] { return all(fits).isEmpty(); }, 20000);
}

void Walker::drag(int distance) {
    QStringList moves{QStringLiteral("mousemove"), QStringLiteral("40"), QStringLiteral("420"),
                      QStringLiteral("mousedown"), QStringLiteral("1")};
    for (int step = 1; step <= 8; ++step) {
        moves += {QStringLiteral("mousemove"), QString::number(40 + distance * step / 8),
                  QStringLiteral("420"), QStringLiteral("sleep"), QStringLiteral("0.03")};
    }
    desk.run(QStringLiteral("xdotool"), moves);
}

std::optional<Accessible> Walker::scrollTo(const Fits &fits) {
    QList<Accessible> found;
    for (int turns = 0; turns < 40 && (found = all(fits)).isEmpty(); ++turns) {
        desk.run(QStringLiteral("xdotool"),
                 {QStringLiteral("mousemove"), QStringLiteral("195"), QStringLiteral("500"),
                  QStringLiteral("click"), QStringLiteral("--repeat"), QStringLiteral("5"),
                  QStringLiteral("5")});
    }
    return found.isEmpty() ? std::nullopt : std::optional(found.first());
}

int Walker::badge(const Accessible &row) {
    return row.description().section(QStringLiteral(" unread"), 0, 0).toInt();
}

QString Walker::digitsOf(QString text) {
    text.removeIf([](QChar c) { return !c.isDigit(); });
    return text;
}

bool Walker::isButton(const Accessible &control) {
    return control.role() == QStringLiteral("push button");
}

Walker::Fits Walker::tab(const QString &label) {
    return [label](const Accessible &control) { return isButton(control) && control.name() == label; };
}

Walker::Fits Walker::number(const QString &prefix) {
    return [prefix](const Accessible &control) {
        return isButton(control) && control.name().startsWith(prefix);
    };
}

Walker::Fits Walker::sender() {
    return [](const Accessible &control) {
        static const QRegularExpression code(QStringLiteral(", \\d\\d:\\d\\d: .*\\d{4}"));
        return isButton(control) && code.match(control.name()).hasMatch();
    };
}

Walker::Fits Walker::code() {
    return [](const Accessible &control) {
        static const QRegularExpression chip(QStringLiteral("^Copy \\+?\\d+$"));
        return isButton(control) && chip.match(control.name()).hasMatch();
    };
}

namespace {

int lookAtDisplay(int argc, char **argv, const QString &file, const QSize &size) {
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QGuiApplication gui(argc, argv);
    const QPixmap picture =
        QGuiApplication::primaryScreen()->grabWindow(0, 0, 0, size.width(), size.height());
    return picture.save(file) ? 0 : 1;
}

int printClipboard(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QGuiApplication gui(argc, argv);
    std::fputs(qPrintable(QGuiApplication::clipboard()->text()), stdout);
    return 0;
}

} // namespace
} // namespace orl

int main(int argc, char **argv) {
    const QString first = QString::fromLocal8Bit(argc > 1 ? argv[1] : "");
    if (first == QStringLiteral("--look") && argc > 4) {
        const QSize size(std::atoi(argv[3]), std::atoi(argv[4]));
        return orl::lookAtDisplay(argc, argv, QString::fromLocal8Bit(argv[2]), size);
    }
    if (first == QStringLiteral("--clipboard")) return orl::printClipboard(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    if (argc < 3) {
        std::fputs("usage: walk PROGRAM FOLDER\n", stderr);
        return 2;
    }
    orl::walkSetup.program = QString::fromLocal8Bit(argv[1]);
    orl::walkSetup.pictureFolder = QString::fromLocal8Bit(argv[2]);
    orl::walkSetup.own = QCoreApplication::applicationFilePath();
    return RUN_ALL_TESTS();
}
