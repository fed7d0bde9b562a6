#include "numbers/choice_allowance.h"
#include "screens_phone.h"

#include <QUrlQuery>

using namespace orl;
using namespace std::chrono_literals;

namespace {

struct SettingsTest : ScreensTest {
    SettingsView &open() {
        makeHome();
        content->main()->select(3);
        return *content->main()->settings();
    }

    void tap(const QString &title) {
        SettingsView &settings = *content->main()->settings();
        settings.tap(int(test::texts(*settings.rows(), "title").indexOf(title)));
    }

    QString bell() { return content->main()->settings()->rows()->value(2, "image").toString(); }
};

TEST_F(SettingsTest, RowsStandInTheirGroups) {
    const SettingsView &settings = open();
    KeyedListModel &rows = *content->main()->settings()->rows();
    QStringList drawn;
    for (int row = 0; row < rows.count(); ++row) {
        drawn << QStringList{rows.value(row, "section").toString(), rows.value(row, "title").toString(),
                             rows.value(row, "image").toString()}
                     .join(u'|');
    }
    EXPECT_EQ(drawn, (QStringList{
                         QStringLiteral("General|History|clock.arrow.circlepath"),
                         QStringLiteral("General|Change phone number|arrow.triangle.2.circlepath"),
                         QStringLiteral("General|New message notification|bell.badge"),
                         QStringLiteral("Privacy|Privacy Policy|lock.shield"),
                         QStringLiteral("Privacy|Terms of Service|doc.plaintext"),
                         QStringLiteral("Privacy|EULA|checkmark.shield"),
                         QStringLiteral("Privacy|Contact us|paperplane"),
                         QStringLiteral("Other|Share App|square.and.arrow.up"),
                         QStringLiteral("Other|Rate us|star.leadinghalf.fill"),
                         QStringLiteral("Other|Other Apps|apps.iphone"),
                     }));
    EXPECT_EQ(test::column(rows, "first"),
              (QVariantList{true, false, false, true, false, false, false, true, false, false}));
    EXPECT_EQ(test::column(rows, "last"),
              (QVariantList{false, false, true, false, false, false, true, false, false, true}));
    EXPECT_EQ(settings.footer(), QStringLiteral("@KeLo"));
}

TEST_F(SettingsTest, ContactIsOnlyThereWithAMailProgram) {
    mail.installed = false;
    open();
    KeyedListModel &rows = *content->main()->settings()->rows();
    EXPECT_FALSE(test::texts(rows, "title").contains(QStringLiteral("Contact us")));
    EXPECT_TRUE(rows.value(5, "last").toBool()) << "its group ends with the row before";

    mail.installed = true;
    content->main()->select(0);
    content->main()->select(3);
    tap(QStringLiteral("Contact us"));
    EXPECT_EQ(mail.composedTo, QStringList{contactAddress()});
    SettingsView &settings = *content->main()->settings();
    EXPECT_TRUE(settings.isShowingMailView());
    mail.done(int(MailResult::Sent));
    EXPECT_FALSE(settings.isShowingMailView());
    EXPECT_EQ(settings.result(), int(MailResult::Sent));
}

TEST_F(SettingsTest, SwitchGovernsAndStoresTheWholeAlert) {
    const QString key = QStringLiteral("message_received_sound_disabled_key");
    SettingsView &settings = open();
    EXPECT_FALSE(phone.store.value(key));
    EXPECT_TRUE(settings.messageSoundEnabled());

    tap(QStringLiteral("New message notification"));
    EXPECT_FALSE(settings.messageSoundEnabled());
    EXPECT_EQ(bell(), QStringLiteral("bell.slash"));
    EXPECT_TRUE(phone.store.boolean(key));
    EXPECT_FALSE(process->shared<MessageSound>().messageSoundEnabled());

    restartScreens();
    makeContent();
    content->main()->select(3);
    EXPECT_FALSE(content->main()->settings()->messageSoundEnabled());
    EXPECT_EQ(bell(), QStringLiteral("bell.slash"));
    tap(QStringLiteral("New message notification"));
    EXPECT_FALSE(phone.store.boolean(key));
    EXPECT_EQ(bell(), QStringLiteral("bell.badge"));
}

TEST_F(SettingsTest, LinksLeadWhereTheirRowsSay) {
    open();
    const struct {
        const char *title;
        const char *link;
    } cases[] = {
        {"Privacy Policy", "https://legal.example/orl/privacy-policy/"},
        {"Terms of Service", "https://legal.example/orl/terms-of-service/"},
        {"EULA", "https://legal.example/eula/"},
        {"Rate us", "itms-apps://store.example/us/app/apple-store/id1000000001?mt=8&action=write-review"},
        {"Other Apps", "itms-apps://store.example/us/developer/apple-store/id1000000002"},
    };
    for (const auto &[title, link] : cases) {
        tap(QString::fromLatin1(title));
        EXPECT_EQ(browser.opened.last(), QString::fromLatin1(link)) << title;
    }
}

TEST_F(SettingsTest, ShareSheetHandsTheTextOn) {
    ShareSheet &sheet = *open().shareSheet();
    const QString text =
        QStringLiteral("Orl: Virtual phone number for verification, Thousands of numbers from "
                       "lot of countries for FREE, No Charge \n\n"
                       "itms-apps://store.example/app/id1000000001");
    tap(QStringLiteral("Share App"));
    EXPECT_TRUE(sheet.isPresented());
    EXPECT_EQ(sheet.text(), text);
    sheet.copyText();
    EXPECT_EQ(pasteboard.text, text);
    EXPECT_FALSE(sheet.isPresented());

    tap(QStringLiteral("Share App"));
    sheet.mailText();
    const QUrl mailto(browser.opened.last());
    EXPECT_EQ(mailto.scheme(), QStringLiteral("mailto"));
    EXPECT_EQ(QUrlQuery(mailto).queryItemValue(QStringLiteral("body"), QUrl::FullyDecoded), text);
    EXPECT_FALSE(sheet.isPresented());

    tap(QStringLiteral("Share App"));
    sheet.openLink();
    EXPECT_EQ(browser.opened.last(), QStringLiteral("itms-apps://store.example/app/id1000000001"));
    EXPECT_FALSE(sheet.isPresented());
}

TEST_F(SettingsTest, ChangedNumberLeadsBackToTheMessages) {
    SettingsView &settings = open();
    phone.urls.answer(QStringLiteral("https://first.example/en/numbers/15550199"), test::messagePage({}));
    tap(QStringLiteral("Change phone number"));
    ASSERT_TRUE(settings.countriesPresented());
    settings.countries()->tap(1);
    phone.settle();
    settings.countries()->numbers()->tap(1);
    settings.countries()->numbers()->choice()->confirm();
    EXPECT_FALSE(settings.countriesPresented());
    EXPECT_EQ(request().currentNumber()->number, QStringLiteral("+1 555 0199"));
    phone.advance(200ms);
    EXPECT_EQ(content->main()->selectedIndex(), 0);
}

} // namespace
