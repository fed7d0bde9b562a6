#include "ads/ad_gate.h"

#include <memory>

namespace orl {

bool adsMayLoad(const AppConfigViewModel &appVM) {
    return appVM.canLoadAd() && appVM.configuration();
}

void onceAdsMayLoad(AppConfigViewModel &appVM, QObject *context, std::function<void()> task) {
    if (adsMayLoad(appVM)) return task();
    const auto look = [&appVM, task = std::make_shared<std::function<void()>>(std::move(task))] {
        if (!adsMayLoad(appVM)) return;
        if (const auto due = std::exchange(*task, nullptr)) due();
    };
    QObject::connect(&appVM, &AppConfigViewModel::canLoadAdChanged, context, look);
    QObject::connect(&appVM, &AppConfigViewModel::configurationChanged, context, look);
}

} // namespace orl
