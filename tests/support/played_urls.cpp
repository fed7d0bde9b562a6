#include "support/played_urls.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace orl {

void PlayedUrls::answer(const QString &url, Answer answer) {
    scripts_[key(url)].standing = std::move(answer);
}

void PlayedUrls::answerOnce(const QString &url, Answer answer) {
    scripts_[key(url)].once.push_back(std::move(answer));
}

void PlayedUrls::hold(const QString &url) {
    scripts_[key(url)].hold = true;
}

std::size_t PlayedUrls::held(const QString &url) const {
    return static_cast<std::size_t>(std::ranges::count_if(waiting_, [&](const auto &read) {
        return read->url == key(url) && read->state == Waiting::State::Held;
    }));
}

void PlayedUrls::release(const QString &url) {
    scripts_[key(url)].hold = false;
    for (const auto &read : waiting_) {
        if (read->url == key(url)) end(*read, Waiting::State::Released);
    }
}

void PlayedUrls::releaseOne(const QString &url, std::size_t which) {
    for (const auto &read : waiting_) {
        if (read->url != key(url) || read->state != Waiting::State::Held || which-- != 0) continue;
        return end(*read, Waiting::State::Released);
    }
    ADD_FAILURE() << "no such read waits for " << url.toStdString();
}

QStringList PlayedUrls::urls() const {
    QStringList urls;
    for (const PlayedRequest &request : requests)
        urls.append(QString::fromUtf8(key(request.url)));
    return urls;
}

qsizetype PlayedUrls::count(const QString &url) const {
    return std::ranges::count(requests, key(url),
                              [](const PlayedRequest &request) { return key(request.url); });
}

Result<UrlResponse> PlayedUrls::read(const UrlRequest &request) {
    requests.push_back({request, PlayedGlobalQueue::isWorker()});
    const QByteArray url = key(request.url);
    Result<UrlResponse> answer = next(url);
    if (answer && answer.value().body.size() > mostBytes(request))
        answer = Error{QStringLiteral("The body is too large.")};
    return scripts_[url].hold ? waitForRelease(request, std::move(answer)) : answer;
}

QByteArray PlayedUrls::key(const QString &url) {
    const QUrl parsed(url, QUrl::StrictMode);
    if (!parsed.isValid())
        ADD_FAILURE() << "the script names something that is no URL: " << url.toStdString();
    return key(parsed);
}

Result<UrlResponse> PlayedUrls::next(const QByteArray &url) {
    Script &script = scripts_[url];
    if (!script.once.empty()) {
        Answer answer = script.once.front();
        script.once.pop_front();
        return answer;
    }
    if (script.standing) return *script.standing;
    ADD_FAILURE() << "a read of a URL that the script does not know: " << url.toStdString();
    return Error{QStringLiteral("The script has no answer for %1.").arg(QString::fromUtf8(url))};
}

Result<UrlResponse> PlayedUrls::waitForRelease(const UrlRequest &request, Result<UrlResponse> answer) {
    if (!PlayedGlobalQueue::isWorker()) {
        ADD_FAILURE() << "a held-back read would hold up the main thread for ever: "
                      << key(request.url).toStdString();
        return answer;
    }
    const auto read = std::make_shared<Waiting>(Waiting{key(request.url), PlayedGlobalQueue::currentToken()});
    waiting_.push_back(read);
    // Also where the worker is unwound, as at the end of the process.
    const std::shared_ptr<void> forget(nullptr, [&](void *) { std::erase(waiting_, read); });
    if (request.timeout) {
        main_.postAfter(*request.timeout, [this, weak = std::weak_ptr(read)] {
            if (const auto alive = weak.lock()) end(*alive, Waiting::State::TimedOut);
        });
    }
    workers_.wait();
    if (read->state == Waiting::State::TimedOut) return Error{QStringLiteral("The request timed out.")};
    return answer;
}

void PlayedUrls::end(Waiting &read, Waiting::State state) {
    if (read.state != Waiting::State::Held) return;
    read.state = state;
    workers_.wake(read.worker);
}

} // namespace orl
