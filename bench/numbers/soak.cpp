// Refreshes changing pages again and again, on the virtual clock and with the real parser, behind the home
// screen and an open conversation; prints what is alive at the start and at the end.
//
//     soak [REFRESHES]      10,000 by default; exit code 1 when the live bytes grew by more than 64 KiB
#include "demo/catalogue.h"
#include "demo/first_website.h"
#include "screens/content_view.h"
#include "screens/conversation_view.h"
#include "support/played_platform.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <malloc.h>
#include <unistd.h>

namespace {

using namespace orl;
using namespace std::chrono_literals;

constexpr qint64 allowedGrowth = 64 << 10;

qint64 liveBytes() {
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks + info.hblkhd);
}

qint64 residentBytes() {
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly)) return 0;
    return file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

/// A demo host that goes on writing messages, read through the played network.
class Soak {
public:
    Soak() {
        phone_.bundle.resources[QStringLiteral("countries.json")] = "[]";
        phone_.reachability.setOnline(true);
        const QString host = phone_.endpoints.configurationHost;
        for (const char *path : {"/KeLo/iOS/orl_config.json", "/KeLo/OnlineSMS/scraping_config.json",
                                 "/KeLo/OnlineSMS/icons.json", "/KeLo/Android/tpn_site_countries.json"})
            phone_.urls.answer(host + QString::fromLatin1(path), "");
        phone_.urls.answer(phone_.endpoints.firstWebsite + QStringLiteral("/en"), "");
        answer();
        content_ = std::make_unique<ContentView>(process_, appearance_);
        request().chooseNumber(
            {}, {QUuid::createUuid(), QStringLiteral("+") + digits_, WebsiteService::SMS24}, false);
        content_->home()->appear();
        phone_.settle();
        conversation_ = std::make_unique<ConversationView>(process_, request(), *content_->copyVM());
    }

    ~Soak() {
        conversation_.reset();
        phone_.endProcess();
    }

    void refresh(int round) {
        answer();
        phone_.advance(10s);
        if (round % 5 == 0) content_->home()->tapSender(round % 3);
        if (round % 5 == 3) conversation_->back();
        const QString first =
            request().messages().isEmpty() ? QString() : request().messages().first().content;
        changes_ += first != lastFirst_;
        lastFirst_ = first;
        // What a test may look at, and a phone does not keep.
        phone_.urls.requests.clear();
        phone_.console.lines.clear();
        phone_.store.writes.clear();
        phone_.store.values.clear();
    }

    int changes() const { return changes_; }
    qsizetype messages() { return request().messages().size(); }

private:
    RequestViewModel &request() { return content_->requestVM(); }

    void answer() {
        for (const char *second : {"", "/2"}) {
            const QString path = QStringLiteral("/en/numbers/") + digits_ + QString::fromLatin1(second);
            phone_.urls.answer(phone_.endpoints.firstWebsite + path,
                               website_.answer({path, phone_.clock.now()}).body);
        }
    }

    const demo::Catalogue catalogue_{1};
    const demo::FirstWebsite website_{catalogue_, 1};
    const QString digits_ = catalogue_.countries().front().first.front().digits;
    PlayedPlatform phone_;
    Process process_{phone_.platform()};
    Appearance appearance_;
    std::unique_ptr<ContentView> content_;
    std::unique_ptr<ConversationView> conversation_;
    QString lastFirst_;
    int changes_ = 0;
};

void report(const char *when, const Soak &soak) {
    std::printf("%-6s %10lld live bytes %10lld resident bytes %6d changed pages\n", when,
                static_cast<long long>(liveBytes()), static_cast<long long>(residentBytes()), soak.changes());
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const int refreshes = argc > 1 ? std::atoi(argv[1]) : 10000;
    Soak soak;
    // Caches and arenas reach their size first.
    constexpr int warmUp = 200;
    for (int i = 0; i < warmUp; ++i)
        soak.refresh(i);
    const qint64 before = liveBytes();
    report("start", soak);
    for (int i = 0; i < refreshes; ++i)
        soak.refresh(i);
    const qint64 growth = liveBytes() - before;
    report("end", soak);
    std::printf("%lld bytes more after %d refreshes, %lld messages shown\n", static_cast<long long>(growth),
                refreshes, static_cast<long long>(soak.messages()));
    return growth > allowedGrowth ? 1 : 0;
}
