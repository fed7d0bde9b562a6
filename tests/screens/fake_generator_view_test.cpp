#include "identity/sample_identities.h"
#include "screens/fake_generator_view.h"
#include "screens_phone.h"

#include <QFile>
#include <QJsonDocument>

namespace orl {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

const QString failure = QStringLiteral("Failed! Change something & try again");

struct FakeGeneratorTest : ScreensTest {
    FakeGeneratorTest() { open(); }

    /// The tab, opened anew in a new run of the program.
    void open() {
        makeHome();
        content->main()->select(2);
        phone.settle();
    }

    void restart() {
        restartScreens();
        open();
    }

    FakeGeneratorView &view() { return *content->main()->fakeGenerator(); }

    static QString url(const char *path) {
        return QStringLiteral("https://identity.example") + QLatin1String(path);
    }
    void serve(const char *path) { phone.urls.answer(url(path), encodeJson(test::wireIdentity())); }

    /// An identity is on screen and the button has come to rest.
    void generate() {
        view().chooseGender(2);
        serve("/english-united-states/female");
        view().tapGenerate();
        phone.advance(2s);
        ASSERT_TRUE(view().hasIdentity());
    }

    void save(const char *name) {
        view().openSaveDialog();
        view().setSaveNameText(QString::fromUtf8(name));
        view().save();
    }

    QStringList savedNames() {
        QStringList names;
        for (const IdentityHistory &record : savedIdentities(request()))
            names << record.name;
        return names;
    }

