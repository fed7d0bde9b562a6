// The walk: the real program on a desktop of its own, used as somebody uses it who cannot see it, through the
// names of its controls. Each station leaves a picture.
//
//     walk PROGRAM FOLDER            walks, with PROGRAM for orl, pictures into FOLDER
//     walk --look FILE WIDTH HEIGHT  saves a picture of the display's upper left, where the window is
//     walk --clipboard               prints the display's clipboard
#include "accessible.h"
#include "demo/demo_host.h"
#include "desk.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <tuple>
#include <utility>

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

    void startProgram(const QStringList &options = {}) {
        program = desk.start(programPath, QStringList{QStringLiteral("--data"), data.path()} + options);
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
        window = {width, height};
    }

    QImage look(const QString &station) {
        const QString file = QDir(pictureFolder).filePath(station + QStringLiteral(".png"));
        QFile::remove(file);
        desk.run(ownPath, {QStringLiteral("--look"), file, QString::number(window.width()),
                           QString::number(window.height())});
        QImage picture(file);
        EXPECT_FALSE(picture.isNull()) << qPrintable(station);
        return picture;
    }

    /// Looks until nothing moves, which some screens never come to.
    void lookAtRest(const QString &station) {
        QImage before = look(station);
        for (int looks = 0; looks < 5; ++looks) {
            const QImage now = look(station);
            if (now == std::exchange(before, now)) return;
        }
    }

    /// Looks until the window has followed the desktop into the dark or into the light.
    void lookWhen(bool dark, const QString &station) {
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return (look(station).pixelColor(1, 1).lightness() < 64) == dark; }, 20000))
            << qPrintable(station) << " did not follow the desktop's colour scheme";
        lookAtRest(station);
    }

    /// The station in light and dark, large and small.
    void lookAround(const QString &station) {
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

    bool gone(const Fits &fits) {
        return QTest::qWaitFor([&] { return all(fits).isEmpty(); }, 20000);
    }

    /// A finger that is put down in the middle of the left side and moved to the right by so many points.
    void drag(int distance) {
        QStringList moves{QStringLiteral("mousemove"), QStringLiteral("40"), QStringLiteral("420"),
                          QStringLiteral("mousedown"), QStringLiteral("1")};
        for (int step = 1; step <= 8; ++step) {
            moves += {QStringLiteral("mousemove"), QString::number(40 + distance * step / 8),
                      QStringLiteral("420"), QStringLiteral("sleep"), QStringLiteral("0.03")};
        }
        desk.run(QStringLiteral("xdotool"), moves);
    }
    void drop() { desk.run(QStringLiteral("xdotool"), {QStringLiteral("mouseup"), QStringLiteral("1")}); }

    /// Turns the wheel over the middle of the window until something fits; the first of it.
    std::optional<Accessible> scrollTo(const Fits &fits) {
        QList<Accessible> found;
        for (int turns = 0; turns < 40 && (found = all(fits)).isEmpty(); ++turns) {
            desk.run(QStringLiteral("xdotool"),
                     {QStringLiteral("mousemove"), QStringLiteral("195"), QStringLiteral("500"),
                      QStringLiteral("click"), QStringLiteral("--repeat"), QStringLiteral("5"),
                      QStringLiteral("5")});
        }
        return found.isEmpty() ? std::nullopt : std::optional(found.first());
    }

    QString clipboard() { return desk.run(ownPath, {QStringLiteral("--clipboard")}); }

    /// How many messages of a sender are unread.
    static int badge(const Accessible &row) {
        return row.description().section(QStringLiteral(" unread"), 0, 0).toInt();
    }

    static QString digitsOf(QString text) {
        text.removeIf([](QChar c) { return !c.isDigit(); });
        return text;
    }

    static bool isButton(const Accessible &control) {
        return control.role() == QStringLiteral("push button");
    }
    /// A tab or a layout. The toolkit takes them for buttons.
    static Fits tab(const QString &label) {
        return [label](const Accessible &control) { return isButton(control) && control.name() == label; };
    }
    static Fits number(const QString &prefix) {
        return [prefix](const Accessible &control) {
            return isButton(control) && control.name().startsWith(prefix);
        };
    }
    /// A sender's name is "sender, time: last message"; this one's holds a code.
    static Fits sender() {
        return [](const Accessible &control) {
            static const QRegularExpression code(QStringLiteral(", \\d\\d:\\d\\d: .*\\d{4}"));
            return isButton(control) && code.match(control.name()).hasMatch();
        };
    }
    /// Something that copies itself.
    static Fits code() {
        return [](const Accessible &control) {
            static const QRegularExpression chip(QStringLiteral("^Copy \\+?\\d+$"));
            return isButton(control) && chip.match(control.name()).hasMatch();
        };
    }

public:
    // The stations, in this order.
    void firstRun();
    void messages();
    void conversation();
    void tapOtherNumber();
    void changeOfNumber();
    void notification();
    void settings();
    void review();
    void restart();
    void limit();

protected:
    QString chosen; ///< the number as its card shows it
    Fits card() const { return beginning(QStringLiteral("Copy number ") + chosen); }

    QStringList contents() {
        QStringList list;
        for (const Accessible &card : all(message()))
            list << card.name().section(QStringLiteral(": "), 1);
        return list;
    }

    Desk desk;
    QTemporaryDir data;
    std::unique_ptr<QProcess> program;
    QSize window{390, 844};
};

