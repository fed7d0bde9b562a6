#include "app/start_choice.h"

#include "numbers/request_view_model.h"

#include <QPointer>

#include <algorithm>

namespace orl {

namespace {

/// Numbers are the same when their digits are, however they are written.
bool sameNumber(QString a, QString b) {
    const auto notDigit = [](QChar c) { return !c.isDigit(); };
    return a.removeIf(notDigit) == b.removeIf(notDigit);
}

} // namespace

StartChoice::StartChoice(RequestViewModel &request, ChosenNumber wanted, QObject *parent)
    : QObject(parent), request_(request), wanted_(std::move(wanted)) {
    const auto current = request_.currentNumber();
    done_ = current && sameNumber(current->number, wanted_.number) &&
            request_.currentCountry().value_or(Country()).name == wanted_.country;
    connect(&request_, &RequestViewModel::countriesChanged, this, &StartChoice::lookForCountry);
    // The second website's numbers are only asked for once its catalogue is there.
    connect(&request_, &RequestViewModel::tpnCountriesListChanged, this, [this] {
        asked_ = false;
        lookForCountry();
    });
    lookForCountry();
}

void StartChoice::lookForCountry() {
    if (done_ || asked_) return;
    const QList<Country> countries = request_.countries();
    const auto found = std::find_if(countries.begin(), countries.end(), [this](const Country &country) {
        return country.name.compare(wanted_.country, Qt::CaseInsensitive) == 0;
    });
    if (found == countries.end()) return;
    asked_ = true;
    request_.fetchNumbers(*found,
                          [self = QPointer(this), country = *found](const QList<PhoneNumber> &numbers) {
                              if (self) self->lookForNumber(country, numbers);
                          });
}

void StartChoice::lookForNumber(const Country &country, const QList<PhoneNumber> &numbers) {
    const auto found = std::find_if(numbers.begin(), numbers.end(), [this](const PhoneNumber &phone) {
        return sameNumber(phone.number, wanted_.number);
    });
    if (done_ || found == numbers.end()) return;
    done_ = true;
    request_.chooseNumber(country, *found, false);
}

} // namespace orl