    std::size_t impacts() const { return haptics.impacts.size(); }
};

TEST_F(FakeGeneratorTest, NameSetBringsItsFirstCountry) {
    EXPECT_EQ(view().genederSelection(), FakeGender::Random);
    EXPECT_EQ(view().nameSets().size(), 38);
    EXPECT_EQ(view().countryTexts().size(), 8);
    view().chooseCountry(3);
    EXPECT_EQ(view().countrySelection(), FakeCountry::UnitedKingdom);
    struct Case {
        FakeNameSet nameSet;
        FakeCountry country;
    };
    for (const Case &row : {Case{FakeNameSet::French, FakeCountry::Belgium},
                            Case{FakeNameSet::Serbian, FakeCountry::CyrillicSerbia},
                            Case{FakeNameSet::English, FakeCountry::UnitedStates}}) {
        view().chooseNameSet(int(row.nameSet));
        EXPECT_EQ(view().nameSetSelection(), row.nameSet);
        EXPECT_EQ(view().countrySelection(), row.country);
        EXPECT_EQ(view().countryIndex(), 0);
    }
    view().chooseCountry(8);
    view().chooseNameSet(38);
    view().chooseGender(3);
    EXPECT_EQ(view().countrySelection(), FakeCountry::UnitedStates);
    EXPECT_EQ(test::texts(*view().genders(), "text"),
              (QStringList{QStringLiteral("random"), QStringLiteral("male"), QStringLiteral("female")}));
    EXPECT_EQ(test::texts(*view().genders(), "picture").last(), QStringLiteral("ic_gender_female"));
}

TEST_F(FakeGeneratorTest, ButtonIsBusyForASecondAfterASuccess) {
    view().chooseGender(2);
    serve("/english-united-states/female");
    phone.urls.hold(url("/english-united-states/female"));
    EXPECT_EQ(view().generateButtonTitle(), QStringLiteral("Generate"));
    view().tapGenerate();
    phone.advance(30s);
    EXPECT_TRUE(view().disableGenerating());
    EXPECT_FALSE(view().hasIdentity());
    view().tapGenerate();
    phone.settle();
    EXPECT_EQ(phone.urls.count(url("/english-united-states/female")), 1) << "a busy button takes no tap";

    phone.urls.release(url("/english-united-states/female"));
    phone.settle();
    EXPECT_TRUE(view().hasIdentity());
    EXPECT_FALSE(view().showSaveButton());
    phone.advance(699ms);
    EXPECT_FALSE(view().showSaveButton());
    phone.advance(1ms);
    EXPECT_TRUE(view().showSaveButton());
    phone.advance(299ms);
    EXPECT_TRUE(view().disableGenerating());
    view().tapGenerate();
    EXPECT_TRUE(view().hasIdentity());
    phone.advance(1ms);
    EXPECT_FALSE(view().disableGenerating());
}

TEST_F(FakeGeneratorTest, FailureTextStaysUntilTheNextTap) {
    view().chooseGender(1);
    phone.urls.answer(url("/english-united-states/male"), UrlResponse{500, "<html>"});
    view().tapGenerate();
    EXPECT_EQ(view().generateButtonTitle(), QStringLiteral("Generate"));
    phone.settle();
    EXPECT_EQ(view().generateButtonTitle(), failure);
    EXPECT_FALSE(view().disableGenerating()) << "a failure needs no second";
    EXPECT_FALSE(view().hasIdentity());
    EXPECT_EQ(phone.console.lines.filter(QStringLiteral("Failed to generate new identity: ")).size(), 1);

    view().chooseNameSet(int(FakeNameSet::French));
    view().chooseCountry(1);
    EXPECT_EQ(view().generateButtonTitle(), failure);
    serve("/french-canada/male");
    view().tapGenerate();
    EXPECT_EQ(view().generateButtonTitle(), QStringLiteral("Generate"));
    phone.settle();
    EXPECT_TRUE(view().hasIdentity());
}

TEST_F(FakeGeneratorTest, TapWithAnIdentityOnScreenOnlyClearsIt) {
    generate();
    const auto reads = phone.urls.requests.size();
    view().tapGenerate();
    phone.advance(5s);
    EXPECT_FALSE(view().hasIdentity());
    EXPECT_FALSE(view().showSaveButton());
    EXPECT_FALSE(view().disableGenerating());
    EXPECT_EQ(phone.urls.requests.size(), reads);
    view().tapGenerate();
    phone.settle();
    EXPECT_TRUE(view().hasIdentity());
}

TEST_F(FakeGeneratorTest, EveryEndOfAGenerationCountsTowardsAnAd) {
    setAds(true);
    const qint64 before = actionsCounted();
    generate();
    EXPECT_EQ(actionsCounted(), before + 1);
    view().tapGenerate();
    EXPECT_EQ(actionsCounted(), before + 2);
    phone.urls.answer(url("/english-united-states/female"), "no identity");
    view().tapGenerate();
    phone.settle();
    EXPECT_EQ(actionsCounted(), before + 3);
}

TEST_F(FakeGeneratorTest, ResultsShowTheIdentityAndWhatWasAskedFor) {
    view().chooseNameSet(int(FakeNameSet::French));
    for (const char *path : {"/french-belgium/male", "/french-belgium/female"})
        serve(path);
    view().tapGenerate();
    phone.settle();
    ASSERT_TRUE(view().hasIdentity());
    GeneratedResultsView &results = *view().results();
    EXPECT_THAT(results.conditions(),
                ElementsAre(QStringLiteral("Random"), QStringLiteral("French - français"),
                            QStringLiteral("Belgium - Belgique")));
    EXPECT_EQ(results.picture(), rawValue(view().fakeIdentity()->gender));
    EXPECT_NE(results.picture(), QStringLiteral("random"));
    EXPECT_EQ(test::texts(*results.rows(), "title").join(QLatin1Char('|')),
              QStringLiteral("Geo coordinates|Mother's maiden name|Date of birth|Age|Home phone|Work phone|"
                             "Height|Weight|Eye color|Blood type|Hair|Email address|Username|"
                             "Browser user agent|Company|Favorite sport"));
    QStringList headings = test::texts(*results.rows(), "section");
    headings.removeDuplicates();
    EXPECT_THAT(headings, ElementsAre(QString(), QStringLiteral("Phone"), QStringLiteral("Body Features"),
                                      QStringLiteral("Internet"), QStringLiteral("Other")));
    EXPECT_EQ(test::texts(*results.rows(), "icon")[4], QStringLiteral("iphone.homebutton"));
}

TEST_F(FakeGeneratorTest, TapOnARowCopiesItAndSaysSoForTwoSeconds) {
    generate();
    GeneratedResultsView &results = *view().results();
    results.tap(11);
    EXPECT_EQ(pasteboard.text, QStringLiteral("ada@example.com"));
    EXPECT_TRUE(content->copyVM()->copied());
    EXPECT_EQ(results.copiedTitle(), QStringLiteral("Email address"));
    results.copyAddress();
    EXPECT_EQ(pasteboard.text, QStringLiteral("12 Mill Lane\nLeeds LS1 4AB"));
    EXPECT_EQ(results.copiedTitle(), QStringLiteral("address"));
    results.copyName();
    EXPECT_EQ(pasteboard.text, QStringLiteral("Ada Ferris"));
    phone.advance(2s);
    EXPECT_EQ(results.copiedTitle(), QString());
    results.tap(16);
    EXPECT_EQ(results.copiedTitle(), QString());
}

TEST_F(FakeGeneratorTest, SavingKeepsTheNameAsTyped) {
    generate();
    EXPECT_FALSE(view().hasSavedIdentities());
    const auto before = impacts();
    view().openSaveDialog();
    EXPECT_EQ(impacts(), before + 1);
    view().save();
    EXPECT_TRUE(view().saveDialog()) << "an empty name neither saves nor closes";
    EXPECT_EQ(impacts(), before + 1);
    view().setSaveNameText(QStringLiteral("half typed"));
    view().cancelSave();
    EXPECT_FALSE(view().saveDialog());
    EXPECT_EQ(view().saveNameText(), QStringLiteral("half typed"));

    view().setSaveNameText(QStringLiteral("  "));
    view().openSaveDialog();
    view().save();
    EXPECT_EQ(view().saveNameText(), QString());
    EXPECT_FALSE(view().saveDialog());
    EXPECT_TRUE(view().savedCheckMarkAnimation());
    EXPECT_TRUE(view().hasSavedIdentities());
    phone.advance(FakeGeneratorView::checkMarkLasts);
    EXPECT_FALSE(view().savedCheckMarkAnimation());
    save("work");
    save("work");
    EXPECT_EQ(savedNames(),
              (QStringList{QStringLiteral("work"), QStringLiteral("work"), QStringLiteral("  ")}));
}

TEST_F(FakeGeneratorTest, SavedListComesBackWhenTheTabIsFirstVisited) {
    generate();
    save("older");
    phone.advance(2h);
    save("newer");
    restartScreens();
    makeHome();
    EXPECT_TRUE(request().savedIdentities().isEmpty());
    content->main()->select(2);
    EXPECT_EQ(savedNames(), (QStringList{QStringLiteral("newer"), QStringLiteral("older")}));
    EXPECT_EQ(view().genederSelection(), FakeGender::Random) << "choices are not kept";

    view().openSaved();
    EXPECT_TRUE(view().showSavedIdentities());
    EXPECT_EQ(test::texts(*view().saved(), "name"),
              (QStringList{QStringLiteral("newer"), QStringLiteral("older")}));
    EXPECT_EQ(test::texts(*view().saved(), "fullName").first(), QStringLiteral("Ada Ferris"));
    EXPECT_EQ(test::texts(*view().saved(), "picture").first(), QStringLiteral("female"));
    EXPECT_EQ(test::texts(*view().saved(), "time").last(), QStringLiteral("2 hours ago"));
    view().closeSaved();
    EXPECT_FALSE(view().showSavedIdentities());
}

TEST_F(FakeGeneratorTest, ReopenedIdentityTakesThePlaceOfTheOneOnScreen) {
    generate();
    save("kept");
    const QString kept = view().fakeIdentity()->id;
    view().tapGenerate();
    view().chooseGender(0);
    view().chooseNameSet(int(FakeNameSet::German));
    for (const char *path : {"/german-austria/male", "/german-austria/female"})
        serve(path);
    view().tapGenerate();
    phone.advance(2s);
    EXPECT_NE(view().fakeIdentity()->id, kept);
    view().openSaved();
    view().reopen(1);
    EXPECT_TRUE(view().showSavedIdentities()) << "there is no such row";
    view().reopen(0);
    EXPECT_EQ(view().fakeIdentity()->id, kept);
    EXPECT_FALSE(view().showSavedIdentities());
    EXPECT_EQ(view().results()->conditions().first(), QStringLiteral("Random"))
        << "the labels tell the choices, which were not saved";
}

TEST_F(FakeGeneratorTest, StoredListThatDoesNotDecodeLeavesThePublishedOne) {
    generate();
    save("kept");
    phone.store.values[QStringLiteral("identity_history_key")] = QByteArray("[{]");
    content->main()->select(0);
    content->main()->select(2);
    EXPECT_EQ(savedNames(), QStringList{QStringLiteral("kept")});
    save("anew");
    EXPECT_EQ(savedNames(), QStringList{QStringLiteral("anew")});
}

TEST_F(FakeGeneratorTest, OfflineScreenAsksAgain) {
    EXPECT_FALSE(view().isOffline());
    phone.reachability.setOnline(false);
    content->main()->select(0);
    content->main()->select(2);
    EXPECT_TRUE(view().isOffline());
    view().retry();
    EXPECT_TRUE(view().isOffline());
    phone.reachability.setOnline(true);
    view().retry();
    EXPECT_FALSE(view().isOffline());
}

TEST_F(FakeGeneratorTest, NativeCardHoldsTheButtonBackWhereItIsToldTo) {
    setAds(true);
    serve("/english-united-states/male");
    view().chooseGender(1);
    view().nativeBeforeGenerate = true;
    view().tapGenerate();
    phone.settle();
    EXPECT_TRUE(view().nativeWithButton()->showNativeBeforeGenerate());
    EXPECT_EQ(phone.urls.count(url("/english-united-states/male")), 0);
    phone.advance(10s);
    if (!ads.natives.isEmpty()) ads.natives.last()->receive("card");
    phone.advance(10s);
    view().nativeWithButton()->tapGenerate();
    EXPECT_FALSE(view().nativeWithButton()->showNativeBeforeGenerate());
    phone.advance(399ms);
    EXPECT_FALSE(view().disableGenerating());
    phone.advance(1ms);
    EXPECT_TRUE(view().hasIdentity());
}

TEST_F(FakeGeneratorTest, SSNCardShowsWhileThereIsAResult) {
    SSNIsValidAlertView &alert = *view().ssnAlert();
    EXPECT_FALSE(alert.isPresented());
    EXPECT_FALSE(view().validSSNItem());
    alert.setSsnValidItem(ValidSSN{QStringLiteral("000-00-0000"), QStringLiteral("Ohio"),
                                   QStringLiteral("1970"), QStringLiteral("1975"), QStringLiteral("51"),
                                   QStringLiteral("Valid")});
    EXPECT_TRUE(alert.isPresented());
    EXPECT_EQ(alert.valid(), QStringLiteral("Valid"));
    EXPECT_THAT(test::texts(*alert.rows(), "title"),
                ElementsAre(QStringLiteral("SSN"), QStringLiteral("Issuance Location"),
                            QStringLiteral("First Year Issued"), QStringLiteral("Last Year Issued"),
                            QStringLiteral("Estimated Age")));
    EXPECT_THAT(test::texts(*alert.rows(), "content"),
                ElementsAre(QStringLiteral("000-00-0000"), QStringLiteral("Ohio"), QStringLiteral("1970"),
                            QStringLiteral("1975"), QStringLiteral("51")));
    alert.done();
    EXPECT_FALSE(alert.isPresented());
    EXPECT_FALSE(view().validSSNItem());
}

// The state waits as long as the file plays.
TEST(CheckMarkTest, FileLastsAsLongAsTheStateSays) {
    QFile file(QStringLiteral(":/orl/animations/check_mark.json"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QJsonObject animation = QJsonDocument::fromJson(file.readAll()).object();
    const double seconds = (animation.value(QStringLiteral("op")).toDouble() -
                            animation.value(QStringLiteral("ip")).toDouble()) /
                           animation.value(QStringLiteral("fr")).toDouble();
    EXPECT_EQ(std::chrono::duration<double>(seconds), FakeGeneratorView::checkMarkLasts);
}

} // namespace
} // namespace orl
