// What a list of 1,000 saved identities costs the main thread: one more on it, reading it, and opening it
// until its first row is drawn. The store is the real one; times are those of the clock, waits for the disk
// included.
#include "identity/saved_identities.h"
#include "platform/qt/sqlite_store.h"
#include "platform/qt/system_ports.h"
#include "screens/fake_generator_view.h"
#include "screens/screens.h"
#include "support/played_platform.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <chrono>

namespace {

using namespace orl;

constexpr int savedCount = 1000;

double seconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

FakeIdentity person(int number) {
    const QString n = QString::number(number);
    const auto row = [&n](const char *title) {
        return ExtraInfo{QString::fromLatin1(title), QStringLiteral("content of the row ") + n};
    };
    return {uuidText(QUuid::createUuid()),
            QStringLiteral("Imogen Thornton ") + n,
            n + QStringLiteral(" Juniper Road\nPortland, OR 97201"),
            number % 2 == 0 ? FakeGender::Female : FakeGender::Male,
            {row("Geo coordinates"), row("Mother's maiden name"), row("Date of birth"), row("Age")},
            {row("Home phone"), row("Work phone")},
            {row("Email address"),
             row("Username"),
             {QStringLiteral("Browser user agent"),
              QStringLiteral("Mozilla/5.0 (X11; Linux x86_64; rv:128.0) Gecko/20100101 Firefox/128.0")}},
            {row("Height"), row("Weight"), row("Eye color"), row("Blood type"), row("Hair")},
            {row("Company"), row("Favorite sport")}};
}

QByteArray manyRecords() {
    QJsonArray list;
    for (int i = savedCount; i > 0; --i)
        list.append(IdentityHistory{QStringLiteral("Saved %1").arg(i), 1.7e9 + i, person(i)}.encoded());
    return encodeJson(list);
}

/// A phone with the list in a real store, and the parts of the screen that have to do with it.
class Phone {
public:
    Phone() {
        store_.setValue(QLatin1String(SavedIdentities::key), manyRecords());
        played_.bundle.resources[QStringLiteral("countries.json")] = "[]";
        played_.reachability.setOnline(false);
        process = std::make_unique<Process>(played_.platform().with(store_));
        request = std::make_unique<RequestViewModel>(*process);
    }
    ~Phone() { played_.endProcess(); }

    void save(int number) {
        process->shared<SavedIdentities>().save(
            QStringLiteral("New %1").arg(number), person(number),
            [this](const SavedIdentities::List &list) { request->setSavedIdentities(published(list)); });
    }

private:
    PlayedPlatform played_;
    const QTemporaryDir folder_;
    StandardErrorConsole console_;
    SqliteStore store_{folder_.filePath(QStringLiteral("defaults.sqlite")), console_};

public:
    std::unique_ptr<Process> process;
    std::unique_ptr<RequestViewModel> request;
};

/// As everybody saves: the tab has shown the list before.
void saveToManySaved(benchmark::State &state) {
    Phone phone;
    phone.process->shared<SavedIdentities>().load();
    int number = savedCount;
    for (auto _ : state) {
        const double begin = seconds();
        phone.save(++number);
        state.SetIterationTime(seconds() - begin);
    }
}
BENCHMARK(saveToManySaved)->UseManualTime()->Iterations(50)->Unit(benchmark::kMillisecond);

/// The first appearance of the tab.
void readManySaved(benchmark::State &state) {
    Phone phone;
    for (auto _ : state) {
        SavedIdentities fresh(*phone.process);
        const double begin = seconds();
        phone.request->setSavedIdentities(published(*fresh.load()));
        state.SetIterationTime(seconds() - begin);
    }
}
BENCHMARK(readManySaved)->UseManualTime()->Unit(benchmark::kMillisecond);

const char *const listInAWindow = R"(
    import QtQuick
    import Orl.Screens
    Window {
        id: root
        property var rows: null
        property bool drawn: false
        width: 390
        height: 844
        visible: true
        ListView {
            anchors.fill: parent
            model: root.rows
            delegate: SavedIdentityMenuItem { width: ListView.view.width }
        }
        onFrameSwapped: drawn = rows !== null
    })";

/// From the tap to the frame that shows the first rows.
void openManySaved(benchmark::State &state) {
    Phone phone;
    phone.request->setSavedIdentities(published(*phone.process->shared<SavedIdentities>().load()));
    QQmlApplicationEngine engine;
    prepareScreens(engine, phone.process->platform());
    engine.loadData(listInAWindow);
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    while (!window->isExposed())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    for (auto _ : state) {
        window->setProperty("rows", QVariant());
        window->setProperty("drawn", false);
        QCoreApplication::processEvents();
        const double begin = seconds();
        SavedIdentitiesView rows(*phone.process, *phone.request);
        window->setProperty("rows", QVariant::fromValue(&rows));
        while (!window->property("drawn").toBool())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        state.SetIterationTime(seconds() - begin);
        window->setProperty("rows", QVariant());
    }
}
BENCHMARK(openManySaved)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv) {
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
