#include "screens/phone_number_view.h"

#include "ads/pop_up_ad.h"
#include "numbers/request_view_model.h"
#include "platform/haptics.h"
#include "platform/queues.h"

#include <QPointer>

namespace orl {

PhoneNumberView::PhoneNumberView(Process &process, RequestViewModel &request, std::optional<Country> country,
                                 bool firstSetup, QObject *parent)
    : QObject(parent),
      process_(process),
      request_(request),
      country_(std::move(country)),
      firstSetup_(firstSetup),
      choice_(process, request) {
    connect(&choice_, &NumberChoice::chosen, this, [this] {
        Q_EMIT left();
        process_.shared<PopUpAd>().showInterstitial(2);
    });
}

PhoneNumberView::State PhoneNumberView::state() const {
    if (runMainView_) return State::Nothing;
    if (!country_) return State::Failed;
    if (!phones_) return State::Fetching;
    return phones_->isEmpty() ? State::Failed : State::Numbers;
}

void PhoneNumberView::load() {
    if (!country_) return;
    setPhones(std::nullopt);
    const QPointer self(this);
    request_.fetchNumbers(*country_, [self](const QList<PhoneNumber> &phones) {
        if (self) self->setPhones(phones);
    });
    process_.platform().mainQueue.postAfter(patience, [self, load = ++loads_] {
        if (self && self->loads_ == load && !self->phones_) self->setPhones(QList<PhoneNumber>());
    });
}

void PhoneNumberView::setPhones(std::optional<QList<PhoneNumber>> phones) {
    phones_ = std::move(phones);
    rows_.show(country_->format, phones_.value_or(QList<PhoneNumber>()));
    Q_EMIT stateChanged();
}

void PhoneNumberView::tap(int row) {
    if (row < 0 || row >= rows_.count() || runMainView_) return;
    const PhoneNumber phone = rows_.at(row);
    if (!firstSetup_) return choice_.tap(*country_, phone);

    // The first number is free and immediate: no confirmation and no limit.
    process_.platform().haptics.impact(Impact::Soft);
    request_.chooseNumber(*country_, phone, false);
    runMainView_ = true;
    Q_EMIT stateChanged();
}

} // namespace orl
