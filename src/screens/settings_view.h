#pragma once

#include "screens/country_screen.h"
#include "screens/history_view.h"
#include "screens/links.h"
#include "screens/share_sheet.h"

namespace orl {

class InternetViewModel;

/// The fourth tab: what can be set, and the ways to everything that is no daily business.
class SettingsView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by MainView")
    Q_PROPERTY(orl::KeyedListModel *rows READ rows CONSTANT)
    Q_PROPERTY(QString footer READ footer CONSTANT)
    Q_PROPERTY(bool messageSoundEnabled READ messageSoundEnabled WRITE setMessageSoundEnabled NOTIFY
                   messageSoundEnabledChanged)
    Q_PROPERTY(orl::ShareSheet *shareSheet READ shareSheet CONSTANT)
    Q_PROPERTY(bool historyPresented READ historyPresented NOTIFY historyPresentedChanged)
    Q_PROPERTY(orl::HistoryView *history READ history NOTIFY historyChanged)
    Q_PROPERTY(bool countriesPresented READ countriesPresented NOTIFY countriesPresentedChanged)
    Q_PROPERTY(orl::CountriesView *countries READ countries NOTIFY countriesChanged)
public:
    enum class Row {
        History,
        ChangeNumber,
        Notification,
        PrivacyPolicy,
        TermsOfService,
        Eula,
        ContactUs,
        ShareApp,
        RateUs,
        OtherApps
    };

    /// What a row leads to, which its look tells.
    enum class Leads { Deeper, Outside, ToSheet, Nowhere };
    Q_ENUM(Leads)

    SettingsView(Process &process, RequestViewModel &request, InternetViewModel &internet,
                 CopyViewModel &copy, QObject *parent = nullptr);

    /// Roles "section", "title", "image" (a symbol), "leads", and "first" and "last" of its section. The row
    /// that leads nowhere is the switch.
    KeyedListModel *rows() { return &rows_; }
    static QString footer() { return QStringLiteral("@KeLo"); }

    /// To be called whenever the screen comes into sight.
    void appear();
    Q_INVOKABLE void tap(int row);

    /// Whether new messages are announced at all: with a notification and a haptic, not with sound alone.
    bool messageSoundEnabled() const { return messageSoundEnabled_; }
    void setMessageSoundEnabled(bool enabled);

    ShareSheet *shareSheet() { return &shareSheet_; }

    /// What became of the last mail, as MailResult numbers it; nothing shows it.
    std::optional<int> result() const { return result_; }
    /// A mail is being written.
    bool isShowingMailView() const { return isShowingMailView_; }

    // The screens that lie over this one; they stay while they slide away.

    bool historyPresented() const { return historyPresented_; }
    HistoryView *history() const { return history_.get(); }
    Q_INVOKABLE void closeHistory();

    bool countriesPresented() const { return countriesPresented_; }
    CountriesView *countries() const { return countries_.get(); }
    Q_INVOKABLE void closeCountries();

Q_SIGNALS:
    void messageSoundEnabledChanged();
    void historyChanged(); ///< told ahead of historyPresentedChanged
    void historyPresentedChanged();
    void countriesChanged(); ///< told ahead of countriesPresentedChanged
    void countriesPresentedChanged();

private:
    struct Entry;
    static QList<Entry> entries();
    void listRows();
    QString bell() const;
    void open(Row row);
    void openHistory();
    void openCountries();
    void writeMail();

    Process &process_;
    RequestViewModel &request_;
    InternetViewModel &internet_;
    const StoreLinks storeLinks_;
    QList<Row> shown_;
    KeyedListModel rows_;
    ShareSheet shareSheet_;
    bool messageSoundEnabled_;
    bool isShowingMailView_ = false;
    std::optional<int> result_;
    bool historyPresented_ = false;
    bool countriesPresented_ = false;
    std::unique_ptr<HistoryView, QScopedPointerDeleteLater> history_;
    std::unique_ptr<CountriesView, QScopedPointerDeleteLater> countries_;
};

} // namespace orl
