#include "client.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringDecoder>
#include <QTcpServer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

using Kind = Fault::Kind;

bool isUtf8(const QByteArray &bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    return !decoder.hasError() && !text.isEmpty();
}

class FaultsTest : public testing::Test {
protected:
    PlayedHost played;

    Answer broken(const QString &path, Fault fault) {
        played.host.setFault(path, fault);
        return played.get(path);
    }
};

TEST_F(FaultsTest, PageIsSpoiledAsTold) {
    const QString path = u"/first/en"_s;
    const QByteArray whole = played.get(path).body;

    Answer answer = broken(path, Kind::CutOff);
    EXPECT_EQ(answer.announced(), whole.size());
    EXPECT_EQ(answer.body, whole.left(whole.size() / 2));

    answer = broken(path, Kind::Garbage);
    EXPECT_EQ(answer.status, 200);
    EXPECT_GE(answer.body.size(), 20'000);
    EXPECT_FALSE(isUtf8(answer.body));

    answer = broken(path, Kind::InvalidUtf8);
    EXPECT_FALSE(isUtf8(answer.body));
    EXPECT_TRUE(answer.body.contains("col-sm-12 col-md-6 col-lg-4")) << "the page itself is still in there";

    answer = broken(path, Kind::NotFound);
    EXPECT_EQ(answer.status, 404);
    EXPECT_TRUE(answer.body.contains("404 Not Found"));

    answer = broken(path, Kind::Empty);
    EXPECT_EQ(answer.status, 200);
    EXPECT_EQ(answer.announced(), 0);

    answer = broken(path, Kind::WrongSite);
    EXPECT_EQ(answer.status, 200);
    EXPECT_TRUE(answer.body.contains("</html>") && !answer.body.contains("col-sm-12"));

    EXPECT_EQ(broken(path, Kind::Dead).status, 0);
    EXPECT_EQ(broken(path, Kind::None).body, whole);
}

TEST_F(FaultsTest, HugePageIsFiftyMegabytes) {
    const QByteArray start = played.get(u"/first/en"_s).body;
    const Answer answer = broken(u"/first/en"_s, Kind::Huge);
    EXPECT_EQ(answer.announced(), 50'000'000);
    EXPECT_EQ(answer.body.size(), 50'000'000);
    EXPECT_TRUE(answer.body.startsWith(start));
}

TEST_F(FaultsTest, ReaderMayLeaveInTheMiddleOfAHugePage) {
    played.host.setFault(u"/first/en"_s, Kind::Huge);
    for (int visit = 0; visit < 3; ++visit) {
        QTcpSocket socket;
        sendRequest(socket, played.host.port(), u"/first/en"_s);
        EXPECT_TRUE(socket.waitForReadyRead());
        socket.abort();
    }
    EXPECT_EQ(played.get(u"/probe"_s).status, 200);
}

TEST_F(FaultsTest, SlowAnswerHoldsUpNobodyElse) {
    played.host.setFault(u"/first/en"_s, Fault::slow(300));
    QElapsedTimer timer;
    timer.start();
    QTcpSocket slow;
    sendRequest(slow, played.host.port(), u"/first/en"_s);
    EXPECT_EQ(played.get(u"/second/germany/"_s).status, 200);
    const bool overtaken = slow.bytesAvailable() == 0 && !slow.waitForReadyRead(0);
    EXPECT_TRUE(overtaken || timer.elapsed() >= 300);
    EXPECT_EQ(readAnswer(slow).status, 200);
    EXPECT_GE(timer.elapsed(), 300);
}

TEST_F(FaultsTest, HostStopsWithAnAnswerStillUnderWay) {
    QTcpSocket socket;
    {
        PlayedHost stopped;
        stopped.host.setFault(u"/"_s, Fault::slow(3'600'000));
        sendRequest(socket, stopped.host.port(), u"/first/en"_s);
    }
    EXPECT_EQ(readAnswer(socket).status, 0);
}

TEST_F(FaultsTest, DocumentLosesAKeyOrItsType) {
    const auto object = [](const Answer &answer) { return QJsonDocument::fromJson(answer.body).object(); };
    const auto list = [](const Answer &answer) { return QJsonDocument::fromJson(answer.body).array(); };
    const QString configuration = u"/config/KeLo/iOS/orl_config.json"_s;
    EXPECT_EQ(object(broken(configuration, Kind::MissingKey)).keys(), QStringList{u"black_banner"_s});
    EXPECT_TRUE(object(broken(configuration, Kind::WrongType)).value(u"admob"_s).isString());

    const QString countries = u"/config/KeLo/Android/tpn_site_countries.json"_s;
    EXPECT_EQ(list(broken(countries, Kind::MissingKey)).first().toObject().size(), 5);
    EXPECT_EQ(list(broken(countries, Kind::MissingKey)).last().toObject().size(), 6);
    EXPECT_TRUE(list(broken(countries, Kind::WrongType)).first().toObject().value(u"continent"_s).isDouble());

    EXPECT_TRUE(list(broken(u"/config/KeLo/OnlineSMS/icons.json"_s, Kind::WrongType)).first().isDouble());
}

TEST_F(FaultsTest, LongestPrefixDecides) {
    played.host.setFault(u"/first/en"_s, Kind::Dead);
    played.host.setFault(u"/first/en/countries"_s, Kind::None);
    played.host.setFault(u"/first/en/countries/canada"_s, Kind::NotFound);
    EXPECT_EQ(played.get(u"/first/en"_s).status, 0);
    EXPECT_EQ(played.get(u"/first/en/countries/germany"_s).status, 200);
    EXPECT_EQ(played.get(u"/first/en/countries/canada"_s).status, 404);
    EXPECT_EQ(played.get(u"/second/germany/"_s).status, 200);
    played.host.clearFaults();
    EXPECT_EQ(played.get(u"/first/en"_s).status, 200);
}

TEST_F(FaultsTest, AnotherProcessSetsAndClearsFaultsOverHttp) {
    const quint16 port = played.host.port();
    EXPECT_EQ(fetch(port, u"/_control/fault?path=%2Ffirst%2Fen&kind=notfound"_s, "POST").status, 200);
    EXPECT_EQ(played.get(u"/first/en"_s).status, 404);
    EXPECT_EQ(fetch(port, u"/_control/fault?path=/&kind=Dead"_s, "POST").status, 200);
    EXPECT_EQ(played.get(u"/probe"_s).status, 0);
    EXPECT_EQ(fetch(port, u"/_control/reset"_s, "POST").status, 200);
    EXPECT_EQ(played.get(u"/first/en"_s).status, 200);
    EXPECT_EQ(fetch(port, u"/_control/fault?path=/&kind=gloomy"_s, "POST").status, 400);
    EXPECT_EQ(fetch(port, u"/_control/fault?kind=Dead"_s, "POST").status, 400);
    EXPECT_EQ(fetch(port, u"/_control/reset"_s).status, 405);
    EXPECT_EQ(played.get(u"/first/en"_s).status, 200);
}

TEST_F(FaultsTest, ConnectionServesSeveralRequestsAndHeadHasNoBody) {
    QTcpSocket socket;
    socket.connectToHost(u"127.0.0.1"_s, played.host.port());
    ASSERT_TRUE(socket.waitForConnected());
    for (int request = 0; request < 3; ++request) {
        socket.write("GET /probe HTTP/1.1\r\nHost: x\r\n\r\n");
        QByteArray answer;
        while (!answer.endsWith("ok\n")) {
            ASSERT_TRUE(socket.waitForReadyRead());
            answer += socket.readAll();
        }
        EXPECT_TRUE(answer.startsWith("HTTP/1.1 200 "));
    }
    const Answer head = fetch(played.host.port(), u"/first/en"_s, "HEAD");
    EXPECT_EQ(head.status, 200);
    EXPECT_GT(head.announced(), 60'000);
    EXPECT_TRUE(head.body.isEmpty());
}

TEST(DemoHostTest, TakenPortIsRefused) {
    QTcpServer taken;
    ASSERT_TRUE(taken.listen(QHostAddress::LocalHost));
    DemoHost host({taken.serverPort(), {}, 1});
    EXPECT_FALSE(host.start());
}

} // namespace
} // namespace orl::demo
