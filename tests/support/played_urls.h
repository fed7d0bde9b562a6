#pragma once

#include "platform/url_reader.h"
#include "support/played_queues.h"

#include <QStringList>

#include <deque>
#include <map>
#include <memory>
#include <variant>
#include <vector>

namespace orl {

/// A read that was made.
struct PlayedRequest : UrlRequest {
    bool byWorker = false; ///< false: the thread of the test or a main task waited for it
};

/// Hosts that answer by a script. A read of a URL without an answer fails the test.
class PlayedUrls : public UrlReader {
public:
    PlayedUrls(PlayedGlobalQueue &workers, PlayedMainQueue &main) : workers_(workers), main_(main) {}

    /// What the script may answer: bytes with status 200, an error, or a status with bytes.
    struct Answer : Result<UrlResponse> {
        Answer(const QByteArray &body) : Result(UrlResponse{200, body}) {}
        Answer(const char *body) : Answer(QByteArray(body)) {}
        Answer(UrlResponse response) : Result(std::move(response)) {}
        Answer(Error error) : Result(std::move(error)) {}
    };

    /// The answer to every read from now on.
    void answer(const QString &url, Answer answer);

    /// The answer to one read, ahead of the standing one. Several are given in turn; what comes after the
    /// last of them without a standing answer fails the test.
    void answerOnce(const QString &url, Answer answer);

    /// Reads of the URL wait from now on, with the answer that stood when they were made.
    void hold(const QString &url);

    /// Reads that wait for a held-back URL.
    std::size_t held(const QString &url) const;

    /// Lets all waiting reads of the URL end, and no longer holds it. They go on in the next `settle`.
    void release(const QString &url);

    /// Lets one waiting read end, counted from the oldest; the URL stays held back.
    void releaseOne(const QString &url, std::size_t which = 0);

    /// All reads in the order in which they were made.
    std::vector<PlayedRequest> requests;

    /// The URLs of `requests`, and how often one of them was read.
    QStringList urls() const;
    qsizetype count(const QString &url) const;

    Result<UrlResponse> read(const UrlRequest &request) override;

private:
    struct Script {
        std::deque<Answer> once;
        std::optional<Answer> standing;
        bool hold = false;
    };
    struct Waiting {
        enum class State { Held, Released, TimedOut };
        QByteArray url;
        PlayedGlobalQueue::Token worker;
        State state = State::Held;
    };

    static QByteArray key(const QUrl &url) { return url.toEncoded(); }
    static QByteArray key(const QString &url);
    Result<UrlResponse> next(const QByteArray &url);
    Result<UrlResponse> waitForRelease(const UrlRequest &request, Result<UrlResponse> answer);
    void end(Waiting &read, Waiting::State state);

    PlayedGlobalQueue &workers_;
    PlayedMainQueue &main_;
    std::map<QByteArray, Script> scripts_;
    std::vector<std::shared_ptr<Waiting>> waiting_;
};

} // namespace orl
