#include "screens/content_view.h"

#include "ads/ad_calls.h"
#include "ads/open_ad.h"

namespace orl {

ContentView::ContentView(Process &process, Appearance &appearance, QObject *parent)
    : QObject(parent),
      process_(process),
      appearance_(appearance),
      requestVM_(process),
      internetVM_(process.shared<InternetViewModel>()),
      copyVM_(process),
      mailServiceVM_(process),
      appConfigVM_(process, adCalls(process)),
      adPlaces_(process, appConfigVM_),
      splash_(process, appConfigVM_),
      conversation_(process, requestVM_, copyVM_),
      swipe_(requestVM_),
      currentNumber_(requestVM_.currentNumber()) {
    connect(&requestVM_, &RequestViewModel::currentCountryChanged, this, &ContentView::settleRoot);
    connect(&requestVM_, &RequestViewModel::currentNumberChanged, this, &ContentView::followNumber);
    connect(&appConfigVM_, &AppConfigViewModel::scrapingConfigChanged, this,
            &ContentView::fetchCountriesWithRecipe);
    connect(&splash_, &SplashView::gone, this, &ContentView::removeSplash);
    connect(&process.platform().scene, &Scene::phaseChanged, this, &ContentView::followScenePhase);
    settleRoot();
}

void ContentView::appear() {
    if (appeared_) return;
    appeared_ = true;
    internetVM_.checkConnection();
    requestVM_.loadHistory();
    splash_.appear();
}

void ContentView::search(const QString &text) {
    if (chooser_) chooser_->setSearchTerm(text);
}

void ContentView::followScenePhase(ScenePhase phase) {
    if (phase == ScenePhase::Active) process_.shared<OpenAd>().showAdIfAvailable();
}

/// The choice is read from the store again and again; only another number counts.
void ContentView::followNumber() {
    const auto number = requestVM_.currentNumber();
    if (number == currentNumber_) return;
    currentNumber_ = number;
    appConfigVM_.setBannerTapped(false);
}

/// A root that was left stays alive: its screen may still be fading while the other one is shown.
void ContentView::settleRoot() {
    if (requestVM_.currentCountry()) {
        if (main_) return;
        main_ = std::make_unique<MainView>(process_, adPlaces_, requestVM_, internetVM_, copyVM_,
                                           mailServiceVM_, tMailAlertVM_, appConfigVM_);
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

void ContentView::removeSplash() {
    if (!splashIsPresented_) return;
    splashIsPresented_ = false;
    Q_EMIT splashIsPresentedChanged();
}

} // namespace orl
