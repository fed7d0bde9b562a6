// The walk: the real program on a desktop of its own, used as somebody uses it who cannot see it, through the
// names of its controls. Each station leaves a picture.
//
//     walk PROGRAM FOLDER            walks, with PROGRAM for orl, pictures into FOLDER
//     walk --look FILE               saves a picture of the display
//     walk --clipboard               prints the display's clipboard
#include "accessible.h"
#include "desk.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <tuple>

namespace orl {
namespace {

QString programPath, pictureFolder, ownPath;

class Walk : public testing::Test {
protected:
    using Fits = std::function<bool(const Accessible &)>;

    void SetUp() override {
        ASSERT_EQ(desk.problem().toStdString(), "");
        QDir().mkpath(pictureFolder);
    }

    /// What a failed walk looked like at its end.
    void TearDown() override {
        if (!HasFailure() || !desk.problem().isEmpty()) return;
        look(QStringLiteral("failed"));
        for (const Accessible &control : all([](const Accessible &) { return true; }))
            std::fprintf(stderr, "  %s \"%s\"\n", qPrintable(control.role()), qPrintable(control.name()));
    }

    void startProgram() {
        program = desk.start(programPath, {QStringLiteral("--data"), data.path()});
        ASSERT_TRUE(QTest::qWaitFor([this] { return root().has_value(); }, 60000))
            << "it never came to the bus";
        // Nothing behind the splash can be used before it has gone; it is there ahead of the root screen.
        const Fits splash = named(QStringLiteral("Virtual Phone Numbers"));
        const Fits rootScreen = [](const Accessible &control) {
            return control.name() == QStringLiteral("Tabs") ||
                   control.name() == QStringLiteral("Phone Code or Country...");
        };
        ASSERT_TRUE(wait(rootScreen)) << "no screen came";
        ASSERT_TRUE(QTest::qWaitFor([&] { return all(splash).isEmpty(); }, 60000)) << "the splash stays";
    }

    /// As when the phone's battery is taken out.
    void killProgram() {
        program->kill();
        ASSERT_TRUE(program->waitForFinished(10000));
    }

    std::optional<Accessible> root() {
        return Accessible::program(desk.accessibilityBus(), QStringLiteral("orl"));
    }

    QList<Accessible> all(const Fits &fits) {
        const std::optional<Accessible> found = root();
        return found ? found->all(fits) : QList<Accessible>();
    }

    /// Waits until something fits; the first of it.
    std::optional<Accessible> wait(const Fits &fits) {
        QList<Accessible> found;
        std::ignore = QTest::qWaitFor([&] { return !(found = all(fits)).isEmpty(); }, 60000);
        return found.isEmpty() ? std::nullopt : std::optional(found.first());
    }

    static Fits named(const QString &name) {
        return [name](const Accessible &control) { return control.name() == name; };
    }
    static Fits beginning(const QString &start) {
        return [start](const Accessible &control) { return control.name().startsWith(start); };
    }
    /// A message card's name is "sender, age: content".
    static Fits message() {
        return [](const Accessible &control) {
            return control.role() == QStringLiteral("list item") &&
                   control.name().contains(QStringLiteral(": "));
        };
    }

    void press(const Fits &fits, const char *what) {
        const std::optional<Accessible> control = wait(fits);
        ASSERT_TRUE(control) << "nothing to press: " << what;
        ASSERT_TRUE(control->press()) << what;
    }

    void type(const Accessible &field, const QString &text) {
        const QPoint at = field.centre();
        desk.run(QStringLiteral("xdotool"),
                 {QStringLiteral("search"), QStringLiteral("--name"), QStringLiteral("^orl$"),
                  QStringLiteral("windowfocus"), QStringLiteral("mousemove"), QString::number(at.x()),
                  QString::number(at.y()), QStringLiteral("click"), QStringLiteral("1"),
                  QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("40"), text});
    }

    void resize(int width, int height) {
        desk.run(QStringLiteral("xdotool"),
                 {QStringLiteral("search"), QStringLiteral("--name"), QStringLiteral("^orl$"),
                  QStringLiteral("windowsize"), QStringLiteral("--sync"), QString::number(width),
                  QString::number(height)});
    }

    QImage look(const QString &station) {
        const QString file = QDir(pictureFolder).filePath(station + QStringLiteral(".png"));
        QFile::remove(file);
        desk.run(ownPath, {QStringLiteral("--look"), file});
        QImage picture(file);
        EXPECT_FALSE(picture.isNull()) << qPrintable(station);
        return picture;
    }

