#include "platform/qt/network_url_reader.h"

#include "platform/qt/unpack.h"

#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <condition_variable>
#include <functional>
#include <optional>
#include <utility>

namespace orl {

namespace {

constexpr int mostRedirects = 20;

const Error stoppedError{QStringLiteral("The program is ending.")};

bool isLoopback(const QString &host) {
    return host == QLatin1String("localhost") || QHostAddress(host).isLoopback();
}

/// The proxy that the desktop is set up with, but none for hosts on this device.
class DeviceProxies : public QNetworkProxyFactory {
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery &query) override {
        if (isLoopback(query.peerHostName())) return {QNetworkProxy::NoProxy};
        return systemProxyForQuery(query);
    }
};

QNetworkRequest networkRequest(const UrlRequest &request) {
    QNetworkRequest made(request.url);
    // Whether a body is whole is checked as HTTP/1.1 tells it.
    made.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    made.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                      request.sameOrigin ? QNetworkRequest::SameOriginRedirectPolicy
                                         : QNetworkRequest::NoLessSafeRedirectPolicy);
    made.setMaximumRedirectsAllowed(mostRedirects);
    if (request.ignoreCache) {
        made.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
        made.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    }
    const auto timeout = request.timeout.value_or(NetworkUrlReader::defaultTimeout);
    made.setTransferTimeout(static_cast<int>(std::max<std::chrono::milliseconds::rep>(timeout.count(), 1)));
    // Asked for by hand, Qt leaves the body packed: unpacking it, Qt takes half a body for a whole one.
    made.setRawHeader("Accept-Encoding", "gzip");
    for (auto header = request.headers.begin(); header != request.headers.end(); ++header) {
        made.setRawHeader(header.key(), header.value());
    }
    return made;
}

// Qt takes statuses from 400 on for errors; here they are answers like any other. A connection that fails
// after such a status has an error of its own.
bool isAnswer(const QNetworkReply &reply) {
    const int error = reply.error();
    const bool byContent =
        error >= QNetworkReply::ContentAccessDenied && error <= QNetworkReply::UnknownContentError;
    const bool byServer =
        error >= QNetworkReply::InternalServerError && error <= QNetworkReply::UnknownServerError;
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool byRequest = error == QNetworkReply::ProtocolInvalidOperationError && status >= 400;
    return error == QNetworkReply::NoError || byContent || byServer || byRequest;
}

Result<UrlResponse> unpacked(int status, const QByteArray &body, const QByteArray &encoding, qint64 most) {
    if (body.isEmpty() || encoding.isEmpty() || encoding == "identity") return UrlResponse{status, body};
    if (encoding != "gzip" && encoding != "x-gzip" && encoding != "deflate") {
        return Error{
            QStringLiteral("The body is packed in an unknown way: %1").arg(QString::fromLatin1(encoding))};
    }
    const Result<QByteArray> whole = unpack(body, most);
    if (!whole) return whole.error();
    return UrlResponse{status, whole.value()};
}

Error tooLarge(qint64 most) {
    return {QStringLiteral("The body is larger than %1 bytes.").arg(most)};
}

} // namespace

/// One read: the waiting thread and the network thread meet here.
struct NetworkUrlReader::Job {
    std::mutex mutex;
    std::condition_variable ended;
    std::optional<Result<UrlResponse>> result;

    /// The first result counts.
    void end(Result<UrlResponse> with) {
        const std::lock_guard lock(mutex);
        if (result) return;
        result.emplace(std::move(with));
        ended.notify_all();
    }

    Result<UrlResponse> wait() {
        std::unique_lock lock(mutex);
        ended.wait(lock, [this] { return result.has_value(); });
        return *std::move(result);
    }
};

/// What happens on the network thread.
class NetworkUrlReader::Loader : public QObject {
public:
    void load(const UrlRequest &request, const std::shared_ptr<Job> &job) {
        if (!manager_) manager_ = makeManager();
        load(*manager_, request, job, [this, request, job] {
            QNetworkAccessManager *own = makeManager();
            load(*own, request, job, nullptr);
        });
    }

private:
    struct Transfer {
        QNetworkReply &reply;
        std::shared_ptr<Job> job;
        qint64 mostBytes;
        std::function<void()> again; ///< none: it was the last attempt
        QByteArray body;
    };