void Walk::firstRun() {
    startProgram();
    const std::optional<Accessible> search = wait(named(QStringLiteral("Phone Code or Country...")));
    ASSERT_TRUE(search);
    ASSERT_TRUE(wait(named(QStringLiteral("United States")))) << "the countries never came";
    ASSERT_TRUE(gone(named(QStringLiteral("Virtual Phone Numbers")))) << "the splash stays";
    lookAround(QStringLiteral("01-countries"));

    type(*search, QStringLiteral("germ"));
    ASSERT_TRUE(gone(named(QStringLiteral("United States"))))
        << "the search left a country that does not match";
    lookAround(QStringLiteral("02-search"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Germany")), "the country"));

    const std::optional<Accessible> first = wait(number(QStringLiteral("+49")));
    ASSERT_TRUE(first) << "the numbers never came";
    chosen = first->name();
    lookAround(QStringLiteral("03-numbers"));
    ASSERT_TRUE(first->press());
}

void Walk::messages() {
    ASSERT_TRUE(wait(card())) << "the home screen does not show the number";
    ASSERT_TRUE(wait(message())) << "no message came";
    lookAround(QStringLiteral("04-messages"));

    const QStringList first = contents();
    ASSERT_FALSE(first.isEmpty());
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return std::ranges::any_of(contents(),
                                       [&](const QString &text) { return !first.contains(text); });
        },
        60000))
        << "no new message arrived without a restart";
    look(QStringLiteral("05-new-message"));

    ASSERT_NO_FATAL_FAILURE(press(card(), "the number card"));
    EXPECT_TRUE(wait(named(QStringLiteral("Copied to clipboard!"))));
    look(QStringLiteral("06-copied"));
    EXPECT_EQ(digitsOf(clipboard()).toStdString(), digitsOf(chosen).toStdString());
}

