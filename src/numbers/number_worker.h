#pragma once

#include "numbers/records.h"
#include "numbers/request_view_model.h"
#include "numbers/scraping_utils.h"
#include "numbers/tpn_service.h"
#include "platform/platform.h"
#include "platform/queues.h"
#include "platform/snapshot.h"

#include <QPointer>

#include <atomic>
#include <functional>
#include <mutex>

namespace orl {

/// The list of countries while parses on several workers fill it. Each replacement begins a new filling; what
/// an older filling still has to append is dropped, or else two parses that overlap would show every country
/// twice.
class CountryList {
public:
    using Filling = int;

    QList<Country> get() const { return *list_.get(); }

    Filling replace(const QList<Country> &list) {
        const std::lock_guard lock(mutex_);
        list_.set(list);
        return ++filling_;
    }

    /// False when the list has been replaced since.
    bool append(Filling filling, const Country &country) {
        const std::lock_guard lock(mutex_);
        if (filling != filling_) return false;
        list_.set(get() + QList{country});
        return true;
    }

private:
    std::mutex mutex_;
    Snapshot<QList<Country>> list_;
    Filling filling_ = 0;
};

/// The fields of RequestViewModel that workers read or write. It outlives the object as long as a worker
/// needs it.
struct NumberState {
    CountryList countries;
    Snapshot<QList<Country>> localCountries;
    Snapshot<QList<Country>> tpnCountriesList;
    Snapshot<std::optional<Country>> currentCountry;
    Snapshot<std::optional<PhoneNumber>> currentNumber;
    Snapshot<QStringList> icons;
    std::atomic<int> gradientColorIndex{0};
};

/// What a work item of RequestViewModel takes along: everything but the object itself, which may be gone by
/// the time the item ends. Copied into each item.
struct RequestViewModel::Worker {
    Platform platform;
    ScrapingUtils scraping;
    TPNService tpn;
    std::shared_ptr<NumberState> state;
    QPointer<RequestViewModel> self; ///< looked at on the main thread only

    void onWorker(std::function<void(const Worker &)> work) const {
        platform.globalQueue.post([worker = *this, work = std::move(work)] { work(worker); });
    }

    /// Runs the task on the main queue if the object still exists then.
    void onMain(std::function<void(RequestViewModel &)> task) const {
        platform.mainQueue.post([object = self, task = std::move(task)] {
            if (object) task(*object);
        });
    }

    void log(const char *what, const Error &error) const;
    std::optional<QUrl> firstWebsiteUrl(const QString &path) const;
    std::optional<QUrl> configurationUrl(const QString &path) const;

    /// The first entry of the second website's catalogue with this name.
    std::optional<Country> tpnCountry(const QString &name) const;

    // Catalogues; on a worker.
    void parseCountries(const QUrl &url) const;
    void fillCountries(const html::Document &page) const;
    void appendMatches(CountryList::Filling filling, const QString &pageName,
                       const std::optional<QString> &href) const;
    CountryList::Filling replaceCountries(const QList<Country> &list) const;
    void readNumbers(const Country &country, const QUrl &url, const NumbersCompletion &completion) const;

    // Messages; on a worker.
    void fetchMessages(bool force) const;
    Result<QList<Message>> parseMessagesPage(const QUrl &url) const;
    SMSSender senderLook(SMSSender sender) const;
};

} // namespace orl
