#pragma once

#include "numbers/records.h"
#include "platform/process.h"

#include <QObject>
#include <QStringList>
#include <QUrl>
#include <QVariant>

#include <functional>
#include <memory>
#include <optional>

namespace orl {

struct NumberState;

/// The state of the number service: the catalogues, the chosen number, its messages and senders, the history
/// and the selected tab. One is made at start and lives as long as the program; it belongs to the main
/// thread. A write to a published field notifies, also when the value is the same. Optional fields are
/// undefined in QML while absent.
///
/// Fetches cannot be cancelled, and a late result is applied. None of them throws: a failure is one console
/// line.
class RequestViewModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(QList<orl::Country> localCountries READ localCountries NOTIFY localCountriesChanged)
    Q_PROPERTY(QList<orl::Country> countries READ countries NOTIFY countriesChanged)
    Q_PROPERTY(QList<orl::Country> tpnCountriesList READ tpnCountriesList NOTIFY tpnCountriesListChanged)
    Q_PROPERTY(QList<orl::PhoneNumber> currentCountryNumbers READ currentCountryNumbers NOTIFY
                   currentCountryNumbersChanged)
    Q_PROPERTY(QVariant currentCountry READ currentCountryVariant NOTIFY currentCountryChanged)
    Q_PROPERTY(QVariant currentNumber READ currentNumberVariant NOTIFY currentNumberChanged)
    Q_PROPERTY(QList<orl::Message> messages READ messages WRITE setMessages NOTIFY messagesChanged)
    Q_PROPERTY(QList<orl::History> historyList READ historyList NOTIFY historyListChanged)
    Q_PROPERTY(QVariantList savedIdentities READ savedIdentities WRITE setSavedIdentities NOTIFY
                   savedIdentitiesChanged)
    Q_PROPERTY(orl::Tab selectedTab READ selectedTab WRITE setSelectedTab NOTIFY selectedTabChanged)
    Q_PROPERTY(QList<orl::SMSSender> senders READ senders NOTIFY sendersChanged)
    Q_PROPERTY(bool conversation_isPresented READ conversation_isPresented WRITE setConversation_isPresented
                   NOTIFY conversation_isPresentedChanged)
    Q_PROPERTY(
        QVariant selectedConversation READ selectedConversationVariant NOTIFY selectedConversationChanged)
    Q_PROPERTY(QStringList icons READ icons NOTIFY iconsChanged)
    Q_PROPERTY(
        QVariant lastFetchSucceededAt READ lastFetchSucceededAtVariant NOTIFY lastFetchSucceededAtChanged)
public:
    using NumbersCompletion = std::function<void(const QList<PhoneNumber> &)>;
    using HistoryCompletion = std::function<void(const QList<History> &)>;

    /// Reads the local catalogue, starts the catalogue fetches and restores the chosen number.
    explicit RequestViewModel(Process &process, QObject *parent = nullptr);
    ~RequestViewModel() override;

    QList<Country> localCountries() const;
    QList<Country> countries() const;
    QList<Country> tpnCountriesList() const;
    const QList<PhoneNumber> &currentCountryNumbers() const { return currentCountryNumbers_; }
    std::optional<Country> currentCountry() const;
    std::optional<PhoneNumber> currentNumber() const;
    const QList<Message> &messages() const { return messages_; }
    const QList<History> &historyList() const { return historyList_; } ///< newest first
    /// Saved identities as values of the identity room's record, which this room does not know. Newest first.
    const QVariantList &savedIdentities() const { return savedIdentities_; }
    Tab selectedTab() const { return selectedTab_; }
    const QList<SMSSender> &senders() const { return senders_; }
    bool conversation_isPresented() const { return conversation_isPresented_; }
    const std::optional<SMSSender> &selectedConversation() const { return selectedConversation_; }
    /// Sender names in lower case for which the configuration host has a picture.
    QStringList icons() const;

    /// When a message page was last read and parsed, whatever stood on it; seconds since 1970.
    std::optional<double> lastFetchSucceededAt() const { return lastFetchSucceededAt_; }

    void setMessages(const QList<Message> &messages);
    void setSavedIdentities(const QVariantList &identities);
    void setSelectedTab(Tab tab);
    void setConversation_isPresented(bool presented);
    void setSelectedConversation(const std::optional<SMSSender> &conversation);

