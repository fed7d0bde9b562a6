// What an inbox of 1,000 mails costs: a poll and a scroll on the main thread, in its own processor time, and
// how long it takes to see a mail that was opened before.
#include "platform/qt/sqlite_store.h"
#include "platform/qt/system_ports.h"
#include "screens/content_view.h"
#include "screens/screens.h"
#include "support/played_platform.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QJsonArray>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <ctime>

namespace {

using namespace orl;

constexpr int mailCount = 1000;

double threadTime() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) / 1e9;
}

/// The phone with a real store, the mail tab and, where asked for, the window that shows it.
class Phone {
public:
    explicit Phone(bool shown) {
        played_.bundle.resources[QStringLiteral("countries.json")] = "[]";
        process_ = std::make_unique<Process>(played_.platform().with(store_));
        for (const char *path : {"/KeLo/iOS/orl_config.json", "/KeLo/OnlineSMS/scraping_config.json",
                                 "/KeLo/OnlineSMS/icons.json", "/KeLo/Android/tpn_site_countries.json"})
            played_.urls.answer(played_.endpoints.configurationHost + QString::fromLatin1(path), "[]");
        played_.urls.answer(played_.endpoints.firstWebsite + QStringLiteral("/en"), "");
        played_.urls.answer(played_.endpoints.firstWebsite + QStringLiteral("/en/numbers/1"), "");
        setNewest(mailCount);
        content_ = std::make_unique<ContentView>(*process_, appearance_);
        content_->requestVM().chooseNumber(
            {}, {QUuid::createUuid(), QStringLiteral("+1"), WebsiteService::SMS24}, false);
        played_.settle();
        if (shown) show();
        content_->main()->select(1);
        mail().builder()->setLogin(QStringLiteral("me"));
        played_.urls.answer(inbox(), list_);
        mail().builder()->create();
        played_.settle();
        if (window_) rest();
    }
    ~Phone() { played_.endProcess(); }

    TMailView &mail() { return *content_->main()->mail(); }

    void setNewest(int newest) {
        QJsonArray data;
        for (int i = 0; i < mailCount; ++i) {
            const QString id = QStringLiteral("m%1").arg(newest - i);
            data.append(QJsonObject{
                {QStringLiteral("id"), id},
                {QStringLiteral("subject"), QStringLiteral("%1 is your code").arg(400000 + newest - i)},
                {QStringLiteral("created_at"), QStringLiteral("2026-01-01T09:05:00+0000")},
                {QStringLiteral("sender"),
                 QJsonObject{{QStringLiteral("id"), QStringLiteral("s")},
                             {QStringLiteral("display_name"), QStringLiteral("Shop")},
                             {QStringLiteral("email"), QStringLiteral("s@x.example")}}},
                {QStringLiteral("has_html"), true},
                {QStringLiteral("has_text"), false}});
            played_.urls.answer(played_.endpoints.mailHost + QStringLiteral("/api/emails/") + id,
                                "<div><h2>Hello</h2><p>" + wordsOf(newest - i).toUtf8() + "</p></div>");
        }
        list_ = encodeJson(QJsonObject{{QStringLiteral("data"), data}});
        if (content_) played_.urls.answer(inbox(), list_);
    }

    /// Processor time that one poll takes of the main thread, in seconds.
    double poll() {
        played_.globalQueue.order = Workers::ByHand;
        double spent = timed([&] { content_->mailServiceVM().fetchMails(); });
        for (bool more = true; more;) {
            more = false;
            while (played_.globalQueue.step())
                more = true;
            spent += timed([&] {
                while (played_.mainQueue.step())
                    more = true;
            });
        }
        played_.urls.requests.clear();
        if (window_) spent += timed([] { QCoreApplication::processEvents(); });
        return spent;
    }

    /// Processor time for one step of a scroll through the list by half a window.
    double scroll(int step) {
        auto *list = find(QStringLiteral("Mails"));
        const double height = list->property("contentHeight").toDouble() - list->height();
        const double to = std::fmod(step * list->height() / 2, height);
        return timed([&] {
            list->setProperty("contentY", list->property("originY").toDouble() + to);
            QCoreApplication::processEvents();
            window_->grabWindow();
        });
    }

