#include "mail/mail_page.h"
#include "mail_phone.h"

namespace orl {
namespace {

using namespace std::chrono_literals;
using test::ids;

TEST_F(MailTest, AStoredAddressIsPolledFromTheStart) {
    make();
    phone.settle();
    EXPECT_TRUE(phone.urls.requests.empty()) << "without an address";
    restart();
    phone.store.setValue("selected_email", address);
    answerInbox({"a"});
    EXPECT_EQ(make().currentAddress(), address);
    phone.settle();
    EXPECT_EQ(ids(service->mails()), QStringList{"a"});
    EXPECT_EQ(phone.urls.urls(), (QStringList{inboxUrl, bodyUrl("a")}));
    for (const PlayedRequest &request : phone.urls.requests)
        EXPECT_TRUE(request.byWorker) << "the main thread must not wait";
    EXPECT_TRUE(phone.urls.requests[0].headers.isEmpty());
    EXPECT_EQ(phone.urls.requests[0].timeout, std::nullopt);
}

TEST_F(MailTest, ABodyIsAskedForPastAllCachesInTheFormThatTheHostLikes) {
    makeWith({"a"});
    const PlayedRequest &request = phone.urls.requests.back();
    EXPECT_TRUE(request.ignoreCache);
    EXPECT_EQ(request.timeout, 60s);
    EXPECT_EQ(request.headers.value("Accept"),
              "text/html,text/plain,application/json,message/rfc2822,application/vnd.fleiklal.v1+json");
    EXPECT_EQ(content(0), mailPage("<p>body of a"));
}

TEST_F(MailTest, AnUnchangedFirstMailChangesNothing) {
    makeWith({"b", "a"});
    const QList<MailInfo> before = service->mails();
    int writes = 0;
    QObject::connect(service.get(), &MailServiceViewModel::mailsChanged, [&] { ++writes; });
    answerInbox({"b"});
    poll();
    EXPECT_EQ(service->mails(), before);
    EXPECT_EQ(writes, 0);
    EXPECT_EQ(phone.urls.count(inboxUrl), 2);
    EXPECT_EQ(phone.urls.count(bodyUrl("b")), 1);
}

TEST_F(MailTest, ANewFirstMailReplacesTheListAndAllBodiesAreReadAgain) {
    phone.store.setValue("a_read_at", QString("then"));
    makeWith({"a"});
    EXPECT_EQ(service->mails()[0].read, "then");
    phone.urls.hold(bodyUrl("a"));
    answerInbox({"b", "a"});
    poll();
    EXPECT_EQ(ids(service->mails()), (QStringList{"b", "a"}));
    EXPECT_EQ(content(0), mailPage("<p>body of b"));
    EXPECT_EQ(content(1), "none") << "between the list and its bodies";
    EXPECT_EQ(service->mails()[1].read, std::nullopt);
    phone.urls.release(bodyUrl("a"));
    phone.settle();
    EXPECT_EQ(content(1), mailPage("<p>body of a"));
    EXPECT_EQ(service->mails()[1].read, "then");
}

TEST_F(MailTest, AnEmptyAnswerEmptiesTheInboxAndIsAWriteEachTime) {
    makeWith({"a"});
    int writes = 0;
    QObject::connect(service.get(), &MailServiceViewModel::mailsChanged, [&] { ++writes; });
    answerInbox({});
    poll();
    EXPECT_TRUE(service->mails().isEmpty());
    poll();
    EXPECT_EQ(writes, 2);
    EXPECT_EQ(phone.urls.count(bodyUrl("a")), 1);
    EXPECT_EQ(phone.urls.count(inboxUrl), 3) << "polling goes on";
}

TEST_F(MailTest, WhatTheHostSaysOfReadStandsUntilTheBodyComes) {
    phone.urls.answer(inboxUrl, test::inboxJson({"a"}).replace("\"subject\"", R"("read":"host","subject")"));
    phone.urls.hold(bodyUrl("a"));
    make().setCurrentAddress(address);
    service->fetchMails();
    phone.settle();
    EXPECT_EQ(service->mails()[0].read, "host");
    phone.urls.release(bodyUrl("a"));
    phone.settle();
    EXPECT_EQ(service->mails()[0].read, std::nullopt);
}

TEST_F(MailTest, AFailedPollIsOneLineAndTheListStays) {
    struct Case {
        const char *name;
        PlayedUrls::Answer answer;
        QString line;
    };
    const Case cases[] = {
        {"host down", Error{"no route"}, "no route"},
        {"HTML", "<html>Sorry</html>", "no valid JSON: illegal value at byte 1"},
        {"wrong type", R"({"data":[{"id":1}]})", "data[0].id: a text is expected"},
        {"no object", "[]", "an object is expected"},
        {"17 MiB", QByteArray(17 << 20, ' '), "The body is too large."},
    };
    makeWith({"a"});
    const QList<MailInfo> before = service->mails();
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        phone.console.lines.clear();
        phone.urls.answer(inboxUrl, row.answer);
        poll();
        EXPECT_EQ(phone.console.lines, QStringList{"Failed to fetch mails: " + row.line});
        EXPECT_EQ(service->mails(), before);
    }
    answerInbox({"b"});
    poll();
    EXPECT_EQ(ids(service->mails()), QStringList{"b"});
}

TEST_F(MailTest, AnErrorPageOfTheRightFormCountsByItsForm) {
    phone.urls.answer(inboxUrl, UrlResponse{500, test::inboxJson({"a"})});
    make().setCurrentAddress(address);
    service->fetchMails();
    phone.settle();
    EXPECT_EQ(ids(service->mails()), QStringList{"a"});
}

TEST_F(MailTest, EachCallIsAChainOfItsOwnThatEndsOffline) {
    makeWith({"a"});
    service->fetchMails();
    phone.settle();
    EXPECT_EQ(phone.urls.count(inboxUrl), 2);
    poll();
    EXPECT_EQ(phone.urls.count(inboxUrl), 4);
    phone.reachability.setOnline(false);
    poll();
    phone.reachability.setOnline(true);
    phone.advance(5min);
    EXPECT_EQ(phone.urls.count(inboxUrl), 4) << "both chains are over";
    EXPECT_TRUE(phone.console.lines.isEmpty());
    service->fetchMails();
    poll();
    EXPECT_EQ(phone.urls.count(inboxUrl), 6);
}

TEST_F(MailTest, TheNextPollIsTenSecondsAfterTheAnswer) {
    phone.urls.hold(inboxUrl);
    makeWith({"a"});
    phone.advance(30s);
    phone.urls.release(inboxUrl);
    phone.advance(9999ms);
    EXPECT_EQ(phone.urls.count(inboxUrl), 1);
    phone.advance(1ms);
    EXPECT_EQ(phone.urls.count(inboxUrl), 2);
}

TEST_F(MailTest, AnAddressThatMakesNoUrlEndsTheChainSilently) {
    make();
    for (const char *wrong : {"my name@x.example", "a%zz@x.example", "\u00fc@x.example"}) {
        service->setCurrentAddress(wrong);
        service->fetchMails();
        phone.advance(1min);
    }
    EXPECT_TRUE(phone.urls.requests.empty());
    EXPECT_TRUE(phone.console.lines.isEmpty());
}

TEST_F(MailTest, TheAddressAtTheTimeOfThePollCounts) {
    makeWith({"a"});
    const QString other = phone.endpoints.mailHost + "/api/emails?inbox=you@x.example";
    phone.urls.answer(other, test::inboxJson({"c"}));
    service->setCurrentAddress("you@x.example");
    EXPECT_EQ(ids(service->mails()), QStringList{"a"}) << "the old inbox stays until then";
    poll();
    EXPECT_EQ(ids(service->mails()), QStringList{"c"});
    EXPECT_EQ(phone.urls.count(inboxUrl), 1);
}

TEST_F(MailTest, AnIdThatMakesNoUrlStopsTheBodiesFromThereOn) {
    makeWith({"a", "not this", "b"});
    EXPECT_EQ(content(0), mailPage("<p>body of a"));
    EXPECT_EQ(content(1), "none");
    EXPECT_EQ(content(2), "none");
}

TEST_F(MailTest, AFailedBodyIsOneLineAndIsNotTriedAgain) {
    phone.urls.answer(bodyUrl("a"), Error{"gone"});
    phone.urls.answer(bodyUrl("b"), QByteArray(20 << 20, 'x'));
    phone.urls.hold(bodyUrl("c"));
    makeWith({"a", "b", "c", "d"});
    phone.advance(5min);
    EXPECT_EQ(phone.console.lines, (QStringList{"gone", "The body is too large.", "The request timed out."}));
    EXPECT_EQ(content(0), "none");
    EXPECT_EQ(content(1), "none");
    EXPECT_EQ(content(2), "none");
    EXPECT_EQ(content(3), mailPage("<p>body of d"));
    EXPECT_EQ(phone.urls.count(bodyUrl("a")), 1);
}

TEST_F(MailTest, BrokenUtf8IsRepaired) {
    phone.urls.answer(bodyUrl("a"), "caf\xe9 \xff!");
    makeWith({"a"});
    EXPECT_EQ(content(0), mailPage(QString::fromUtf8("caf\xef\xbf\xbd \xef\xbf\xbd!")));
}

TEST_F(MailTest, ALateBodyLandsAtThePlaceThatItsMailHad) {
    phone.urls.hold(bodyUrl("a"));
    phone.store.setValue("a_read_at", QString("then"));
    makeWith({"a"});
    answerInbox({"b"});
    poll();
    EXPECT_EQ(content(0), mailPage("<p>body of b"));
    phone.urls.release(bodyUrl("a"));
    phone.settle();
    EXPECT_EQ(ids(service->mails()), QStringList{"b"});
    EXPECT_EQ(content(0), mailPage("<p>body of a"));
    EXPECT_EQ(service->mails()[0].read, "then");
}

TEST_F(MailTest, ALateBodyPastTheEndIsFatal) {
    phone.urls.hold(bodyUrl("b"));
    makeWith({"a", "b"});
    answerInbox({"c"});
    poll();
    phone.urls.release(bodyUrl("b"));
    EXPECT_THROW(phone.settle(), PlayedFatalError);
}

TEST_F(MailTest, TenThousandMailsWithBodiesThatNeverComeLeaveThePollsAlone) {
    QStringList many;
    for (int i = 0; i < 10000; ++i) {
        many << QStringLiteral("m%1").arg(i);
        phone.urls.answer(bodyUrl(many.last()), "x");
        phone.urls.hold(bodyUrl(many.last()));
    }
    makeWith(many);
    EXPECT_EQ(service->mails().size(), 10000);
    EXPECT_EQ(phone.globalQueue.unfinished(), size_t(MailServiceViewModel::bodiesAtOnce));
    poll();
    EXPECT_EQ(phone.urls.count(inboxUrl), 2);
    for (const QString &id : many)
        phone.urls.release(bodyUrl(id));
    phone.settle();
    EXPECT_EQ(content(9999), mailPage("x"));
}

TEST_F(MailTest, AReadMarkIsWrittenHereAndInTheStoreAndOutlivesTheRun) {
    makeWith({"b", "a", "b"});
    service->markRead("b");
    EXPECT_EQ(service->mails()[0].read, "2026-01-01T00:00:00Z");
    EXPECT_EQ(service->mails()[1].read, std::nullopt);
    EXPECT_EQ(service->mails()[2].read, "2026-01-01T00:00:00Z");
    service->markRead("unknown");
    EXPECT_EQ(phone.store.writes, (QStringList{"b_read_at", "b_read_at"}));
    restart();
    phone.advance(1h);
    makeWith({"b", "a"});
    EXPECT_EQ(service->mails()[0].read, "2026-01-01T00:00:00Z");
}

TEST_F(MailTest, AnAttachmentIsBelowItsMail) {
    EXPECT_EQ(attachmentUrl(phone.endpoints, {.id = "a b", .email_id = "m1"}),
              phone.endpoints.mailHost + "/api/emails/m1/attachments/a b");
}

} // namespace
} // namespace orl
