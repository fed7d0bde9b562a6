// How the program feels under the finger, with the real screens, store, network code and demo host:
//
//   - from the tap on a number to its first message on screen, less what the network took; and
//   - the frames of a list of 1,000 messages that is scrolled by a steady finger, 60 of them a second.
//
// Each in time as it passes and in processor time of the main thread, which other programs do not lengthen.
//
//     feel_bench [ROUNDS]
#include "demo/demo_host.h"
#include "numbers/message_page.h"
#include "platform/qt/linux_platform.h"
#include "screens/content_view.h"
#include "screens/screens.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <mutex>
#include <utility>
#include <vector>

namespace {

using namespace orl;
using Moment = std::chrono::steady_clock::time_point;

constexpr double tapAim = 100;            // ms
constexpr double frameTime = 1000.0 / 60; // ms
constexpr int messageCount = 1000;
constexpr int frames = 600;
constexpr double step = 25; ///< pixels a frame: the whole of a phone's screen in half a second

Moment now() {
    return std::chrono::steady_clock::now();
}
double since(Moment begin) {
    return std::chrono::duration<double, std::milli>(now() - begin).count();
}

/// Milliseconds of processor time of this thread.
double worked() {
    timespec spent{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &spent);
    return double(spent.tv_sec) * 1e3 + double(spent.tv_nsec) / 1e6;
}

/// What something took; made when it begins.
struct Taken {
    Moment begin = now();
    double workedBefore = worked();
    double wall = 0, work = 0; ///< ms

    Taken &end() {
        wall = since(begin);
        work = worked() - workedBefore;
        return *this;
    }
};

[[noreturn]] void giveUp(const char *why) {
    std::fprintf(stderr, "feel_bench: %s\n", why);
    std::exit(1);
}

/// The network, which adds up what it takes to read pages of messages, or a long page in its place.
class Network : public UrlReader {
public:
    explicit Network(UrlReader &real) : real_(real) {}

    Result<UrlResponse> read(const UrlRequest &request) override {
        const QString path = request.url.path();
        if (!path.contains(QStringLiteral("/en/numbers/"))) return real_.read(request);
        if (const QByteArray page = longPage(); !page.isEmpty())
            return UrlResponse{200, path.endsWith(QStringLiteral("/2")) ? QByteArray() : page};
        const Moment begin = now();
        Result<UrlResponse> response = real_.read(request);
        const std::lock_guard lock(mutex_);
        spent_ += since(begin);
        return response;
    }

    /// Milliseconds since the last call.
    double takeSpent() {
        const std::lock_guard lock(mutex_);
        return std::exchange(spent_, 0);
    }

    void setLongPage(const QByteArray &page) {
        const std::lock_guard lock(mutex_);
        longPage_ = page;
    }

private:
    QByteArray longPage() {
        const std::lock_guard lock(mutex_);
        return longPage_;
    }

    UrlReader &real_;
    std::mutex mutex_;
    double spent_ = 0;
    QByteArray longPage_;
};

using Fits = std::function<bool(const QQuickItem &)>;

/// The first item that is shown and fits, in the order of the tree.
QQuickItem *shownItem(QQuickItem &below, const Fits &fits) {
    if (!below.isVisible()) return nullptr;
    if (fits(below)) return &below;
    for (QQuickItem *child : below.childItems()) {
        if (QQuickItem *found = shownItem(*child, fits)) return found;
    }
    return nullptr;
}

/// A run of the program on a fresh phone.
class Session {
public:
    explicit Session(const Endpoints &endpoints)
        : linux_(
              {folder_.path(), endpoints, {{QStringLiteral("CFBundleDisplayName"), QStringLiteral("Orl")}}}),
          base_(linux_.platform()),
          network_(base_.urlReader),
          process_({base_.clock, base_.mainQueue, base_.globalQueue, network_, base_.store,
                    base_.reachability, base_.bundle, base_.console, base_.fatal, base_.endpoints}),
          content_(process_, appearance_) {
        prepareScreens(engine_, process_.platform());
        engine_.setInitialProperties({{QStringLiteral("content"), QVariant::fromValue(&content_)}});
        engine_.load(QUrl(QString::fromLatin1(mainWindow)));
        window_ = qobject_cast<QQuickWindow *>(engine_.rootObjects().value(0));
        if (!window_) giveUp("no window");
        await([this] { return !content_.splashIsPresented(); }, "the splash stays");
    }

    ~Session() { linux_.stop(); }

    /// From a tap on a country's first number on the first run.
    Taken firstTap() {
        await([this] { return !content_.requestVM().countries().isEmpty(); }, "no countries");
        content_.chooser()->tap(0);
        return untilFirstMessage(tap("number", "", "no numbers"));
    }

    /// From a tap that confirms another number of the same country.
    Taken change() {
        content_.requestVM().fetchNumbers(*content_.requestVM().currentCountry(), [](const auto &) {});
        await([this] { return content_.home()->similar()->count() > 0; }, "no other numbers");
        content_.home()->tapSimilar(++changes_);
        return untilFirstMessage(tap("text", "Choose this Number", "no confirmation"));
    }