    /// From the tap to the page of the mail in that row, in seconds of wall time.
    double open(int row) {
        QElapsedTimer time;
        time.start();
        mail().tapMail(row);
        const auto loaded = [this, words = wordsOf(mailCount - row)] {
            const auto *view = window_->findChild<QQuickItem *>(QStringLiteral("mailView"));
            const QQuickItem *page = view ? view->parentItem() : nullptr;
            return page && page->property("ready").toBool() &&
                   page->property("page").toString().contains(words);
        };
        QCoreApplication::processEvents();
        while (!loaded())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        const double seconds = double(time.nsecsElapsed()) / 1e9;
        mail().closeMail();
        rest();
        return seconds;
    }

private:
    static QString wordsOf(int number) { return QStringLiteral("Your code is %1.").arg(400000 + number); }

    QString inbox() {
        return played_.endpoints.mailHost + QStringLiteral("/api/emails?inbox=") +
               (mail().builder() ? mail().builder()->address() : mail().email().value_or(QString()));
    }

    template<class Work>
    static double timed(Work work) {
        const double begin = threadTime();
        work();
        return threadTime() - begin;
    }

    void show() {
        prepareScreens(engine_, process_->platform());
        engine_.setInitialProperties({{QStringLiteral("content"), QVariant::fromValue(content_.get())}});
        engine_.load(QUrl(QString::fromLatin1(mainWindow)));
        window_ = qobject_cast<QQuickWindow *>(engine_.rootObjects().value(0));
        played_.advance(SplashView::wait + SplashView::fade);
        rest();
    }

    void rest() {
        for (const QDeadlineTimer shown(1000); !shown.hasExpired();)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    }

    QQuickItem *find(const QString &name) {
        for (QQuickItem *item : window_->findChildren<QQuickItem *>()) {
            const QObject *attached = item->inherits("QQuickListView") ? item : nullptr;
            if (attached && item->isVisible() && item->property("count").toInt() == mailCount) return item;
        }
        qFatal("no list %s", qPrintable(name));
    }

    PlayedPlatform played_;
    const QTemporaryDir folder_;
    StandardErrorConsole console_;
    SqliteStore store_{folder_.filePath(QStringLiteral("defaults.sqlite")), console_};
    QByteArray list_;
    Appearance appearance_;
    std::unique_ptr<Process> process_;
    std::unique_ptr<ContentView> content_;
    QQmlApplicationEngine engine_;
    QQuickWindow *window_ = nullptr;
};

void unchangedInbox(benchmark::State &state) {
    Phone phone(state.range(0) != 0);
    for (auto _ : state)
        state.SetIterationTime(phone.poll());
}
BENCHMARK(unchangedInbox)->ArgName("window")->Arg(0)->Arg(1)->UseManualTime()->Unit(benchmark::kMillisecond);

void oneNewMail(benchmark::State &state) {
    Phone phone(state.range(0) != 0);
    int newest = mailCount;
    for (auto _ : state) {
        phone.setNewest(++newest);
        state.SetIterationTime(phone.poll());
    }
}
BENCHMARK(oneNewMail)->ArgName("window")->Arg(0)->Arg(1)->UseManualTime()->Unit(benchmark::kMillisecond);

void scrollByHalfAWindow(benchmark::State &state) {
    Phone phone(true);
    int step = 0;
    for (auto _ : state)
        state.SetIterationTime(phone.scroll(++step));
}
BENCHMARK(scrollByHalfAWindow)->UseManualTime()->Unit(benchmark::kMillisecond);

void openTheFirstTime(benchmark::State &state) {
    Phone phone(true);
    for (auto _ : state)
        state.SetIterationTime(phone.open(0));
}
BENCHMARK(openTheFirstTime)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

void openAgain(benchmark::State &state) {
    Phone phone(true);
    phone.open(0);
    for (auto _ : state) {
        phone.open(1); // takes the view from the first one
        state.SetIterationTime(phone.open(0));
    }
}
BENCHMARK(openAgain)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv) {
    QGuiApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
