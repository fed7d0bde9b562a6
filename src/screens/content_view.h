#pragma once

#include "config/app_config_view_model.h"
#include "config/internet_view_model.h"
#include "mail/mail_service_view_model.h"
#include "numbers/request_view_model.h"
#include "screens/ad_places.h"
#include "screens/appearance.h"
#include "screens/conversation_view.h"
#include "screens/copy_view_model.h"
#include "screens/full_swipe_pop_helper.h"
#include "screens/mail/t_mail_alert_view_model.h"
#include "screens/main_view.h"
#include "screens/splash_view.h"

namespace orl {

/// Owns the state that all screens share and decides which screen is the root, what lies above it, and what
/// follows from changes that no single screen sees.
class ContentView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(orl::Appearance *appearance READ appearance CONSTANT)
    Q_PROPERTY(orl::AdPlaces *adPlaces READ adPlaces CONSTANT)
    Q_PROPERTY(orl::CopyViewModel *copyVM READ copyVM CONSTANT)
    Q_PROPERTY(bool hasCountry READ hasCountry NOTIFY rootChanged)
    Q_PROPERTY(orl::ChoosePhoneView *chooser READ chooser NOTIFY rootChanged)
    Q_PROPERTY(orl::MainView *main READ main NOTIFY rootChanged)
    Q_PROPERTY(bool splashIsPresented READ splashIsPresented NOTIFY splashIsPresentedChanged)
    Q_PROPERTY(orl::SplashView *splash READ splash CONSTANT)
    Q_PROPERTY(orl::ConversationView *conversation READ conversation CONSTANT)
    Q_PROPERTY(orl::FullSwipePopHelper *swipe READ swipe CONSTANT)
public:
    /// Makes the shared objects, which start their fetches.
    ContentView(Process &process, Appearance &appearance, QObject *parent = nullptr);

    Appearance *appearance() const { return &appearance_; }
    CopyViewModel *copyVM() { return &copyVM_; }
    RequestViewModel &requestVM() { return requestVM_; }
    AppConfigViewModel &appConfigVM() { return appConfigVM_; }
    AdPlaces *adPlaces() { return &adPlaces_; }
    MailServiceViewModel &mailServiceVM() { return mailServiceVM_; }

    /// With a country the tabs are the root, without one the first-run chooser.
    bool hasCountry() const { return main_ != nullptr; }
    ChoosePhoneView *chooser() const { return chooser_.get(); } ///< null unless it was the root once
    MainView *main() const { return main_.get(); }              ///< null until it is the root
    HomeView *home() const { return main_ ? main_->home() : nullptr; }

    /// The search text of the first-run chooser, which its navigation bar writes.
    QString searchTerm() const { return chooser_ ? chooser_->searchTerm() : QString(); }
    Q_INVOKABLE void search(const QString &text);
    Q_INVOKABLE void cancelSearch() { search({}); }

    /// The splash lies over the root from the start until it has faded, and never again.
    bool splashIsPresented() const { return splashIsPresented_; }
    SplashView *splash() { return &splash_; }

    /// Slides over all of this, the tabs included.
    ConversationView *conversation() { return &conversation_; }
    FullSwipePopHelper *swipe() { return &swipe_; }

    /// To be called when the window appears; what follows happens the first time only.
    Q_INVOKABLE void appear();

Q_SIGNALS:
    void rootChanged();
    void splashIsPresentedChanged();

private:
    void followScenePhase(ScenePhase phase);
    void followNumber();
    void settleRoot();
    void fetchCountriesWithRecipe();
    void removeSplash();

    Process &process_;
    Appearance &appearance_;
    RequestViewModel requestVM_;
    InternetViewModel &internetVM_;
    CopyViewModel copyVM_;
    TMailAlertViewModel tMailAlertVM_;
    MailServiceViewModel mailServiceVM_;
    AppConfigViewModel appConfigVM_;
    AdPlaces adPlaces_;
    SplashView splash_;
    ConversationView conversation_;
    FullSwipePopHelper swipe_;
    bool splashIsPresented_ = true;
    bool appeared_ = false;
    std::optional<PhoneNumber> currentNumber_;
    std::unique_ptr<ChoosePhoneView> chooser_;
    std::unique_ptr<MainView> main_;
};

} // namespace orl
