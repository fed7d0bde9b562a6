#pragma once

#include "screens/fake_generator_view.h"
#include "screens/home_view.h"
#include "screens/mail/t_mail_view.h"
#include "screens/settings_view.h"

namespace orl {

/// The root screen once a country is chosen: the tabs.
class MainView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by ContentView")
    Q_PROPERTY(orl::KeyedListModel *tabs READ tabs CONSTANT)
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectedIndexChanged)
    Q_PROPERTY(orl::HomeView *home READ home CONSTANT)
    Q_PROPERTY(orl::TMailView *mail READ mail CONSTANT)
    Q_PROPERTY(orl::FakeGeneratorView *fakeGenerator READ fakeGenerator CONSTANT)
    Q_PROPERTY(orl::SettingsView *settings READ settings CONSTANT)
public:
    MainView(Process &process, const AdPlaces &ads, RequestViewModel &request, InternetViewModel &internet,
             CopyViewModel &copy, MailServiceViewModel &mailService, TMailAlertViewModel &mailAlert,
             AppConfigViewModel &appVM, QObject *parent = nullptr);

    /// In display order. Roles "label" and "image" (a symbol).
    KeyedListModel *tabs() { return &tabs_; }

    /// The row of RequestViewModel's selectedTab; the first one for a tab that has no row.
    int selectedIndex() const { return selectedIndex_; }
    Q_INVOKABLE void select(int index);

    HomeView *home() { return &home_; }
    TMailView *mail() { return &mail_; }
    FakeGeneratorView *fakeGenerator() { return &fakeGenerator_; }
    SettingsView *settings() { return &settings_; }

Q_SIGNALS:
    void selectedIndexChanged();

private:
    void followSelectedTab();
    void listTabs();

    RequestViewModel &request_;
    HomeView home_;
    TMailView mail_;
    FakeGeneratorView fakeGenerator_;
    SettingsView settings_;
    int selectedIndex_ = 0;
    KeyedListModel tabs_;
};

} // namespace orl