    /// What each frame of the scrolled list took.
    std::vector<Taken> scroll() {
        network_.setLongPage(messagePage(messageCount, 30, messageCount));
        content_.requestVM().fetchMessages(true);
        await([this] { return content_.home()->messages()->count() == messageCount; }, "no long list");
        QQuickItem *list = shownItem(*window_->contentItem(), [](const QQuickItem &item) {
            return item.property("count").toInt() == messageCount && item.property("contentY").isValid();
        });
        if (!list) giveUp("no list");
        QTest::qWait(1000);
        std::vector<Taken> took;
        Moment due = now();
        for (int frame = 0; frame < frames; ++frame) {
            Taken taken;
            taken.begin = due;
            list->setProperty("contentY", list->property("contentY").toDouble() + step);
            window_->update();
            awaitFrame();
            took.push_back(taken.end());
            due = std::max(now(), due + std::chrono::microseconds(int(frameTime * 1000)));
            while (now() < due) // what is made between frames
                QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        }
        return took;
    }

private:
    template<class Condition>
    void await(const Condition &condition, const char *otherwise) {
        if (!QTest::qWaitFor(condition, 20000)) giveUp(otherwise);
    }

    void awaitFrame() {
        bool swapped = false;
        const auto connection = QObject::connect(
            window_, &QQuickWindow::frameSwapped, window_, [&] { swapped = true; }, Qt::DirectConnection);
        while (!swapped)
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        QObject::disconnect(connection);
    }

    /// Clicks what is shown with this value of a property, or with any where the value is empty; what
    /// begins there.
    Taken tap(const char *property, const char *value, const char *otherwise) {
        QQuickItem *item = nullptr;
        await(
            [&] {
                item = shownItem(*window_->contentItem(), [&](const QQuickItem &one) {
                    const QString has = one.property(property).toString();
                    return one.inherits("QQuickAbstractButton") &&
                           (*value ? has == QLatin1String(value) : !has.isEmpty());
                });
                return item != nullptr;
            },
            otherwise);
        QTest::qWait(500); // it comes to rest
        network_.takeSpent();
        const QPointF middle = item->mapToScene({item->width() / 2, item->height() / 2});
        const Taken tapped;
        QTest::mouseClick(window_, Qt::LeftButton, {}, middle.toPoint());
        return tapped;
    }

    bool showsFirstMessage() {
        if (content_.home()->messages()->count() == 0) return false;
        const QString content = content_.home()->messages()->value(0, "content").toString();
        return shownItem(*window_->contentItem(), [&](const QQuickItem &item) {
            return item.property("exports").isValid() && item.property("content").toString() == content;
        });
    }

    Taken untilFirstMessage(Taken tapped) {
        const Moment latest = now() + std::chrono::seconds(20);
        do {
            if (now() > latest) giveUp("no message");
            awaitFrame();
        } while (!showsFirstMessage());
        tapped.end();
        tapped.wall -= network_.takeSpent();
        return tapped;
    }

    QTemporaryDir folder_;
    LinuxPlatform linux_;
    const Platform base_;
    Network network_;
    Process process_;
    Appearance appearance_;
    ContentView content_;
    QQmlApplicationEngine engine_;
    QQuickWindow *window_ = nullptr;
    int changes_ = -1;
};

double share(const std::vector<Taken> &all, double Taken::*field, double part) {
    std::vector<double> values;
    for (const Taken &taken : all)
        values.push_back(taken.*field);
    std::ranges::sort(values);
    return values[std::min(values.size() - 1, std::size_t(double(values.size()) * part))];
}

void print(const char *what, const std::vector<Taken> &all, double aim) {
    std::printf("%s (aim %.1f ms)\n", what, aim);
    for (const auto &[name, field] :
         {std::pair{"passed", &Taken::wall}, std::pair{"main thread", &Taken::work}})
        std::printf("  %-12s median %6.1f, 95 %% %6.1f, most %6.1f\n", name, share(all, field, 0.5),
                    share(all, field, 0.95), share(all, field, 1));
}

} // namespace

int main(int argc, char **argv) {
    const QGuiApplication application(argc, argv);
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 5;
    DemoHost host;
    if (!host.start()) giveUp("no port");
    std::vector<Taken> first, changed, scrolled;
    for (int round = 0; round < rounds; ++round) {
        Session session(host.endpoints());
        first.push_back(session.firstTap());
        for (int change = 0; change < 3; ++change)
            changed.push_back(session.change());
        const std::vector<Taken> took = session.scroll();
        scrolled.insert(scrolled.end(), took.begin(), took.end());
    }
    print("tap to first message, first run", first, tapAim);
    print("tap to first message, another number", changed, tapAim);
    print("a frame of 1,000 scrolled messages", scrolled, frameTime);
    const auto late =
        std::ranges::count_if(scrolled, [](const Taken &frame) { return frame.work > frameTime; });
    std::printf("frames of more work than there is time: %td of %zu\n", late, scrolled.size());
    return 0;
}
