#pragma once

#include "config/app_config_view_model.h"
#include "config/internet_view_model.h"
#include "numbers/request_view_model.h"
#include "screens/appearance.h"
#include "screens/copy_view_model.h"
#include "screens/home_view.h"

namespace orl {

/// Owns the state that all screens share and decides which screen is the root.
class ContentView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(orl::Appearance *appearance READ appearance CONSTANT)
    Q_PROPERTY(orl::CopyViewModel *copyVM READ copyVM CONSTANT)
    Q_PROPERTY(bool hasCountry READ hasCountry NOTIFY rootChanged)
    Q_PROPERTY(orl::ChoosePhoneView *chooser READ chooser NOTIFY rootChanged)
    Q_PROPERTY(orl::HomeView *home READ home NOTIFY rootChanged)
public:
    /// Makes the shared objects, which start their fetches.
    ContentView(Process &process, Appearance &appearance, QObject *parent = nullptr);

    Appearance *appearance() const { return &appearance_; }
    CopyViewModel *copyVM() { return &copyVM_; }
    RequestViewModel &requestVM() { return requestVM_; }

    /// With a country the main screens are the root, without one the first-run chooser.
    bool hasCountry() const { return home_ != nullptr; }
    ChoosePhoneView *chooser() const { return chooser_.get(); } ///< null unless it was the root once
    HomeView *home() const { return home_.get(); }              ///< null until it is the root

    /// The search text of the first-run chooser.
    QString searchTerm() const { return chooser_ ? chooser_->searchTerm() : QString(); }

    /// To be called when the window first appears.
    Q_INVOKABLE void appear();

Q_SIGNALS:
    void rootChanged();

private:
    void settleRoot();
    void fetchCountriesWithRecipe();

    Process &process_;
    Appearance &appearance_;
    RequestViewModel requestVM_;
    InternetViewModel &internetVM_;
    CopyViewModel copyVM_;
    AppConfigViewModel appConfigVM_;
    std::unique_ptr<ChoosePhoneView> chooser_;
    std::unique_ptr<HomeView> home_;
};

} // namespace orl
