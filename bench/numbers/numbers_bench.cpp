// What a refresh costs: from the bytes of a message page to published messages, and what the store takes.
#include "config/app_config_view_model.h"
#include "demo/catalogue.h"
#include "demo/first_website.h"
#include "numbers/request_view_model.h"
#include "platform/qt/sqlite_store.h"
#include "platform/qt/system_ports.h"
#include "support/played_platform.h"

#include <QTemporaryDir>
#include <orl/html/parser.h>

#include <benchmark/benchmark.h>
#include <chrono>

namespace {

using namespace orl;
using namespace std::chrono_literals;

/// A message page of the demo host's first website: about 100 KB of lifelike markup.
QByteArray messagePage() {
    const demo::Catalogue catalogue(1);
    const demo::FirstWebsite website(catalogue, 1);
    const QString number = catalogue.countries().front().first.front().digits;
    return website.answer({QStringLiteral("/en/numbers/") + number, PlayedClock::start}).body;
}

void parsePage(benchmark::State &state) {
    const QByteArray page = messagePage();
    for (auto _ : state) {
        const html::Document document =
            html::Parser::parse(std::string_view(page.constData(), std::size_t(page.size())), "");
        benchmark::DoNotOptimize(document);
    }
    state.SetBytesProcessed(state.iterations() * page.size());
    state.counters["page bytes"] = double(page.size());
}
BENCHMARK(parsePage);

/// The whole of a refresh but the network: parse, recipe, records, publishing, grouping by sender.
void pageToMessages(benchmark::State &state) {
    const QByteArray page = messagePage();
    PlayedPlatform phone;
    phone.bundle.resources[QStringLiteral("countries.json")] = "[]";
    phone.reachability.setOnline(false); // no catalogue is wanted here
    Process process(phone.platform());
    RequestViewModel requests(process);
    requests.chooseNumber({}, {QUuid::createUuid(), QStringLiteral("+1"), WebsiteService::SMS24}, false);
    phone.urls.answer(phone.endpoints.firstWebsite + QStringLiteral("/en/numbers/1"), page);
    phone.urls.answer(phone.endpoints.firstWebsite + QStringLiteral("/en/numbers/1/2"), QByteArray());
    for (auto _ : state) {
        requests.fetchMessages(true);
        phone.settle();
        phone.urls.requests.clear();
    }
    if (requests.messages().isEmpty()) state.SkipWithError("the page gave no message");
    state.SetBytesProcessed(state.iterations() * page.size());
    state.counters["messages"] = double(requests.messages().size());
}
BENCHMARK(pageToMessages);

/// Each write is on the disk when it returns.
void storeWrite(benchmark::State &state) {
    const QTemporaryDir folder;
    StandardErrorConsole console;
    SqliteStore store(folder.filePath(QStringLiteral("defaults.sqlite")), console);
    qint64 value = 0;
    for (auto _ : state)
        store.setValue(QStringLiteral("count"), ++value);
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(storeWrite)->UseRealTime();

} // namespace

BENCHMARK_MAIN();