    /// False from a choice of number until one message check has passed.
    bool allowNotifications() const { return allowNotifications_; }
    const std::optional<Message> &lastMessageChecked() const { return lastMessageChecked_; }
    int gradientColorIndex() const;

    // Catalogues

    /// Reads the local catalogue before it returns, then starts fetchCountries, which filters through it.
    void loadCountries();
    void fetchIcons();
    /// Starts both catalogue fetches unless the host is unreachable; a list that has arrived is not fetched
    /// again.
    Q_INVOKABLE void fetchCountries();
    void fetchTPNCountries();
    /// Reads the persisted choice again; leaves the current one where nothing readable is stored.
    Q_INVOKABLE void restoreChosenNumber();

    /// The numbers of a country. The completion runs on the main thread: once with the numbers of the first
    /// website and, where the second one knows the country, again with those of both; never when the page is
    /// unreadable.
    void fetchNumbers(const Country &country, NumbersCompletion completion);

    // Messages

    /// Reads the messages of the current number and returns at once. Unless `force`, a list whose first
    /// content is already shown does not replace `messages`; `senders` is rebuilt in any case.
    Q_INVOKABLE void fetchMessages(bool force = false);
    /// Rebuilds `senders` from a list of messages; an empty list leaves it alone.
    void groupMessages(const QList<Message> &list);
    /// The sender with the next gradient pair and its letters.
    SMSSender assignGradient(SMSSender sender);
    /// Announces messages that are newer than the last check's first one, then remembers the first of the
    /// list.
    void checkNewMessages(const QList<Message> &list);
    /// Sets `messages`, with an ad behind the newest one while native ads are on.
    void applyMessages(const QList<Message> &list);
    /// Marks messages as seen in the store, and the first one of the open conversation in `senders`.
    void markSeen(const QList<Message> &list);
    /// How many messages of a sender are not seen; nothing for none.
    std::optional<int> unseenCount(const SMSSender &sender) const;

    // Choice and history

    /// Makes a number the current one, persists it, writes it into the history and counts it against the
    /// allowance. `returnHome` selects the first tab 0.2 s later.
    void chooseNumber(const Country &country, const PhoneNumber &number, bool returnHome);
    /// Reads the stored history; the completion gets it ahead of `historyList`. A history that cannot be
    /// decoded stays in the store, and the completion is not called.
    void loadHistory(HistoryCompletion completion = {});
    /// See ChoiceAllowance.
    Q_INVOKABLE bool mayChoose() const;
    void resetAllowance();

Q_SIGNALS:
    void localCountriesChanged();
    void countriesChanged();
    void tpnCountriesListChanged();
    void currentCountryNumbersChanged();
    void currentCountryChanged();
    void currentNumberChanged();
    void messagesChanged();
    void historyListChanged();
    void savedIdentitiesChanged();
    void selectedTabChanged();
    void sendersChanged();
    void conversation_isPresentedChanged();
    void selectedConversationChanged();
    void iconsChanged();
    void lastFetchSucceededAtChanged();

private:
    struct Worker;
    class MessageFetch;

    Worker worker();
    QVariant currentCountryVariant() const;
    QVariant currentNumberVariant() const;
    QVariant selectedConversationVariant() const;
    QVariant lastFetchSucceededAtVariant() const;

    void setCurrent(const Country &country, const PhoneNumber &number);
    void setIcons(const QStringList &icons);
    void setHistoryList(const QList<History> &list);
    void setSenders(const QList<SMSSender> &senders);

    bool nativeAdEnabled() const;
    void fetchSucceeded();
    void applySecondWebsite(const QList<Message> &list, bool whole, bool force);
    void announceLaterThan(double last, const QList<Message> &list);

    Process &process_;
    std::shared_ptr<NumberState> state_;
    QList<PhoneNumber> currentCountryNumbers_;
    QList<Message> messages_;
    QList<History> historyList_;
    QVariantList savedIdentities_;
    Tab selectedTab_ = Tab::home;
    QList<SMSSender> senders_;
    bool conversation_isPresented_ = false;
    std::optional<SMSSender> selectedConversation_;
    std::optional<double> lastFetchSucceededAt_;
    bool allowNotifications_ = false;
    std::optional<Message> lastMessageChecked_;
};

} // namespace orl
