#include "mail/address.h"
#include "mail/mail_page.h"
#include "mail_screens_phone.h"

namespace orl {
namespace {

using namespace std::chrono_literals;
using test::column;
using test::texts;

TEST_F(MailScreensTest, WithoutAnAddressTheBuilderPutsOneTogether) {
    openTab();
    phone.advance(1s);
    ASSERT_NE(mail().builder(), nullptr);
    EmailBuilderCardView &builder = *mail().builder();
    EXPECT_EQ(builder.domain(), Constants::domains().first());
    EXPECT_FALSE(builder.canCreate());
    builder.create();
    EXPECT_FALSE(mail().hasEmail()) << "an address that is none creates nothing";
    builder.setLogin("My name");
    EXPECT_EQ(builder.address(), "My-name@" + Constants::domains().first());
    EXPECT_TRUE(builder.canCreate());
    builder.setDomain(Constants::domains().last());
    const QString made = "My-name@" + Constants::domains().last();
    phone.urls.answer(phone.endpoints.mailHost + "/api/emails?inbox=" + made, test::inboxJson({}));
    content->appConfigVM().setBannerTapped(true);
    builder.create();
    EXPECT_FALSE(content->appConfigVM().bannerTapped());
    EXPECT_EQ(mail().email(), made);
    EXPECT_EQ(mail().shownAddress(), made.toLower());
    EXPECT_EQ(phone.store.text("selected_email"), made);
    EXPECT_EQ(service().currentAddress(), made);
    EXPECT_FALSE(mail().showShareButton());
    phone.advance(499ms);
    EXPECT_FALSE(mail().showShareButton());
    phone.advance(1ms);
    EXPECT_TRUE(mail().showShareButton());
    EXPECT_EQ(phone.urls.count(phone.endpoints.mailHost + "/api/emails?inbox=" + made), 1);
}

TEST_F(MailScreensTest, SuggestionsOpenWithTheFirstFieldAndCloseBesideIt) {
    EmailBuilderCardView &builder = *openTab().builder();
    EXPECT_FALSE(builder.showLoginSuggestions());
    builder.tapLogin();
    EXPECT_TRUE(builder.showLoginSuggestions());
    builder.endEditing();
    EXPECT_FALSE(builder.showLoginSuggestions());
}

TEST_F(MailScreensTest, CancelOnAFirstRunLeavesTheBuilder) {
    openTab().builder()->cancel();
    phone.advance(1s);
    EXPECT_FALSE(mail().hasEmail());
    EXPECT_FALSE(mail().showShareButton());
}

TEST_F(MailScreensTest, AChangeOfAddressCanBeCancelledAndIsForgottenByARestart) {
    openInbox({"a"});
    const qint64 actions = actionsCounted();
    setInterstitials();
    mail().changeAddress();
    EXPECT_EQ(haptics.impacts.back(), Impact::Soft);
    EXPECT_EQ(actionsCounted(), actions + 1);
    EXPECT_FALSE(mail().hasEmail());
    EXPECT_EQ(phone.store.text("selected_email"), address);
    const qsizetype polls = phone.urls.count(inboxUrl);
    phone.advance(20s);
    EXPECT_GT(phone.urls.count(inboxUrl), polls) << "the old address is still polled";
    EXPECT_FALSE(mail().showShareButton());
    mail().builder()->cancel();
    EXPECT_EQ(mail().email(), address);
    mail().changeAddress();
    restartScreens();
    openTab();
    EXPECT_EQ(mail().email(), address);
}

TEST_F(MailScreensTest, TheAddressIsCopiedAsItIsStored) {
    openInbox({});
    mail().copyAddress();
    EXPECT_EQ(pasteboard.text, address);
    EXPECT_EQ(mail().shownAddress(), "me@x.example");
}

TEST_F(MailScreensTest, RowsTellSenderTimeSubjectAndWhatIsUnread) {
    phone.store.setValue("b_read_at", QString("then"));
    openInbox({"a", "b"});
    EXPECT_EQ(texts(*mail().mails(), "sender"), (QStringList{"Shop", "Shop"}));
    EXPECT_EQ(texts(*mail().mails(), "time"), (QStringList{"09:05", "09:05"}));
    EXPECT_EQ(texts(*mail().mails(), "subject"), (QStringList{"Subject of a", "Subject of b"}));
    EXPECT_EQ(column(*mail().mails(), "unread"), (QVariantList{true, false}));
    EXPECT_EQ(texts(*mail().mails(), "image"), (QStringList{"envelope", "envelope.open.fill"}));
}

TEST_F(MailScreensTest, ANewMailIsOneNewRow) {
    openInbox({"b", "a"});
    int inserted = 0, removed = 0, moved = 0;
    QObject::connect(mail().mails(), &MailRows::rowsInserted, [&] { ++inserted; });
    QObject::connect(mail().mails(), &MailRows::rowsRemoved, [&] { ++removed; });
    QObject::connect(mail().mails(), &MailRows::rowsMoved, [&] { ++moved; });
    answerInbox({"c", "b", "a"});
    phone.advance(10s);
    EXPECT_EQ(texts(*mail().mails(), "subject").first(), "Subject of c");
    EXPECT_EQ(std::tuple(inserted, removed, moved), std::tuple(1, 0, 0));
}

TEST_F(MailScreensTest, ATimeOfAnotherFormIsFatal) {
    phone.store.setValue("selected_email", address);
    answerInbox(QStringList{"a"});
    answerInbox(test::inboxJson({"a"}).replace("2026-01-01T09:05:00+0000", "yesterday"));
    openTab();
    phone.advance(1s);
    EXPECT_THROW(mail().mails()->value(0, "time"), PlayedFatalError);
}

TEST_F(MailScreensTest, AnEmptyInboxIsLookedAtForTwoSecondsEachTimeItAppears) {
    phone.store.setValue("selected_email", address);
    answerInbox(QStringList{});
    openTab();
    phone.advance(1999ms);
    EXPECT_TRUE(mail().progress());
    phone.advance(1ms);
    EXPECT_FALSE(mail().progress());
    phone.advance(1min);
    EXPECT_FALSE(mail().progress()) << "it does not go back";
    content->main()->select(0);
    content->main()->select(1);
    EXPECT_TRUE(mail().progress());
}

TEST_F(MailScreensTest, TheTabAsksForItsInboxAFifthOfASecondAfterItAppears) {
    openInbox({"a"});
    content->main()->select(0);
    const qsizetype polls = phone.urls.count(inboxUrl);
    content->main()->select(1);
    phone.advance(199ms);
    EXPECT_EQ(phone.urls.count(inboxUrl), polls);
    phone.advance(1ms);
    EXPECT_EQ(phone.urls.count(inboxUrl), polls + 1);
}

TEST_F(MailScreensTest, OfflineTheTabSaysSoAndTryingAgainGoesOn) {
    openInbox({"a"});
    EXPECT_FALSE(mail().isOffline());
    phone.reachability.setOnline(false);
    phone.advance(30s);
    EXPECT_TRUE(mail().isOffline()) << "the poll found it out";
    const qsizetype polls = phone.urls.count(inboxUrl);
    mail().retry();
    EXPECT_TRUE(mail().isOffline());
    phone.reachability.setOnline(true);
    phone.advance(1min);
    EXPECT_EQ(phone.urls.count(inboxUrl), polls) << "all chains are over";
    mail().retry();
    EXPECT_FALSE(mail().isOffline());
    phone.advance(10s);
    EXPECT_EQ(phone.urls.count(inboxUrl), polls + 2);
}

TEST_F(MailScreensTest, AnOpenedMailIsReadASecondLaterEvenIfItWasLeft) {
    openInbox({"a", "b"});
    setInterstitials();
    const qint64 actions = actionsCounted();
    mail().tapMail(1);
    EXPECT_EQ(actionsCounted(), actions + 1);
    EXPECT_TRUE(mail().showMailDetails());
    MailDetailsView &details = *mail().details();
    EXPECT_EQ(details.subject(), "Subject of b");
    EXPECT_EQ(details.sender(), "Shop");
    EXPECT_EQ(details.senderAddress(), "shop@example.com");
    EXPECT_EQ(details.time(), "09:05");
    EXPECT_EQ(details.page(), mailPage("<p>body of b"));
    mail().closeMail();
    EXPECT_FALSE(mail().showMailDetails());
    EXPECT_EQ(details.page(), "") << "nothing of it goes on running";
    EXPECT_EQ(column(*mail().mails(), "unread"), (QVariantList{true, true}));
    phone.advance(1s);
    EXPECT_EQ(column(*mail().mails(), "unread"), (QVariantList{true, false}));
    const auto mark = phone.store.text("b_read_at");
    ASSERT_TRUE(mark);
    mail().tapMail(1);
    phone.advance(1min);
    EXPECT_EQ(phone.store.text("b_read_at"), mark) << "the first opening stands";
    restartScreens();
    openInbox({"a", "b"});
    EXPECT_EQ(column(*mail().mails(), "unread"), (QVariantList{true, false}));
}

TEST_F(MailScreensTest, ABodyThatArrivesLaterIsThereWhenTheMailIsOpenedAgain) {
    phone.urls.hold(bodyUrl("a"));
    openInbox({"a"});
    mail().tapMail(0);
    EXPECT_FALSE(mail().details()->hasContent());
    phone.urls.release(bodyUrl("a"));
    phone.settle();
    EXPECT_FALSE(mail().details()->hasContent());
    mail().closeMail();
    mail().tapMail(0);
    EXPECT_TRUE(mail().details()->hasContent());
}

TEST_F(MailScreensTest, OnlyAttachmentsThatArePicturesByNameAreShown) {
    QJsonArray files;
    const char *const names[] = {"a.PNG", "photo.png.zip", "b.jpeg", "c.pdf", "d.JPG"};
    for (int i = 0; i < 5; ++i)
        files.append(QJsonObject{{"id", QString::number(i)},
                                 {"email_id", "m"},
                                 {"file_name", names[i]},
                                 {"content_type", ""},
                                 {"size_for_human", "1 KB"},
                                 {"size_in_bytes", 1024}});
    QJsonObject json = test::mailJson("m");
    json.insert("attachments", files);
    phone.store.setValue("selected_email", address);
    phone.urls.answer(bodyUrl("m"), "x");
    answerInbox(encodeJson(QJsonObject{{"data", QJsonArray{json}}}));
    openTab();
    phone.advance(1s);
    mail().tapMail(0);
    MailDetailsView &details = *mail().details();
    EXPECT_EQ(texts(*details.attachments(), "name"),
              (QStringList{"a.PNG", "photo.png.zip", "b.jpeg", "c.pdf", "d.JPG"}));
    QStringList shown;
    for (int row = 0; row < 5; ++row) {
        details.tapAttachment(row);
        shown << details.imageToShowLink().section('/', -1);
    }
    EXPECT_EQ(shown, (QStringList{"0", "1", "2", "2", "4"}));
    EXPECT_EQ(details.imageToShowLink(), phone.endpoints.mailHost + "/api/emails/m/attachments/4");
    mail().closeMail();
    EXPECT_EQ(details.imageToShowLink(), "");
}

TEST_F(MailScreensTest, PrivateModeIsOffAtFirstIsKeptAndWithholdsPictures) {
    phone.store.setValue("selected_email", address);
    answerInbox(QStringList{"a"});
    phone.urls.answer(bodyUrl("a"), "<p onclick=x>Hi<img src='https://a.example/1'></p>");
    openTab();
    phone.advance(1s);
    mail().tapMail(0);
    MailDetailsView &details = *mail().details();
    EXPECT_FALSE(details.isPrivate() || details.withheld());
    details.togglePrivate();
    phone.settle();
    EXPECT_TRUE(details.withheld());
    EXPECT_EQ(details.withheldPictures(), 1);
    EXPECT_EQ(details.page(), mailPage("<p>Hi<img></p>"));
    details.showPictures();
    phone.settle();
    EXPECT_FALSE(details.withheld());
    EXPECT_EQ(details.page(), mailPage(R"(<p>Hi<img src="https://a.example/1"></p>)"));
    mail().closeMail();
    restartScreens();
    openTab();
    phone.advance(1s);
    mail().tapMail(0);
    phone.settle();
    EXPECT_TRUE(mail().details()->withheld()) << "pictures are asked for again";
    mail().details()->togglePrivate();
    EXPECT_FALSE(mail().details()->isPrivate());
}

TEST_F(MailScreensTest, TheReaderGoesTenSecondsAfterTheTabWasLeftWithoutAnOpenMail) {
    openInbox({"a"});
    EXPECT_FALSE(mail().keepsReader()) << "no mail was opened yet";
    mail().tapMail(0);
    content->main()->select(0);
    phone.advance(1min);
    EXPECT_TRUE(mail().keepsReader()) << "a mail is open";
    content->main()->select(1);
    mail().closeMail();
    phone.advance(1min);
    EXPECT_TRUE(mail().keepsReader()) << "the tab is open";
    content->main()->select(0);
    phone.advance(9s);
    content->main()->select(1);
    content->main()->select(0);
    phone.advance(9999ms);
    EXPECT_TRUE(mail().keepsReader()) << "coming back begins the wait anew";
    phone.advance(1ms);
    EXPECT_FALSE(mail().keepsReader());
}

TEST_F(MailScreensTest, TheAlertTellsItsTextsAheadOfItselfAndForgetsThemAfter) {
    TMailAlertViewModel alert;
    QStringList states;
    const auto note = [&] {
        states << QString("%1 %2 %3").arg(alert.shouldPresent()).arg(alert.title(), alert.msg());
    };
    QObject::connect(&alert, &TMailAlertViewModel::titleChanged, note);
    QObject::connect(&alert, &TMailAlertViewModel::shouldPresentChanged, note);
    alert.present("T", "M");
    alert.dismiss();
    EXPECT_EQ(states, (QStringList{"0 T ", "1 T M", "0 T M", "0  M"}));
}

} // namespace
} // namespace orl
