// The stations of the mail tab, on a host that goes on while the program is killed and started again.
#include "demo/mail/letter_texts.h"
#include "support/web_processes.h"
#include "walker.h"

#include <QRegularExpression>
#include <QTest>

namespace orl {
namespace {

class MailWalk : public Walker {
public:
    void buildAddress();
    void watchMails();
    void readMails();
    void readNote();
    void leaveTheTab();
    void readMarksAfterARestart();
    void changeOfAddress();
    void hostGoneAndBack();
    void offlineAndBack();

protected:
    /// A row's name is "sender, time: subject". The toolkit takes it for a button.
    static Fits row(const QString &subject) {
        return [subject](const Accessible &control) {
            return isButton(control) && control.name().contains(subject);
        };
    }

    void openTab() {
        ASSERT_NO_FATAL_FAILURE(press(tab(QStringLiteral("EMail")), "the mail tab"));
        ASSERT_TRUE(wait(named(QStringLiteral("Temp Mail"))));
    }

    void openMail(const QString &subject, const QString &picture) {
        ASSERT_TRUE(scrollTo(row(subject))) << qPrintable(subject);
        ASSERT_NO_FATAL_FAILURE(press(row(subject), "a mail"));
        ASSERT_TRUE(wait(named(QStringLiteral("Subject:"))));
        look(picture);
    }

    void closeMail() {
        ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Back")), "the way back"));
        ASSERT_TRUE(gone(named(QStringLiteral("Subject:"))));
    }

    DemoHost host;
};

void MailWalk::buildAddress() {
    host.setConfiguration({}); // no ads
    ASSERT_TRUE(host.start());
    startProgram(servedByNetwork(host));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("United States")), "a country"));
    ASSERT_NO_FATAL_FAILURE(press(number(QStringLiteral("+1")), "a number"));
    ASSERT_NO_FATAL_FAILURE(openTab());
    ASSERT_TRUE(wait(named(QStringLiteral("Create Your Temporary Email Address"))));
    lookAround(QStringLiteral("30-mail-builder"));
    const std::optional<Accessible> field = wait(named(QStringLiteral("Name")));
    ASSERT_TRUE(field);
    type(*field, QStringLiteral("walker"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Create")), "the button that creates"));
    const std::optional<Accessible> card = wait(beginning(QStringLiteral("Copy address walker@")));
    ASSERT_TRUE(card);
    ASSERT_TRUE(card->press());
    EXPECT_TRUE(wait(named(QStringLiteral("Copied to clipboard!"))));
    EXPECT_TRUE(clipboard().startsWith(QStringLiteral("walker@"))) << qPrintable(clipboard());
}

void MailWalk::watchMails() {
    ASSERT_TRUE(wait(row(QStringLiteral("Welcome to your inbox"))));
    EXPECT_EQ(wait(row(QStringLiteral("Welcome")))->description(), QStringLiteral("Unread"));
    ASSERT_TRUE(wait(row(QStringLiteral("Confirm your address")))) << "no second mail came";
    ASSERT_TRUE(wait(row(QStringLiteral("Photos of Sunday")))) << "no attachments came";
    lookAround(QStringLiteral("31-mail-inbox"));
}

void MailWalk::readMails() {
    ASSERT_NO_FATAL_FAILURE(
        openMail(QStringLiteral("Welcome to your inbox"), QStringLiteral("32-mail-html")));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Private mode")), "private mode"));
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return wait(named(QStringLiteral("Private mode")))->isChecked(); }, 10000));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Private mode")), "private mode"));
    ASSERT_NO_FATAL_FAILURE(closeMail());
    ASSERT_NO_FATAL_FAILURE(
        openMail(QStringLiteral("Photos of Sunday"), QStringLiteral("33-mail-attachments")));
    ASSERT_NO_FATAL_FAILURE(press(beginning(QStringLiteral("Harbour at noon.JPG")), "an attachment"));
    EXPECT_TRUE(wait(named(QStringLiteral("Attached picture"))));
    lookAtRest(QStringLiteral("34-mail-attachment"));
    ASSERT_NO_FATAL_FAILURE(closeMail());
    ASSERT_NO_FATAL_FAILURE(readNote());
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return wait(row(QStringLiteral("Welcome")))->description() == QStringLiteral("Read"); }, 20000))
        << "an opened mail is not marked";
    lookAtRest(QStringLiteral("35-mail-read"));
}