void Walk::conversation() {
    ASSERT_NO_FATAL_FAILURE(press(tab(QStringLiteral("Senders")), "the layout by sender"));
    const std::optional<Accessible> row = wait(sender());
    ASSERT_TRUE(row) << "no sender with a code";
    const int unread = badge(*row);
    EXPECT_GT(unread, 0) << "no badge";
    const QString name = row->name().section(QStringLiteral(", "), 0, 0);
    lookAround(QStringLiteral("07-senders"));

    ASSERT_TRUE(row->press());
    ASSERT_TRUE(wait(named(QStringLiteral("Online")))) << "no conversation";
    QTest::qWait(4000); // both scroll moments pass
    lookAround(QStringLiteral("08-conversation"));
    const std::optional<Accessible> chip = wait(code());
    ASSERT_TRUE(chip) << "no code in the conversation";
    ASSERT_TRUE(chip->press());
    look(QStringLiteral("09-copied-code"));
    EXPECT_EQ(clipboard().toStdString(), chip->name().mid(5).toStdString());
    EXPECT_TRUE(gone(named(QStringLiteral("Copied to clipboard!"))));

    drag(150); // less than 390 / 2.5
    look(QStringLiteral("10-swiped-half"));
    drop();
    QTest::qWait(1000);
    EXPECT_FALSE(all(named(QStringLiteral("Online"))).isEmpty()) << "half a swipe closed it";
    drag(240);
    drop();
    ASSERT_TRUE(gone(named(QStringLiteral("Online")))) << "a whole swipe left it open";

    const std::optional<Accessible> seen = wait([&](const Accessible &control) {
        return isButton(control) && control.name().startsWith(name + u',');
    });
    ASSERT_TRUE(seen);
    EXPECT_LT(badge(*seen), unread) << "the badge stayed"; // new ones may have come meanwhile
    lookAround(QStringLiteral("11-seen"));
}

/// The first number of the United States that is not the present one is tapped.
void Walk::tapOtherNumber() {
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Change number")), "the change of the number"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("United States")), "the other country"));
    const QString present = chosen;
    const std::optional<Accessible> other = wait([&](const Accessible &control) {
        return number(QStringLiteral("+1"))(control) && control.name() != present;
    });
    ASSERT_TRUE(other) << "the numbers never came";
    chosen = other->name();
    ASSERT_TRUE(other->press());
}

void Walk::changeOfNumber() {
    ASSERT_NO_FATAL_FAILURE(tapOtherNumber());
    ASSERT_TRUE(wait(named(QStringLiteral("Choose this Number"))));
    lookAround(QStringLiteral("12-confirmation"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Choose this Number")), "the confirmation"));
    ASSERT_TRUE(wait(card())) << "the number did not change";
    lookAround(QStringLiteral("13-changed"));

    // The country's last number keeps so few messages that all of them stand on one page.
    const Fits brief = [](const Accessible &control) {
        return isButton(control) && digitsOf(control.name()) == QStringLiteral("14155550157");
    };
    const std::optional<Accessible> similar = scrollTo(brief);
    ASSERT_TRUE(similar) << "the home screen does not show the country's other numbers";
    chosen = similar->name();
    ASSERT_TRUE(similar->press());
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Choose this Number")), "the second confirmation"));
    ASSERT_TRUE(wait(card())) << "the number did not change again";
}

/// Messages that were there when the number was chosen are not told of, those that come later are.
void Walk::notification() {
    EXPECT_TRUE(desk.notifications().empty());
    ASSERT_NO_FATAL_FAILURE(press(tab(QStringLiteral("Recent")), "the recent layout"));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !desk.notifications().empty(); }, 90000))
        << "no notification came";
    const NotificationServer::Notification told = desk.notifications().front();
    EXPECT_EQ(told.application.toStdString(), "Orl");
    EXPECT_EQ(told.body.toStdString(), "New message...!");
    EXPECT_TRUE(wait(beginning(told.summary + QStringLiteral(", "))))
        << "no message of " << qPrintable(told.summary);
    const QFileInfo sound(told.hints.value(QStringLiteral("sound-file")).toString());
    EXPECT_EQ(sound.fileName().toStdString(), "swiftsound.caf");
    EXPECT_GT(sound.size(), 0);
    lookAround(QStringLiteral("14-notification"));
}

void Walk::settings() {
    ASSERT_NO_FATAL_FAILURE(press(tab(QStringLiteral("Settings")), "the settings"));
    const Fits sound = named(QStringLiteral("New message notification"));
    ASSERT_TRUE(wait(sound));
    lookAround(QStringLiteral("15-settings"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("History")), "the history"));
    ASSERT_TRUE(wait(number(QStringLiteral("+49")))) << "the first number is not in the history";
    lookAround(QStringLiteral("16-history"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Back")), "the way back from the history"));

    const std::optional<Accessible> before = wait(sound);
    ASSERT_TRUE(before);
    EXPECT_TRUE(before->isChecked());
    ASSERT_NO_FATAL_FAILURE(press(sound, "the switch"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !before->isChecked(); }, 10000)) << "the switch did not move";
    look(QStringLiteral("17-switched"));
}

