#include "screens/conversation_view.h"
#include "screens_phone.h"

#include <QSignalSpy>

using namespace orl;
using namespace std::chrono_literals;
using test::Sms;

namespace {

const QString at = QStringLiteral("2025-12-31T23:50:00.000000Z");
const QString later = QStringLiteral("2025-12-31T23:55:00.000000Z");
const Sms first{QStringLiteral("A"), QStringLiteral("code 123-456"), at};
const Sms second{QStringLiteral("A"), QStringLiteral("code\u2028777"), later};
const Sms other{QStringLiteral("B"), QStringLiteral("hello"), at};

struct ConversationTest : ScreensTest {
    /// A conversation with the sender of the first row, opened from the list.
    ConversationView &open(const QList<Sms> &messages) {
        makeHome(messages);
        view = std::make_unique<ConversationView>(*process, request(), *content->copyVM());
        content->home()->tapSender(0);
        return *view;
    }

    ~ConversationTest() override { view.reset(); }

    QString unseen(int row) { return content->home()->senders()->value(row, "unseen").toString(); }

    std::unique_ptr<ConversationView> view;
};

TEST_F(ConversationTest, ShowsTheMessagesOfItsSenderAsAChat) {
    open({second, other, first});
    EXPECT_TRUE(request().conversation_isPresented());
    EXPECT_EQ(view->name(), QStringLiteral("A"));
    EXPECT_EQ(test::texts(*view->cards(), "content"),
              (QStringList{QStringLiteral("code 777"), QStringLiteral("code 123-456")}));
    EXPECT_EQ(test::texts(*view->cards(), "time"),
              (QStringList{QStringLiteral("23:55"), QStringLiteral("23:50")}));
    EXPECT_EQ(view->cards()->value(1, "exports").toStringList(), QStringList{QStringLiteral("123456")});
    EXPECT_EQ(view->cards()->value(0, "mine"), false);
    EXPECT_EQ(view->face(), content->home()->senders()->value(0, "face").value<AvatarFace>());
}

TEST_F(ConversationTest, MessageOfTheOtherSideStandsOpposite) {
    open({{ConversationView::otherSide(), QStringLiteral("hi"), at}});
    EXPECT_EQ(view->cards()->value(0, "mine"), true);
}

TEST_F(ConversationTest, OpeningMarksItsMessagesAsSeenForGood) {
    makeHome({second, other, first});
    EXPECT_EQ(unseen(0), QStringLiteral("2"));
    view = std::make_unique<ConversationView>(*process, request(), *content->copyVM());
    content->home()->tapSender(0);
    EXPECT_EQ(unseen(0), QString());
    EXPECT_EQ(unseen(1), QStringLiteral("1"));
    phone.advance(10s);
    EXPECT_EQ(unseen(0), QString());
    view->back();
    EXPECT_FALSE(request().conversation_isPresented());
    view.reset();
    restartScreens();
    makeContent().home()->appear();
    phone.settle();
    EXPECT_EQ(unseen(0), QString());
    EXPECT_EQ(unseen(1), QStringLiteral("1"));
}

TEST_F(ConversationTest, OpenConversationFollowsTheRefreshAndMarksAgain) {
    open({first, other});
    const QPersistentModelIndex shown = view->cards()->index(0);
    answerMessages({second, first, other});
    phone.advance(10s);
    EXPECT_EQ(view->cards()->count(), 2);
    EXPECT_EQ(shown.row(), 1);
    EXPECT_EQ(request().selectedConversation()->messages.size(), 2);
    EXPECT_EQ(unseen(0), QString());
}

TEST_F(ConversationTest, RefreshWithoutMoreMessagesLeavesItAlone) {
    open({second, first, other});
    QSignalSpy header(view.get(), &ConversationView::headerChanged);
    answerMessages({first, other});
    phone.advance(10s);
    EXPECT_EQ(view->cards()->count(), 2);
    answerMessages({other});
    phone.advance(10s);
    EXPECT_EQ(view->cards()->count(), 2);
    EXPECT_EQ(header.count(), 0);
}

TEST_F(ConversationTest, ClosedConversationMarksNothing) {
    open({first, other});
    view->back();
    answerMessages({second, first, other});
    phone.advance(10s);
    EXPECT_EQ(unseen(0), QStringLiteral("1"));
}

TEST_F(ConversationTest, WithoutASenderItIsEmpty) {
    makeHome({first});
    view = std::make_unique<ConversationView>(*process, request(), *content->copyVM());
    request().setConversation_isPresented(true);
    EXPECT_EQ(view->cards()->count(), 0);
    EXPECT_EQ(view->name(), QString());
    EXPECT_EQ(view->emptyHeight(844), 584);
    EXPECT_EQ(view->emptyHeight(0), 340);
}

TEST_F(ConversationTest, ScrollsToItsEndAfterOneAndThreeSeconds) {
    open({first});
    QSignalSpy scrolled(view.get(), &ConversationView::scrollToLastItem);
    phone.advance(999ms);
    EXPECT_EQ(scrolled.count(), 0);
    phone.advance(1ms);
    EXPECT_EQ(scrolled.count(), 1);
    phone.advance(1999ms);
    EXPECT_EQ(scrolled.count(), 1);
    phone.advance(1ms);
    EXPECT_EQ(scrolled.count(), 2);

    view->back();
    content->home()->tapSender(0);
    phone.advance(500ms);
    view->back();
    content->home()->tapSender(0);
    phone.advance(999ms);
    EXPECT_EQ(scrolled.count(), 2) << "a job of a chat that was left";
    phone.advance(1ms);
    EXPECT_EQ(scrolled.count(), 3);
}

TEST_F(ConversationTest, SendingDoesNothingAndTheTextStays) {
    open({first});
    const QStringList reads = phone.urls.urls();
    const QStringList writes = phone.store.writes;
    view->setMessageText(QStringLiteral("hello?"));
    view->send();
    phone.settle();
    EXPECT_EQ(view->messageText(), QStringLiteral("hello?"));
    EXPECT_EQ(view->cards()->count(), 1);
    EXPECT_EQ(phone.urls.urls(), reads);
    EXPECT_EQ(phone.store.writes, writes);
    view->back();
    EXPECT_EQ(view->messageText(), QString());
}

TEST_F(ConversationTest, TapsOpenLinksAndCopyTheRest) {
    open({first});
    view->tapExport(QStringLiteral("123456"));
    EXPECT_EQ(pasteboard.text, QStringLiteral("123456"));
    EXPECT_TRUE(content->copyVM()->copied());
    view->tapExport(QStringLiteral("https://a.example/x"));
    EXPECT_EQ(browser.opened, QStringList{QStringLiteral("https://a.example/x")});
}

} // namespace
