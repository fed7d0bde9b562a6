#include "platform/qt/loopback_server.h"
#include "platform/qt/network_url_reader.h"

#include <future>
#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace orl {
namespace {

constexpr qint64 mebibyte = 1024 * 1024;

class NetworkUrlReaderTest : public testing::Test {
protected:
    LoopbackServer server;
    NetworkUrlReader reader;
    const QString path = QStringLiteral("/page");

    Result<UrlResponse> read() { return reader.read({.url = server.url(path)}); }
    Result<UrlResponse> read(const QByteArray &answer) {
        server.answer(path, answer);
        return read();
    }
};

TEST_F(NetworkUrlReaderTest, GivesStatusAndBodyWhateverTheStatusIs) {
    struct Case {
        const char *answer;
        int status;
        const char *body;
    };
    const Case cases[] = {
        {"HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nbody", 200, "body"},
        {"HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n", 200, ""},
        {"HTTP/1.1 200 OK\r\n\r\nto the end", 200, "to the end"},
        {"HTTP/1.0 200 OK\r\n\r\nold", 200, "old"},
        {"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\nchu\r\n3\r\nnks\r\n0\r\n\r\n", 200,
         "chunks"},
        {"HTTP/1.1 204 No Content\r\n\r\n", 204, ""},
        {"HTTP/1.1 400 Bad Request\r\nContent-Length: 3\r\n\r\nbad", 400, "bad"},
        {"HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Basic realm=\"x\"\r\nContent-Length: 5\r\n\r\nlogin",
         401, "login"},
        {"HTTP/1.1 404 Not Found\r\nContent-Length: 4\r\n\r\ngone", 404, "gone"},
        {"HTTP/1.1 418 Teapot\r\nContent-Length: 3\r\n\r\ntea", 418, "tea"},
        {"HTTP/1.1 503 Busy\r\nContent-Length: 4\r\n\r\nbusy", 503, "busy"},
    };
    for (const Case &c : cases) {
        const Result<UrlResponse> response = read(c.answer);
        ASSERT_TRUE(response.ok()) << c.answer << response.error().description.toStdString();
        EXPECT_EQ(response.value().status, c.status) << c.answer;
        EXPECT_EQ(response.value().body, QByteArray(c.body)) << c.answer;
    }
}

TEST_F(NetworkUrlReaderTest, AnAnswerThatBreaksOffIsAnError) {
    const QByteArray deflated = qCompress(QByteArray(100'000, 'x') + "end").mid(4);
    const QByteArray half = deflated.left(deflated.size() / 2);
    const QByteArray answers[] = {
        "",
        "HTTP/1.1 20",
        "HTTP/1.1 200 OK\r\nContent-Le",
        "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nonly this",
        "HTTP/1.1 404 Not Found\r\nContent-Length: 100\r\n\r\nonly this",
        "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nwhole\r\n5\r\nha",
        "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nwhole\r\n",
        "HTTP/1.1 200 OK\r\nContent-Encoding: deflate\r\nContent-Length: " +
            QByteArray::number(deflated.size()) + "\r\n\r\n" + half,
        "HTTP/1.1 200 OK\r\nContent-Encoding: deflate\r\nTransfer-Encoding: chunked\r\n\r\n" +
            QByteArray::number(half.size(), 16) + "\r\n" + half + "\r\n",
        "garbage\r\n\r\n",
    };
    for (const QByteArray &answer : answers) {
        const Result<UrlResponse> response = read(answer);
        EXPECT_FALSE(response.ok()) << answer.left(90).toStdString() << "\ngave "
                                    << response.value().body.size() << " bytes";
    }
}

TEST_F(NetworkUrlReaderTest, AHostThatHangsUpOnSomeRequestsLosesNoOther) {
    const QUrl dead = server.url(QStringLiteral("/dead"));
    server.answer(QStringLiteral("/dead"), "");
    server.page(path, "here");
    for (int round = 0; round < 5; ++round) {
        // More than there are connections at a time, so that the last one waits for its turn.
        std::vector<std::future<Result<UrlResponse>>> others;
        for (int i = 0; i < 12; ++i)
            others.push_back(std::async(std::launch::async, [&] { return reader.read({.url = dead}); }));
        EXPECT_TRUE(read().ok());
        for (auto &other : others)
            EXPECT_FALSE(other.get().ok());
    }
}

TEST_F(NetworkUrlReaderTest, UnpacksACompressedBody) {
    const QByteArray body = QByteArray(100'000, 'x') + "end";
    server.page(path, qCompress(body).mid(4), "Content-Encoding: deflate\r\n");
    EXPECT_EQ(read().value().body, body);
    // "orl" and a line feed, packed by gzip; twice, as a body of two parts.
    const QByteArray packed = QByteArray::fromHex("1f8b08000000000002ffcb2fcae10200c249e93c04000000");
    server.page(path, packed + packed, "Content-Encoding: GZIP\r\n");
    EXPECT_EQ(read().value().body, QByteArray("orl\norl\n"));
    EXPECT_TRUE(server.requests(2)[1].contains("Accept-Encoding: gzip\r\n"));
    server.page(path, packed, "Content-Encoding: br\r\n");
    EXPECT_FALSE(read().ok());
    server.page(path, packed.chopped(1), "Content-Encoding: gzip\r\n");
    EXPECT_FALSE(read().ok());
}

TEST_F(NetworkUrlReaderTest, ABodyMayHave16MebibytesAndNoByteMore) {
    server.page(path, QByteArray(16 * mebibyte, 'x'));
    EXPECT_EQ(read().value().body.size(), 16 * mebibyte);
    server.page(path, QByteArray(16 * mebibyte + 1, 'x'));
    EXPECT_TRUE(read().error().description.contains(QStringLiteral("larger than")));
}

TEST_F(NetworkUrlReaderTest, ABodyWithoutEndIsBrokenOff) {
    server.answer(path, "HTTP/1.1 200 OK\r\n\r\n" + QByteArray(mebibyte, 'x'),
                  LoopbackServer::Then::RepeatForEver);
    EXPECT_TRUE(read().error().description.contains(QStringLiteral("larger than")));
}

TEST_F(NetworkUrlReaderTest, AnAnnouncedLengthIsJudgedBeforeTheBodyComes) {
    server.answer(path, "HTTP/1.1 200 OK\r\nContent-Length: 99999999999\r\n\r\nx",
                  LoopbackServer::Then::StayOpen);
    EXPECT_TRUE(read().error().description.contains(QStringLiteral("larger than")));
}

TEST_F(NetworkUrlReaderTest, ASmallBodyThatUnpacksToAHugeOneIsAnError) {
    server.page(path, qCompress(QByteArray(64 * mebibyte, 'x'), 9).mid(4), "Content-Encoding: deflate\r\n");
    EXPECT_TRUE(read().error().description.contains(QStringLiteral("larger than")));
}

TEST_F(NetworkUrlReaderTest, FollowsRedirectsWithinTheWebOnly) {
    server.page(QStringLiteral("/end"), "end");
    const auto redirect = [&](const QByteArray &to) {
        return read("HTTP/1.1 302 Found\r\nLocation: " + to + "\r\nContent-Length: 5\r\n\r\nmoved");
    };
    EXPECT_EQ(redirect("/end").value().body, QByteArray("end"));
    EXPECT_EQ(redirect(server.url(QStringLiteral("/end")).toEncoded()).value().body, QByteArray("end"));
    for (const char *to :
         {"file:///etc/hostname", "data:text/plain,x", "ftp://127.0.0.1/x", "qrc:/x", "/page"}) {
        EXPECT_FALSE(redirect(to).ok()) << to;
    }
}

TEST_F(NetworkUrlReaderTest, ARequestMayBeKeptToItsOriginAndToFewerBytes) {
    LoopbackServer elsewhere;
    elsewhere.page(path, "elsewhere");
    server.page(QStringLiteral("/end"), "end");
    const auto redirect = [&](const QByteArray &to) {
        server.answer(path, "HTTP/1.1 302 Found\r\nLocation: " + to + "\r\nContent-Length: 0\r\n\r\n");
        UrlRequest request{.url = server.url(path)};
        request.sameOrigin = true;
        return reader.read(request);
    };
    EXPECT_EQ(redirect("/end").value().body, QByteArray("end"));
    EXPECT_FALSE(redirect(elsewhere.url(path).toEncoded()).ok());
    EXPECT_TRUE(elsewhere.requests(0).empty());

    UrlRequest few{.url = server.url(QStringLiteral("/end"))};
    few.mostBytes = 3;
    EXPECT_TRUE(reader.read(few).ok());
    few.mostBytes = 2;
    EXPECT_TRUE(reader.read(few).error().description.contains(QStringLiteral("larger than 2 bytes")));
    server.page(QStringLiteral("/end"), qCompress(QByteArray(mebibyte, 'x'), 9).mid(4),
                "Content-Encoding: deflate\r\n");
    few.mostBytes = 64 * 1024;
    EXPECT_TRUE(reader.read(few).error().description.contains(QStringLiteral("larger than")));
}

TEST_F(NetworkUrlReaderTest, ReadsNothingButTheWeb) {
    for (const char *url : {"file:///etc/hostname", "data:text/plain,x", "qrc:/x", "", "page"}) {
        EXPECT_FALSE(reader.read({.url = QUrl(QString::fromLatin1(url))}).ok()) << url;
    }
}

TEST_F(NetworkUrlReaderTest, ARefusedConnectionIsAnError) {
    QUrl url;
    {
        const LoopbackServer gone;
        url = gone.url(path);
    }
    EXPECT_FALSE(reader.read({.url = url}).ok());
}

TEST_F(NetworkUrlReaderTest, AHostThatNoAuthorityVouchesForIsRefused) {
    LoopbackServer secret(true);
    secret.page(path, "secret");
    const Result<UrlResponse> response = reader.read({.url = secret.url(path)});
    ASSERT_FALSE(response.ok());
    EXPECT_TRUE(response.error().description.contains(QStringLiteral("self-signed")))
        << response.error().description.toStdString();
    EXPECT_TRUE(secret.requests(0).empty());
}

TEST_F(NetworkUrlReaderTest, SendsItsHeadersAndAsksCachesForTheHostsOwnAnswer) {
    server.page(path, "");
    read();
    reader.read({.url = server.url(path), .ignoreCache = true, .headers = {{"Accept", "text/html,x/y"}}});
    const std::vector<QByteArray> requests = server.requests(2);
    EXPECT_FALSE(requests[0].toLower().contains("cache-control: no-cache")) << requests[0].toStdString();
    EXPECT_TRUE(requests[1].toLower().contains("cache-control: no-cache")) << requests[1].toStdString();
    EXPECT_TRUE(requests[1].contains("Accept: text/html,x/y\r\n")) << requests[1].toStdString();
}

TEST_F(NetworkUrlReaderTest, TheUrlGoesOutAsItStands) {
    const QString odd = QStringLiteral("/api?inbox=a.b+c%2B@d.example");
    server.page(odd, "found");
    EXPECT_EQ(reader.read({.url = *makeUrl(server.url(odd).toString(QUrl::FullyEncoded))}).value().body,
              QByteArray("found"));
}

TEST_F(NetworkUrlReaderTest, ATextThatIsNoUtf8IsAnError) {
    server.page(path, "caf\xe9");
    EXPECT_TRUE(readText(reader, server.url(path)).error().description.contains(QStringLiteral("UTF-8")));
}

TEST_F(NetworkUrlReaderTest, ASilentHostTimesOut) {
    for (const char *begin : {"", "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nbe"}) {
        server.answer(path, begin, LoopbackServer::Then::StayOpen);
        const Result<UrlResponse> response = reader.read({.url = server.url(path), .timeout = 50ms});
        ASSERT_FALSE(response.ok());
        EXPECT_TRUE(response.error().description.startsWith(QStringLiteral("The request timed out")));
    }
}

TEST_F(NetworkUrlReaderTest, StopEndsReadsInFlightAndLaterOnes) {
    server.answer(path, "HTTP/1.1 200 OK\r\nContent-Length: 9\r\n\r\nbe", LoopbackServer::Then::StayOpen);
    auto first = std::async(std::launch::async, [&] { return read(); });
    auto second = std::async(std::launch::async, [&] { return read(); });
    server.requests(2);
    reader.stop();
    EXPECT_FALSE(first.get().ok());
    EXPECT_FALSE(second.get().ok());
    EXPECT_FALSE(read().ok());
    reader.stop();
}

TEST_F(NetworkUrlReaderTest, ManyThreadsReadAtOnce) {
    std::vector<std::future<Result<UrlResponse>>> reads;
    for (int i = 0; i < 32; ++i) {
        const QString own = QStringLiteral("/%1").arg(i);
        server.page(own, own.toLatin1());
        reads.push_back(
            std::async(std::launch::async, [&, own] { return reader.read({.url = server.url(own)}); }));
    }
    for (int i = 0; i < 32; ++i)
        EXPECT_EQ(reads[static_cast<std::size_t>(i)].get().value().body, "/" + QByteArray::number(i));
}

} // namespace
} // namespace orl