/// The home screen opens for the second and the third time.
void Walk::review() {
    const Fits review = named(QStringLiteral("Enjoying Orl?"));
    ASSERT_NO_FATAL_FAILURE(press(tab(QStringLiteral("Messages")), "the messages"));
    ASSERT_TRUE(wait(card()));
    EXPECT_TRUE(all(review).isEmpty()) << "it asks at the second opening";
    ASSERT_NO_FATAL_FAILURE(press(tab(QStringLiteral("Settings")), "the settings"));
    ASSERT_TRUE(wait(named(QStringLiteral("New message notification"))));
    ASSERT_NO_FATAL_FAILURE(press(tab(QStringLiteral("Messages")), "the messages"));
    ASSERT_TRUE(wait(review));
    lookAround(QStringLiteral("18-review"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Not now")), "the way out of the review"));
    ASSERT_TRUE(gone(review));
}

void Walk::restart() {
    killProgram();
    startProgram();
    EXPECT_TRUE(wait(card())) << "the choice did not survive the kill";
    EXPECT_TRUE(wait(message())) << "no message after the restart";
    EXPECT_TRUE(gone(named(QStringLiteral("Virtual Phone Numbers"))));
    lookAround(QStringLiteral("19-restarted"));
    ASSERT_NO_FATAL_FAILURE(press(tab(QStringLiteral("Settings")), "the settings"));
    const std::optional<Accessible> sound = wait(named(QStringLiteral("New message notification")));
    ASSERT_TRUE(sound);
    EXPECT_FALSE(sound->isChecked()) << "the switch did not survive the kill";
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("History")), "the history"));
    EXPECT_TRUE(wait(number(chosen))) << "the last choice is not in the history after the kill";
    killProgram();
}

/// Three numbers have been chosen by now. As soon as the host offers videos, that is the limit.
void Walk::limit() {
    DemoHost host;
    demo::ConfigurationValues values;
    values.rewardAdEnabled = true;
    host.setConfiguration(values);
    ASSERT_TRUE(host.start());
    const QString endpoints = data.filePath(QStringLiteral("endpoints"));
    QFile file(endpoints);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(endpointsFile(host.endpoints())) > 0);
    file.close();
    startProgram({QStringLiteral("--endpoints"), endpoints});
    ASSERT_TRUE(wait(card()));

    const Fits alert = beginning(QStringLiteral("LIMIT REACHED"));
    ASSERT_NO_FATAL_FAILURE(tapOtherNumber());
    ASSERT_TRUE(wait(alert)) << "the fourth choice meets no limit";
    lookAround(QStringLiteral("20-limit"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Cancel")), "the way out of the alert"));
    ASSERT_TRUE(gone(alert));

    ASSERT_NO_FATAL_FAILURE(press(named(chosen), "the number once more"));
    ASSERT_TRUE(wait(alert)) << "the limit did not last";
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Watch")), "the video"));
    EXPECT_TRUE(gone(alert));
    killProgram();
}

TEST_F(Walk, FromTheFirstStartThroughAllStationsAndBackAfterAKill) {
    for (const auto station :
         {&Walk::firstRun, &Walk::messages, &Walk::conversation, &Walk::changeOfNumber, &Walk::notification,
          &Walk::settings, &Walk::review, &Walk::restart, &Walk::limit}) {
        (this->*station)();
        if (HasFatalFailure()) return;
    }
}

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
    orl::programPath = QString::fromLocal8Bit(argv[1]);
    orl::pictureFolder = QString::fromLocal8Bit(argv[2]);
    orl::ownPath = QCoreApplication::applicationFilePath();
    return RUN_ALL_TESTS();
}