    /// Looks until the window has followed the desktop into the dark or into the light.
    void lookWhen(bool dark, const QString &station) {
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return (look(station).pixelColor(1, 1).lightness() < 64) == dark; }, 20000))
            << qPrintable(station) << " did not follow the desktop's colour scheme";
    }

    /// The station in light and dark, large and small.
    void lookAround(const QString &station) {
        lookWhen(false, station + QStringLiteral("-light"));
        desk.portal().setDark(true);
        resize(360, 640);
        lookWhen(true, station + QStringLiteral("-dark-small"));
        desk.portal().setDark(false);
        resize(390, 844);
    }

    QStringList contents() {
        QStringList list;
        for (const Accessible &card : all(message()))
            list << card.name().section(QStringLiteral(": "), 1);
        return list;
    }

    Desk desk;
    QTemporaryDir data;
    std::unique_ptr<QProcess> program;
};

TEST_F(Walk, FromTheFirstStartToAMessageAndBackAfterAKill) {
    startProgram();
    const std::optional<Accessible> search = wait(named(QStringLiteral("Phone Code or Country...")));
    ASSERT_TRUE(search);
    ASSERT_TRUE(wait(named(QStringLiteral("United States")))) << "the countries never came";
    lookAround(QStringLiteral("1-countries"));

    type(*search, QStringLiteral("germ"));
    ASSERT_TRUE(
        QTest::qWaitFor([this] { return all(named(QStringLiteral("United States"))).isEmpty(); }, 20000))
        << "the search left a country that does not match";
    look(QStringLiteral("2-search"));
    press(named(QStringLiteral("Germany")), "the country");

    const std::optional<Accessible> number = wait([](const Accessible &control) {
        return control.role() == QStringLiteral("push button") &&
               control.name().startsWith(QStringLiteral("+49"));
    });
    ASSERT_TRUE(number) << "the numbers never came";
    const QString chosen = number->name();
    lookAround(QStringLiteral("3-numbers"));
    ASSERT_TRUE(number->press());

    const Fits card = beginning(QStringLiteral("Copy number ") + chosen);
    ASSERT_TRUE(wait(card)) << "the home screen does not show the number";
    ASSERT_TRUE(wait(message())) << "no message came";
    lookAround(QStringLiteral("4-messages"));

    const QStringList first = contents();
    ASSERT_FALSE(first.isEmpty());
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return std::ranges::any_of(contents(),
                                       [&](const QString &text) { return !first.contains(text); });
        },
        60000))
        << "no new message arrived without a restart";
    look(QStringLiteral("5-new-message"));

    press(card, "the number card");
    EXPECT_TRUE(wait(named(QStringLiteral("Copied to clipboard!"))));
    look(QStringLiteral("6-copied"));
    QString digits = desk.run(ownPath, {QStringLiteral("--clipboard")});
    digits.removeIf([](QChar c) { return !c.isDigit(); });
    QString wanted = chosen;
    wanted.removeIf([](QChar c) { return !c.isDigit(); });
    EXPECT_EQ(digits.toStdString(), wanted.toStdString());

    press(named(QStringLiteral("Senders")), "the layout by sender");
    QTest::qWait(1000);
    look(QStringLiteral("7-senders"));

    killProgram();
    startProgram();
    EXPECT_TRUE(wait(card)) << "the choice did not survive the kill";
    EXPECT_TRUE(wait(message())) << "no message after the restart";
    look(QStringLiteral("8-restarted"));
    killProgram();
}

int lookAtDisplay(int argc, char **argv, const QString &file) {
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QGuiApplication gui(argc, argv);
    return QGuiApplication::primaryScreen()->grabWindow(0).save(file) ? 0 : 1;
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
    if (first == QStringLiteral("--look") && argc > 2)
        return orl::lookAtDisplay(argc, argv, QString::fromLocal8Bit(argv[2]));
    if (first == QStringLiteral("--clipboard")) return orl::printClipboard(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    if (argc < 3) {
        std::fputs("usage: walk PROGRAM FOLDER\n", stderr);
        return 2;
    }
    orl::programPath = QString::fromLocal8Bit(argv[1]);
    orl::pictureFolder = QString::fromLocal8Bit(argv[2]);
    orl::ownPath = QCoreApplication::applicationFilePath();
    return RUN_ALL_TESTS();
}
