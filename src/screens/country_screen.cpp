#include "screens/country_screen.h"

#include "ads/pop_up_ad.h"
#include "config/internet_view_model.h"
#include "numbers/request_view_model.h"
#include "platform/queues.h"
#include "screens/country_sections.h"

#include <QPointer>

#include <utility>

namespace orl {

CountryScreen::CountryScreen(Process &process, RequestViewModel &request, InternetViewModel &internet,
                             bool firstSetup, QObject *parent)
    : QObject(parent),
      process_(process),
      request_(request),
      internet_(internet),
      firstSetup_(firstSetup),
      rows_({"name", "prefix", "flag", "continent"}) {
    connect(&request_, &RequestViewModel::countriesChanged, this, &CountryScreen::showCountriesSoon);
    connect(&internet_, &InternetViewModel::isConnectedChanged, this, &CountryScreen::stateChanged);
    showCountries();
}

void CountryScreen::setSearchTerm(const QString &term) {
    if (term == searchTerm_) return;
    searchTerm_ = term;
    Q_EMIT searchTermChanged();
    showCountries();
}

CountryScreen::State CountryScreen::state() const {
    if (!request_.countries().isEmpty()) return State::Sections;
    return internet_.isConnected() ? State::Fetching : State::NotConnected;
}

/// A page brings its countries one by one. They are shown together, as each showing looks at all of them.
void CountryScreen::showCountriesSoon() {
    if (std::exchange(showingIsDue_, true)) return;
    process_.platform().mainQueue.post([self = QPointer(this)] {
        if (self) self->showCountries();
    });
}

void CountryScreen::showCountries() {
    showingIsDue_ = false;
    const QList<Country> all = request_.countries();
    shown_.clear();
    QList<KeyedListModel::Row> rows;
    for (const Continents continent : allContinents()) {
        const QString title = continentTitle(continent);
        for (const Country &country : filteredCountries(all, searchTerm_, title.toLower())) {
            shown_ << country;
            rows << KeyedListModel::Row{country.name, {country.name, country.prefix, country.icon, title}};
        }
    }
    noResults_ = findsNothing(all, searchTerm_);
    rows_.setRows(rows);
    Q_EMIT contentChanged();
    Q_EMIT stateChanged();
}

void CountryScreen::tap(int row) {
    if (row < 0 || row >= shown_.size() || isPresented_) return;
    const auto last = std::move(numbers_); // goes after the screen that still shows it
    numbers_.reset(new PhoneNumberView(process_, request_, shown_[row], firstSetup_));
    connect(numbers_.get(), &PhoneNumberView::left, this, [this] {
        setIsPresented(false);
        Q_EMIT numberChosen();
    });
    Q_EMIT numbersChanged();
    setIsPresented(true);
    numbers_->load();
    if (!firstSetup_) process_.shared<PopUpAd>().showInterstitial(1);
}

void CountryScreen::setIsPresented(bool presented) {
    isPresented_ = presented;
    Q_EMIT isPresentedChanged();
}

void CountryScreen::setTryAgain(const QUuid &signal) {
    if (signal == tryAgain_) return;
    tryAgain_ = signal;
    internet_.checkConnection();
    if (internet_.isConnected()) request_.fetchCountries();
}

} // namespace orl
