#include "screens/content_view.h"

namespace orl {

ContentView::ContentView(Process &process, Appearance &appearance, QObject *parent)
    : QObject(parent),
      process_(process),
      appearance_(appearance),
      requestVM_(process),
      internetVM_(process.shared<InternetViewModel>()),
      copyVM_(process),
      appConfigVM_(process) {
    connect(&requestVM_, &RequestViewModel::currentCountryChanged, this, &ContentView::settleRoot);
    connect(&requestVM_, &RequestViewModel::currentNumberChanged, this,
            [this] { appConfigVM_.setBannerTapped(false); });
    connect(&appConfigVM_, &AppConfigViewModel::scrapingConfigChanged, this,
            &ContentView::fetchCountriesWithRecipe);
    settleRoot();
}

void ContentView::appear() {
    internetVM_.checkConnection();
    requestVM_.loadHistory();
}

/// A root that was left stays alive: its screen may still be fading while the other one is shown.
void ContentView::settleRoot() {
    if (requestVM_.currentCountry()) {
        if (home_) return;
        home_ = std::make_unique<HomeView>(process_, requestVM_, internetVM_, copyVM_);
    } else if (!chooser_) {
        chooser_ = std::make_unique<ChoosePhoneView>(process_, requestVM_, internetVM_);
    } else {
        return;
    }
    Q_EMIT rootChanged();
}

/// The country list is read by the recipe; its arrival is what starts a list that is still missing.
void ContentView::fetchCountriesWithRecipe() {
    if (appConfigVM_.scrapingConfig() && requestVM_.countries().isEmpty()) requestVM_.fetchCountries();
}

} // namespace orl
