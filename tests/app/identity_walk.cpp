// The stations of the identity tab: each picker, a generation, a copy, two saves, and the saved list after a
// kill.
#include "walker.h"

#include <QTest>

namespace orl {
namespace {

class IdentityWalk : public Walker {
public:
    // The stations, in this order.
    void firstNumber();
    void choices();
    void generation();
    void failure();
    void saves();
    void savedAfterAKill();

protected:
    /// What a row or a picker shows.
    QString value(const char *name) {
        const std::optional<Accessible> found = wait(named(QString::fromLatin1(name)));
        return found ? found->description() : QString();
    }
    bool becomes(const char *name, const QString &wanted) {
        return QTest::qWaitFor([&] { return value(name) == wanted; }, 20000);
    }

    void generate() {
        ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Generate")), "the button"));
        ASSERT_TRUE(wait(named(QStringLiteral("Your Randomly Generated Identity")))) << "no identity came";
    }

    void saveAs(const QString &name) {
        ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Save this identity")), "the button that saves"));
        const std::optional<Accessible> field = wait(named(QStringLiteral("Enter name")));
        ASSERT_TRUE(field);
        type(*field, name);
        look(QStringLiteral("45-save"));
        ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Save")), "the confirmation of the name"));
        EXPECT_TRUE(gone(named(QStringLiteral("Enter name")))) << "the dialogue stays open";
        EXPECT_TRUE(gone(named(QStringLiteral("Saved")))) << "the check mark stays";
    }

    QString savedName; ///< whose identity was saved
    DemoHost host;
};

void IdentityWalk::firstNumber() {
    demo::ConfigurationValues values; // no ads
    host.setConfiguration(values);
    ASSERT_TRUE(host.start());
    startProgram(servedBy(host));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("United States")), "the country"));
    ASSERT_NO_FATAL_FAILURE(press(number(QStringLiteral("+1")), "the number"));
    ASSERT_NO_FATAL_FAILURE(press(tab(QStringLiteral("Identity")), "the identity tab"));
}

void IdentityWalk::choices() {
    ASSERT_TRUE(wait(named(QStringLiteral("Customize Your Identity"))));
    EXPECT_EQ(value("Country").toStdString(), "United States");
    lookAround(QStringLiteral("40-identity-options"));

    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("female")), "the gender"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Name Set")), "the picker of names"));
    const QString french = QStringLiteral("French - français");
    ASSERT_TRUE(wait(named(french)));
    lookAround(QStringLiteral("41-name-sets"));
    ASSERT_NO_FATAL_FAILURE(press(named(french), "the French names"));
    EXPECT_TRUE(becomes("Name Set", french));
    EXPECT_TRUE(becomes("Country", QStringLiteral("Belgium - Belgique")))
        << "the name set did not bring its first country";
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Country")), "the picker of countries"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("France")), "the country"));
    EXPECT_TRUE(becomes("Country", QStringLiteral("France")));
}

void IdentityWalk::failure() {
    host.setFault(QStringLiteral("/identity"), Fault::Kind::WrongType);
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Generate")), "the button"));
    ASSERT_TRUE(wait(named(QStringLiteral("Failed! Change something & try again"))));
    lookAround(QStringLiteral("42-identity-failed"));
    host.clearFaults();
    ASSERT_NO_FATAL_FAILURE(
        press(named(QStringLiteral("Failed! Change something & try again")), "the button once more"));
    ASSERT_TRUE(wait(named(QStringLiteral("Your Randomly Generated Identity")))) << "no identity came";
}

void IdentityWalk::generation() {
    ASSERT_TRUE(wait(named(QStringLiteral("Save this identity"))));
    savedName = value("Full name");
    EXPECT_FALSE(savedName.isEmpty());
    lookAround(QStringLiteral("43-identity"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Full name")), "the name"));
    EXPECT_TRUE(wait(named(QStringLiteral("Copied to clipboard!"))));
    look(QStringLiteral("44-copied-name"));
    EXPECT_EQ(clipboard().toStdString(), savedName.toStdString());
    EXPECT_TRUE(gone(named(QStringLiteral("Copied to clipboard!"))));

    const QString birthday = value("Date of birth");
    EXPECT_FALSE(birthday.isEmpty());
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Date of birth")), "a row"));
    EXPECT_TRUE(wait(named(QStringLiteral("Copied to clipboard!"))));
    EXPECT_EQ(clipboard().toStdString(), birthday.toStdString());
    EXPECT_TRUE(gone(named(QStringLiteral("Copied to clipboard!"))));
}

void IdentityWalk::saves() {
    ASSERT_NO_FATAL_FAILURE(saveAs(QStringLiteral("work")));
    ASSERT_NO_FATAL_FAILURE(saveAs(QStringLiteral("work")));
}

void IdentityWalk::savedAfterAKill() {
    killProgram();
    startProgram(servedBy(host));
    ASSERT_NO_FATAL_FAILURE(press(tab(QStringLiteral("Identity")), "the identity tab"));
    ASSERT_NO_FATAL_FAILURE(generate());
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Saved identities")), "the saved list"));
    ASSERT_TRUE(wait(named(QStringLiteral("Your Saved Identities"))));
    const Fits row = [](const Accessible &control) {
        return isButton(control) && control.name() == QStringLiteral("work");
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return all(row).size() == 2; }, 20000))
        << "two identities were saved under one name";
    lookAround(QStringLiteral("46-saved-identities"));
    ASSERT_NO_FATAL_FAILURE(press(row, "a saved identity"));
    EXPECT_TRUE(becomes("Full name", savedName)) << "the saved identity did not come back";
    lookAround(QStringLiteral("47-reopened"));
    ASSERT_NO_FATAL_FAILURE(press(named(QStringLiteral("Start over")), "the reset"));
    EXPECT_TRUE(wait(named(QStringLiteral("Customize Your Identity"))));
    killProgram();
}

TEST_F(IdentityWalk, FromTheChoicesToASavedIdentityAfterAKill) {
    for (const auto station :
         {&IdentityWalk::firstNumber, &IdentityWalk::choices, &IdentityWalk::failure,
          &IdentityWalk::generation, &IdentityWalk::saves, &IdentityWalk::savedAfterAKill}) {
        (this->*station)();
        if (HasFatalFailure()) return;
    }
}

} // namespace
} // namespace orl