/// The third mail is plain text, one of a few; its line breaks are blanks in the page.
void MailWalk::readNote() {
    const demo::NoteText *note = nullptr;
    ASSERT_TRUE(wait([&](const Accessible &control) {
        for (const demo::NoteText &text : demo::noteTexts())
            if (row(QString::fromUtf8(text.subject))(control)) note = &text;
        return note != nullptr;
    })) << "no plain text came";
    ASSERT_NO_FATAL_FAILURE(openMail(QString::fromUtf8(note->subject), QStringLiteral("32-mail-plain-text")));
    // The page has no accessible names; its words are copied out of it.
    const QString words = QString::fromUtf8(note->text).simplified();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            desk.run(QStringLiteral("xdotool"),
                     {QStringLiteral("search"), QStringLiteral("--name"), QStringLiteral("^orl$"),
                      QStringLiteral("windowfocus"), QStringLiteral("mousemove"), QStringLiteral("195"),
                      QStringLiteral("600"), QStringLiteral("click"), QStringLiteral("1"),
                      QStringLiteral("key"), QStringLiteral("ctrl+a"), QStringLiteral("ctrl+c")});
            return clipboard().simplified() == words;
        },
        60000))
        << "the page says " << qPrintable(clipboard().simplified());
    lookAtRest(QStringLiteral("32-mail-plain-text"));
    ASSERT_NO_FATAL_FAILURE(closeMail());
}

/// What draws mails goes ten seconds later. What stays is one process that waits.
void MailWalk::leaveTheTab() {
    EXPECT_GE(WebProcesses::of(program->processId()).drawing, 1);
    ASSERT_NO_FATAL_FAILURE(press(tab(QStringLiteral("Settings")), "another tab"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return WebProcesses::of(program->processId()).drawing == 0; }, 60000));
    EXPECT_EQ(WebProcesses::of(program->processId()).waiting, 1);
}

void MailWalk::readMarksAfterARestart() {
    killProgram();
    startProgram(servedByNetwork(host));
    ASSERT_NO_FATAL_FAILURE(openTab());
    ASSERT_TRUE(wait(row(QStringLiteral("Photos of Sunday"))));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return wait(row(QStringLiteral("Photos of Sunday")))->description() == QStringLiteral("Read");
        },
        30000))
        << "read marks did not survive the kill";
}

void MailWalk::changeOfAddress() {
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Change address")), "the tool button"));
    ASSERT_TRUE(wait(named(QStringLiteral("Create Your Temporary Email Address"))));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Cancel")), "the way out of the builder"));
    ASSERT_TRUE(wait(beginning(QStringLiteral("Copy address walker@"))));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Change address")), "the tool button again"));
    const std::optional<Accessible> field = wait(named(QStringLiteral("Name")));
    ASSERT_TRUE(field);
    type(*field, QStringLiteral("second"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Create")), "the button that creates"));
    ASSERT_TRUE(wait(beginning(QStringLiteral("Copy address second@"))));
    EXPECT_TRUE(gone(row(QStringLiteral("Photos of Sunday")))) << "the old inbox stays";
    lookAtRest(QStringLiteral("36-mail-second-address"));
}

/// The mail host is gone for a while: the inbox stays as it is, and goes on when the host is back.
void MailWalk::hostGoneAndBack() {
    ASSERT_TRUE(wait(row(QStringLiteral("Welcome to your inbox"))));
    host.setFault(QStringLiteral("/mail"), Fault::Kind::Dead);
    ASSERT_NO_FATAL_FAILURE(press(tab(QStringLiteral("Settings")), "the settings"));
    ASSERT_NO_FATAL_FAILURE(openTab());
    EXPECT_TRUE(wait(row(QStringLiteral("Welcome to your inbox"))));
    host.clearFaults();
    EXPECT_TRUE(wait(row(QStringLiteral("Confirm your address")))) << "the inbox does not go on";
}

/// The plug is pulled: the next poll finds that out, and says so until the user asks again with the plug in.
void MailWalk::offlineAndBack() {
    const Fits offline = named(QStringLiteral("Whoops!"));
    const Fits retry = named(QStringLiteral("Try again!"));
    desk.network().setOnline(false);
    ASSERT_TRUE(wait(offline)) << "nothing says that there is no network";
    EXPECT_TRUE(all(row(QStringLiteral("Welcome to your inbox"))).isEmpty());
    lookAround(QStringLiteral("37-mail-offline"));
    ASSERT_NO_FATAL_FAILURE(press(retry, "the button without a network"));
    EXPECT_FALSE(all(offline).isEmpty());
    desk.network().setOnline(true);
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            const QList<Accessible> button = all(retry);
            if (!button.isEmpty()) button.first().press();
            return button.isEmpty();
        },
        20000))
        << "it stays offline";
    ASSERT_TRUE(wait(row(QStringLiteral("Welcome to your inbox"))));
    EXPECT_TRUE(wait(row(QStringLiteral("Photos of Sunday")))) << "the inbox does not go on";
    lookAtRest(QStringLiteral("38-mail-online"));
    killProgram();
}

TEST_F(MailWalk, AnAddressItsMailsAndAnotherAddress) {
    for (const auto station :
         {&MailWalk::buildAddress, &MailWalk::watchMails, &MailWalk::readMails, &MailWalk::leaveTheTab,
          &MailWalk::readMarksAfterARestart, &MailWalk::changeOfAddress, &MailWalk::hostGoneAndBack,
          &MailWalk::offlineAndBack}) {
        (this->*station)();
        if (HasFatalFailure()) return;
    }
}

} // namespace
} // namespace orl
