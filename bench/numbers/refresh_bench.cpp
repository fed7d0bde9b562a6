// What a refresh costs the main thread while 1,000 messages are shown. Workers, which read and parse the
// page, run aside and are not counted.
#include "message_page.h"
#include "platform/qt/sqlite_store.h"
#include "platform/qt/system_ports.h"
#include "screens/content_view.h"
#include "screens/screens.h"
#include "support/played_platform.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <ctime>

namespace {

using namespace orl;

constexpr int messageCount = 1000;

/// Seconds of processor time of this thread, which other programs do not lengthen.
double threadTime() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) / 1e9;
}

/// The phone with a real store, the home screen and, where asked for, the window that shows it.
class Phone {
public:
    Phone(int senders, bool shown) : senders_(senders) {
        played_.bundle.resources[QStringLiteral("countries.json")] = "[]";
        played_.reachability.setOnline(false); // no catalogue and no configuration is wanted here
        process_ = std::make_unique<Process>(played_.platform().with(store_));
        for (const char *path : {"/KeLo/iOS/orl_config.json", "/KeLo/OnlineSMS/scraping_config.json"})
            played_.urls.answer(played_.endpoints.configurationHost + QString::fromLatin1(path), "");
        played_.urls.answer(url() + QStringLiteral("/2"), QByteArray());
        setNewest(messageCount);
        content_ = std::make_unique<ContentView>(*process_, appearance_);
        request().chooseNumber({}, {QUuid::createUuid(), QStringLiteral("+1"), WebsiteService::SMS24}, false);
        played_.settle();
        refresh();
        if (shown) show();
    }

    ~Phone() { played_.endProcess(); }

    RequestViewModel &request() { return content_->requestVM(); }

    void setNewest(int newest) { played_.urls.answer(url(), messagePage(messageCount, senders_, newest)); }

    /// Processor time that one refresh takes of the main thread, in seconds.
    double refresh() {
        played_.globalQueue.order = Workers::ByHand;
        request().fetchMessages();
        double spent = 0;
        for (bool more = true; more;) {
            more = false;
            while (played_.globalQueue.step())
                more = true;
            const double begin = threadTime();
            while (played_.mainQueue.step())
                more = true;
            spent += threadTime() - begin;
        }
        played_.urls.requests.clear();
        const double begin = threadTime();
        if (window_) QCoreApplication::processEvents();
        return spent + threadTime() - begin;
    }

private:
    QString url() const { return played_.endpoints.firstWebsite + QStringLiteral("/en/numbers/1"); }

    void show() {
        prepareScreens(engine_, process_->platform());
        engine_.setInitialProperties({{QStringLiteral("content"), QVariant::fromValue(content_.get())}});
        engine_.load(QUrl(QString::fromLatin1(mainWindow)));
        window_ = qobject_cast<QQuickWindow *>(engine_.rootObjects().value(0));
        for (const QDeadlineTimer shown(1000); !shown.hasExpired();)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    }

    PlayedPlatform played_;
    const int senders_;
    const QTemporaryDir folder_;
    StandardErrorConsole console_;
    SqliteStore store_{folder_.filePath(QStringLiteral("defaults.sqlite")), console_};
    Appearance appearance_;
    std::unique_ptr<Process> process_;
    std::unique_ptr<ContentView> content_;
    QQmlApplicationEngine engine_;
    QQuickWindow *window_ = nullptr;
};

/// Arguments: how many different senders, and whether the window is there.
void unchangedPage(benchmark::State &state) {
    Phone phone(int(state.range(0)), state.range(1) != 0);
    for (auto _ : state)
        state.SetIterationTime(phone.refresh());
    state.counters["messages"] = double(phone.request().messages().size());
}
BENCHMARK(unchangedPage)
    ->ArgNames({"senders", "window"})
    ->ArgsProduct({{30, 1000}, {0, 1}})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void oneNewMessage(benchmark::State &state) {
    Phone phone(int(state.range(0)), state.range(1) != 0);
    int newest = messageCount;
    for (auto _ : state) {
        phone.setNewest(++newest);
        state.SetIterationTime(phone.refresh());
    }
    state.counters["messages"] = double(phone.request().messages().size());
}
BENCHMARK(oneNewMessage)
    ->ArgNames({"senders", "window"})
    ->ArgsProduct({{30, 1000}, {0, 1}})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv) {
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
