#include "screens/history_view.h"

#include "ads/pop_up_ad.h"
#include "numbers/moments.h"
#include "numbers/request_view_model.h"
#include "numbers/text_helpers.h"
#include "platform/clock.h"
#include "platform/queues.h"

namespace orl {

namespace {

constexpr int secondsBeforeAd = 1;

/// Older versions stored the number's text alone.
PhoneNumber phoneNumberOf(const History &entry) {
    if (entry.phoneNumber) return *entry.phoneNumber;
    return {.id = QUuid::createUuid(), .number = entry.shownNumber(), .website = std::nullopt};
}

} // namespace

HistoryView::HistoryView(Process &process, RequestViewModel &request, QObject *parent)
    : QObject(parent),
      process_(process),
      request_(request),
      rows_({"flag", "number", "country", "time"}),
      choice_(process, request) {
    connect(&request_, &RequestViewModel::historyListChanged, this, &HistoryView::showHistory);
    connect(&choice_, &NumberChoice::chosen, this, &HistoryView::leave);
    timer_ = process_.platform().mainQueue.every(tick, [this] { showHistory(); });
    showHistory();
}

HistoryView::~HistoryView() = default;

QString HistoryView::currentNumberText() {
    return QStringLiteral("That's your current number");
}

void HistoryView::showHistory() {
    const double now = process_.platform().clock.now();
    shown_ = request_.historyList();
    QList<KeyedListModel::Row> rows;
    for (const History &entry : shown_) {
        rows << KeyedListModel::Row{QString::number(entry.time, 'f') + entry.shownNumber(),
                                    {entry.country.icon,
                                     formattedNumber(entry.shownNumber(), entry.country.format),
                                     entry.country.name, relativeTime(entry.time, now)}};
    }
    rows_.setRows(rows);
}

void HistoryView::tap(int row) {
    if (row < 0 || row >= shown_.size()) return;
    selectedHistoryItem_ = shown_[row];
    const auto current = request_.currentNumber();
    if (current && current->number == selectedHistoryItem_->shownNumber()) return setCurrentNumberAlert(true);
    choice_.ask(selectedHistoryItem_->country, phoneNumberOf(*selectedHistoryItem_));
}

void HistoryView::leave() {
    Q_EMIT dismissed();
    process_.shared<PopUpAd>().showInterstitial(secondsBeforeAd);
}

void HistoryView::setCurrentNumberAlert(bool shown) {
    currentNumberAlert_ = shown;
    Q_EMIT currentNumberAlertChanged();
}

} // namespace orl
