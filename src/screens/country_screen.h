#pragma once

#include "screens/phone_number_view.h"

#include <QUuid>

namespace orl {

class InternetViewModel;

/// What both country screens have in common: the catalogue in sections, the search, and the numbers of the
/// country that was tapped.
class CountryScreen : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by ContentView and HomeView")
    Q_PROPERTY(QString searchTerm READ searchTerm WRITE setSearchTerm NOTIFY searchTermChanged)
    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    Q_PROPERTY(bool noResults READ noResults NOTIFY contentChanged)
    Q_PROPERTY(orl::KeyedListModel *countries READ countries CONSTANT)
    Q_PROPERTY(bool isPresented READ isPresented WRITE setIsPresented NOTIFY isPresentedChanged)
    Q_PROPERTY(orl::PhoneNumberView *numbers READ numbers NOTIFY numbersChanged)
public:
    enum class State { NotConnected, Fetching, Sections };
    Q_ENUM(State)

    CountryScreen(Process &process, RequestViewModel &request, InternetViewModel &internet, bool firstSetup,
                  QObject *parent = nullptr);

    const QString &searchTerm() const { return searchTerm_; }
    void setSearchTerm(const QString &term);

    State state() const;
    bool noResults() const { return noResults_; }
    KeyedListModel *countries() { return &rows_; }

    /// Whether the numbers of a country lie over the list.
    bool isPresented() const { return isPresented_; }
    void setIsPresented(bool presented);

    /// The numbers of the country tapped last; they stay while they slide away.
    PhoneNumberView *numbers() const { return numbers_.get(); }

    Q_INVOKABLE void tap(int row);
    Q_INVOKABLE void retry() { setTryAgain(QUuid::createUuid()); }

Q_SIGNALS:
    void searchTermChanged();
    void stateChanged();
    void contentChanged();
    void numbersChanged(); ///< told ahead of isPresentedChanged
    void isPresentedChanged();
    void numberChosen(); ///< not after a first choice, which changes the root screen instead

private:
    void setTryAgain(const QUuid &signal);
    void showCountriesSoon();
    void showCountries();

    Process &process_;
    RequestViewModel &request_;
    InternetViewModel &internet_;
    const bool firstSetup_;
    QString searchTerm_;
    QUuid tryAgain_;
    bool isPresented_ = false;
    bool showingIsDue_ = false;
    bool noResults_ = false;
    QList<Country> shown_;
    KeyedListModel rows_;
    std::unique_ptr<PhoneNumberView, QScopedPointerDeleteLater> numbers_;
};

/// The first-run chooser. What its screen says is CountryScreen's; the first number is chosen at once.
class ChoosePhoneView : public orl::CountryScreen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by ContentView")
public:
    ChoosePhoneView(Process &process, RequestViewModel &request, InternetViewModel &internet,
                    QObject *parent = nullptr)
        : CountryScreen(process, request, internet, true, parent) {}
};

/// The country list that changes the number later.
class CountriesView : public orl::CountryScreen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by HomeView")
public:
    CountriesView(Process &process, RequestViewModel &request, InternetViewModel &internet,
                  QObject *parent = nullptr)
        : CountryScreen(process, request, internet, false, parent) {}
};

} // namespace orl