    void load(QNetworkAccessManager &manager, const UrlRequest &request, const std::shared_ptr<Job> &job,
              std::function<void()> again) {
        QNetworkReply *reply = manager.get(networkRequest(request));
        auto transfer =
            std::make_shared<Transfer>(Transfer{*reply, job, mostBytes(request), std::move(again), {}});
        connect(reply, &QNetworkReply::metaDataChanged, reply,
                [transfer] { checkAnnouncedLength(*transfer); });
        connect(reply, &QNetworkReply::readyRead, reply, [transfer] { takeBytes(*transfer); });
        connect(reply, &QNetworkReply::finished, reply, [transfer] { finish(*transfer); });
        if (&manager != manager_) connect(reply, &QObject::destroyed, &manager, &QObject::deleteLater);
    }

    QNetworkAccessManager *makeManager() {
        auto *manager = new QNetworkAccessManager(this);
        manager->setProxyFactory(new DeviceProxies);
        return manager;
    }

    static void giveUp(Transfer &transfer) {
        transfer.job->end(tooLarge(transfer.mostBytes));
        transfer.reply.abort();
    }

    static void checkAnnouncedLength(Transfer &transfer) {
        const QVariant length = transfer.reply.header(QNetworkRequest::ContentLengthHeader);
        if (length.toLongLong() > transfer.mostBytes) giveUp(transfer);
    }

    static void takeBytes(Transfer &transfer) {
        if (!transfer.reply.isOpen()) return; // given up
        transfer.body += transfer.reply.readAll();
        if (transfer.body.size() > transfer.mostBytes) giveUp(transfer);
    }

    static void finish(Transfer &transfer) {
        takeBytes(transfer);
        transfer.reply.deleteLater();
        if (transfer.again && wasNotAnswered(transfer)) return transfer.again();
        transfer.job->end(outcome(transfer));
    }

    /// When a host closes a connection, Qt lets every request fail that waits for one to the same host,
    /// though nobody has heard it. It is sent once more, with connections of its own.
    static bool wasNotAnswered(const Transfer &transfer) {
        return transfer.reply.error() == QNetworkReply::RemoteHostClosedError && transfer.body.isEmpty() &&
               !transfer.reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
    }

    static Result<UrlResponse> outcome(const Transfer &transfer) {
        const QNetworkReply &reply = transfer.reply;
        // Whoever else ends a transfer has told the job why before.
        if (reply.error() == QNetworkReply::OperationCanceledError) {
            return Error{QStringLiteral("The request timed out: %1").arg(reply.url().toDisplayString())};
        }
        if (!isAnswer(reply)) return Error{reply.errorString()};
        const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        return unpacked(status, transfer.body, reply.rawHeader("Content-Encoding").trimmed().toLower(),
                        transfer.mostBytes);
    }

    QNetworkAccessManager *manager_ = nullptr;
};

NetworkUrlReader::NetworkUrlReader() : loader_(new Loader) {
    thread_.setObjectName(QStringLiteral("network"));
    queue_.moveToThread(&thread_);
    loader_->moveToThread(&thread_);
    QObject::connect(&thread_, &QThread::finished, loader_, &QObject::deleteLater);
    thread_.start();
}

Result<UrlResponse> NetworkUrlReader::read(const UrlRequest &request) {
    const QString scheme = request.url.scheme();
    if (scheme != QLatin1String("http") && scheme != QLatin1String("https")) {
        return Error{QStringLiteral("Not an http or https URL: %1").arg(request.url.toDisplayString())};
    }
    const std::shared_ptr<Job> job = begin(request);
    if (!job) return stoppedError;
    Result<UrlResponse> result = job->wait();
    const std::lock_guard lock(mutex_);
    jobs_.erase(job);
    return result;
}

std::shared_ptr<NetworkUrlReader::Job> NetworkUrlReader::begin(const UrlRequest &request) {
    const std::lock_guard lock(mutex_);
    if (stopped_) return nullptr;
    auto job = std::make_shared<Job>();
    jobs_.insert(job);
    queue_.post([loader = loader_, request, job] { loader->load(request, job); });
    return job;
}

void NetworkUrlReader::stop() {
    {
        const std::lock_guard lock(mutex_);
        stopped_ = true;
        for (const auto &job : jobs_)
            job->end(stoppedError);
    }
    thread_.quit();
    thread_.wait();
}

} // namespace orl
