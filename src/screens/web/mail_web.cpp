#include "screens/web/mail_web.h"

#include <QBuffer>
#include <QWebEngineNavigationRequest>
#include <QWebEngineUrlRequestInfo>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

#include <utility>

namespace orl {

namespace {

constexpr char scheme[] = "orl-mail";

bool isWeb(const QUrl &url) {
    return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

/// What a page holds in itself.
bool isOwn(const QUrl &url) {
    return url.scheme() == QLatin1String("data") || url.scheme() == QLatin1String("blob") ||
           url.scheme() == QLatin1String("about");
}

bool isMail(const QUrl &url) {
    return url.scheme() == QLatin1String(scheme);
}

} // namespace

/// Serves the page at its address, once.
class MailWeb::Pages : public QWebEngineUrlSchemeHandler {
public:
    void set(const QString &page) {
        bytes_ = page.toUtf8();
        ++number_;
        pending_ = true;
    }

    QUrl address() const { return QUrl(QStringLiteral("%1:%2").arg(QLatin1String(scheme)).arg(number_)); }

    void requestStarted(QWebEngineUrlRequestJob *job) override {
        if (job->requestUrl() != address() || !std::exchange(pending_, false))
            return job->fail(QWebEngineUrlRequestJob::UrlNotFound);
        auto *buffer = new QBuffer(job);
        buffer->setData(std::exchange(bytes_, {}));
        buffer->open(QIODevice::ReadOnly);
        job->reply("text/html; charset=utf-8", buffer);
    }

private:
    QByteArray bytes_;
    int number_ = 0;
    bool pending_ = false;
};

/// Sees every request before it leaves.
class MailWeb::Gate : public QWebEngineUrlRequestInterceptor {
public:
    explicit Gate(const MailWeb &web) : web_(web) {}

    void interceptRequest(QWebEngineUrlRequestInfo &info) override {
        const QUrl url = info.requestUrl();
        // The view itself was asked whether it may go there.
        const bool goesThere = info.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame;
        const bool asksForMail = !goesThere && isMail(info.firstPartyUrl()) && web_.withheld();
        const bool socket = url.scheme() == QLatin1String("ws") || url.scheme() == QLatin1String("wss");
        const bool reachesOut = isWeb(url) || socket;
        if (isOwn(url) || (reachesOut && !asksForMail) || (goesThere && isMail(url))) return;
        info.block(true);
    }

private:
    const MailWeb &web_;
};

void MailWeb::registerScheme() {
    QWebEngineUrlScheme own(scheme);
    // Relative addresses in a mail lead nowhere.
    own.setSyntax(QWebEngineUrlScheme::Syntax::Path);
    QWebEngineUrlScheme::registerScheme(own);
}

MailWeb::MailWeb(QObject *parent)
    : QObject(parent),
      profile_(std::make_unique<QQuickWebEngineProfile>()),
      pages_(std::make_unique<Pages>()),
      gate_(std::make_unique<Gate>(*this)) {
    profile_->setOffTheRecord(true);
    profile_->setHttpCacheType(QQuickWebEngineProfile::NoCache);
    profile_->setPersistentCookiesPolicy(QQuickWebEngineProfile::NoPersistentCookies);
    profile_->setSpellCheckEnabled(false);
    profile_->installUrlSchemeHandler(scheme, pages_.get());
    profile_->setUrlRequestInterceptor(gate_.get());
}

MailWeb::~MailWeb() {
    profile_->setUrlRequestInterceptor(nullptr);
    profile_->removeAllUrlSchemeHandlers();
}

void MailWeb::setPage(const QString &page) {
    page_ = page;
    left_ = false;
    pages_->set(page);
    setDestination({});
    Q_EMIT pageChanged();
}

void MailWeb::setWithheld(bool withheld) {
    if (withheld == withheld_) return;
    withheld_ = withheld;
    Q_EMIT withheldChanged();
}

QUrl MailWeb::address() const {
    return pages_->address();
}

bool MailWeb::allows(const QUrl &url, int type, bool mainFrame) {
    if (mainFrame && url == address()) return true;
    if (!mainFrame) return isOwn(url) || isWeb(url);
    if (!isWeb(url)) return false;
    // A private mail goes nowhere by itself, as by a refresh that it asks for.
    if (withheld_ && !left_ && type != QWebEngineNavigationRequest::LinkClickedNavigation) return false;
    left_ = true;
    setDestination(shown(url));
    return true;
}

QString MailWeb::shown(const QUrl &url) {
    return QString::fromLatin1(url.toEncoded(QUrl::RemoveUserInfo));
}

void MailWeb::loadEnded() {
    setDestination({});
}

void MailWeb::setDestination(const QString &destination) {
    if (destination == destination_) return;
    destination_ = destination;
    Q_EMIT destinationChanged();
}

} // namespace orl
