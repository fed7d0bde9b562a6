// From the first start through the stations of the number service and back after a kill.
#include "walker.h"

#include <QFileInfo>
#include <QTest>

#include <algorithm>
#include <utility>

namespace orl {
namespace {

class Walk : public Walker {
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
    host.setFault(QStringLiteral("/ads"), Fault::Kind::Dead);
    ASSERT_TRUE(host.start());
    startProgram(servedBy(host));
    ASSERT_TRUE(wait(card()));

    const Fits alert = beginning(QStringLiteral("LIMIT REACHED"));
    ASSERT_NO_FATAL_FAILURE(tapOtherNumber());
    ASSERT_TRUE(wait(alert)) << "the fourth choice meets no limit";
    lookAround(QStringLiteral("20-limit"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Cancel")), "the way out of the alert"));
    ASSERT_TRUE(gone(alert));

    // Without a video the user is not held back.
    ASSERT_NO_FATAL_FAILURE(press(named(chosen), "the number once more"));
    ASSERT_TRUE(wait(alert)) << "the limit did not last";
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Watch")), "the video"));
    ASSERT_TRUE(gone(alert));
    ASSERT_NO_FATAL_FAILURE(press(named(chosen), "the number the third time"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Choose this Number")), "the confirmation"));
    ASSERT_TRUE(wait(card())) << "the number did not change";
    killProgram();

    host.clearFaults();
    startProgram(servedBy(host));
    ASSERT_TRUE(wait(card()));
    ASSERT_NO_FATAL_FAILURE(tapOtherNumber());
    ASSERT_TRUE(wait(alert)) << "the choice without a video did not count";
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Watch")), "the video"));
    ASSERT_TRUE(wait(beginning(QStringLiteral("Reward in ")))) << "no video";
    lookAround(QStringLiteral("21-video"));
    ASSERT_TRUE(wait(named(QStringLiteral("Reward earned")))) << "no reward";
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Close")), "the way out of the video"));
    // Two more choices: the video was worth more than one.
    ASSERT_NO_FATAL_FAILURE(press(named(chosen), "the number after the video"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Choose this Number")), "its confirmation"));
    ASSERT_TRUE(wait(card())) << "the number did not change after the video";
    ASSERT_NO_FATAL_FAILURE(tapOtherNumber());
    EXPECT_TRUE(wait(named(QStringLiteral("Choose this Number")))) << "the video refilled too little";
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

} // namespace
} // namespace orl
