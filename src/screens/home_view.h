#pragma once

#include "screens/country_screen.h"
#include "screens/message_cards.h"
#include "screens/sender_cards.h"

namespace orl {

class AdPlaces;
class CopyViewModel;

/// The first tab: the card of the current number above its messages.
class HomeView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by ContentView")
    Q_PROPERTY(QString countryName READ countryName NOTIFY numberChanged)
    Q_PROPERTY(QString flag READ flag NOTIFY numberChanged)
    Q_PROPERTY(QString number READ number NOTIFY numberChanged)
    Q_PROPERTY(QColor cardLight READ cardLight CONSTANT)
    Q_PROPERTY(QColor cardDark READ cardDark CONSTANT)
    Q_PROPERTY(QColor cardInk READ cardInk CONSTANT)
    Q_PROPERTY(QColor cardVeil READ cardVeil CONSTANT)
    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    Q_PROPERTY(bool nothingYet READ nothingYet NOTIFY stateChanged)
    Q_PROPERTY(bool isOffline READ isOffline NOTIFY isOfflineChanged)
    Q_PROPERTY(QString fetchAge READ fetchAge NOTIFY fetchAgeChanged)
    Q_PROPERTY(bool bySender READ bySender NOTIFY messagesStackTypeChanged)
    Q_PROPERTY(bool allowManualRefresh READ allowManualRefresh NOTIFY fetchAgeChanged)
    Q_PROPERTY(bool showINBaner READ showINBaner NOTIFY showINBanerChanged)
    Q_PROPERTY(orl::MessageCards *messages READ messages CONSTANT)
    Q_PROPERTY(orl::SenderCards *senders READ senders CONSTANT)
    Q_PROPERTY(orl::KeyedListModel *similar READ similar CONSTANT)
    Q_PROPERTY(orl::NumberChoice *choice READ choice CONSTANT)
    Q_PROPERTY(bool countriesPresented READ countriesPresented NOTIFY countriesPresentedChanged)
    Q_PROPERTY(orl::CountriesView *countries READ countries NOTIFY countriesChanged)
public:
    enum class State { Loading, Offline, Messages };
    Q_ENUM(State)

    static constexpr std::chrono::seconds tick{10};
    static constexpr double fetchIsOldAfter = 60; ///< seconds
    static constexpr std::chrono::seconds inlineBannerAfter{3};

    HomeView(Process &process, const AdPlaces &ads, RequestViewModel &request, InternetViewModel &internet,
             CopyViewModel &copy, QObject *parent = nullptr);
    ~HomeView() override;

    // The number card

    QString countryName() const;
    QString flag() const;
    QString number() const; ///< in the country's format
    QColor cardLight() const;
    QColor cardDark() const;
    QColor cardInk() const;
    QColor cardVeil() const;
    Q_INVOKABLE void copyNumber();

    /// The country list lies over the home screen while a number is changed.
    bool countriesPresented() const { return countriesPresented_; }
    CountriesView *countries() const { return countries_.get(); }
    Q_INVOKABLE void openCountries();
    Q_INVOKABLE void closeCountries();

    // The messages

    State state() const;
    /// The page was read and no message stands on it.
    bool nothingYet() const;
    bool isOffline() const { return isOffline_; }
    /// How long ago the messages were last read, once that is more than a minute; empty otherwise.
    QString fetchAge() const;
    /// Whether the messages are so old that the user may ask for them himself.
    bool allowManualRefresh() const { return !fetchAge().isEmpty(); }
    /// Whether an inline banner may stand above the messages.
    bool showINBaner() const { return showINBaner_; }

    MessageStackType messagesStackType() const { return messagesStackType_; }
    /// A tap on the layout that is chosen already counts towards an ad too.
    void setMessagesStackType(MessageStackType type);
    bool bySender() const { return messagesStackType_ == MessageStackType::SENDERS; }
    Q_INVOKABLE void showRecent() { setMessagesStackType(MessageStackType::RECENT); }
    Q_INVOKABLE void showSenders() { setMessagesStackType(MessageStackType::SENDERS); }

    MessageCards *messages() { return &messages_; }
    SenderCards *senders() { return &senders_; }
    KeyedListModel *similar() { return &similar_; }
    NumberChoice *choice() { return &choice_; }

    /// To be called each time that the screen appears: at the start and with its tab. It stays where it is
    /// below what slides over it, so going back to it from there is no appearance, and no opening that counts
    /// towards a review.
    Q_INVOKABLE void appear();
    Q_INVOKABLE void retry() { setTryAgain(QUuid::createUuid()); }
    Q_INVOKABLE void dismissOffline() { setIsOffline(false); }
    /// Opens a link, copies anything else.
    Q_INVOKABLE void tapExport(const QString &entry);
    /// Opens the conversation with the sender of a row.
    Q_INVOKABLE void tapSender(int row);
    Q_INVOKABLE void tapSimilar(int row);

Q_SIGNALS:
    void numberChanged();
    void stateChanged();
    void isOfflineChanged();
    void fetchAgeChanged();
    void showINBanerChanged();
    void messagesStackTypeChanged();
    void countriesChanged(); ///< told ahead of countriesPresentedChanged
    void countriesPresentedChanged();

private:
    void changeNumber();
    void noteFetch();
    void fetchOnTick();
    void setIsOffline(bool offline);
    void setShowINBaner(bool shown);
    void setTryAgain(const QUuid &signal);
    void showMessages();
    void listSenders();
    void showSimilar();

    Process &process_;
    const AdPlaces &ads_;
    RequestViewModel &request_;
    InternetViewModel &internet_;
    CopyViewModel &copy_;
    bool isOffline_ = false;
    QUuid tryAgain_;
    MessageStackType messagesStackType_ = MessageStackType::RECENT;
    bool fetched_ = false; ///< a page was read since the number became the current one
    bool countriesPresented_ = false;
    bool showINBaner_ = false;
    SenderCards senders_;
    MessageCards messages_;
    NumberRows similar_;
    NumberChoice choice_;
    std::optional<PhoneNumber> currentNumber_; ///< whose messages are shown
    std::unique_ptr<CountriesView, QScopedPointerDeleteLater> countries_;
    std::unique_ptr<RepeatingTimer> timer_;
};

} // namespace orl
