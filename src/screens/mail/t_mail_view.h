#pragma once

#include "config/internet_view_model.h"
#include "screens/copy_view_model.h"
#include "screens/mail/email_builder_card_view.h"
#include "screens/mail/mail_details_view.h"
#include "screens/mail/mail_rows.h"
#include "screens/mail/t_mail_alert_view_model.h"

#include <QUuid>

#include <memory>
#include <optional>

namespace orl {

/// The mail tab: without an address the card that makes one, with an address its inbox, over which a mail is
/// opened.
class TMailView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by MainView")
    Q_PROPERTY(bool hasEmail READ hasEmail NOTIFY emailChanged)
    Q_PROPERTY(QString shownAddress READ shownAddress NOTIFY emailChanged)
    Q_PROPERTY(orl::EmailBuilderCardView *builder READ builder NOTIFY emailChanged)
    Q_PROPERTY(orl::MailRows *mails READ mails CONSTANT)
    Q_PROPERTY(bool progress READ progress NOTIFY progressChanged)
    Q_PROPERTY(bool showShareButton READ showShareButton NOTIFY showShareButtonChanged)
    Q_PROPERTY(bool showMailDetails READ showMailDetails NOTIFY showMailDetailsChanged)
    Q_PROPERTY(orl::MailDetailsView *details READ details CONSTANT)
    Q_PROPERTY(bool keepsReader READ keepsReader NOTIFY keepsReaderChanged)
    Q_PROPERTY(bool isOffline READ isOffline NOTIFY isOfflineChanged)
    Q_PROPERTY(orl::TMailAlertViewModel *alert READ alert CONSTANT)
public:
    static constexpr std::chrono::milliseconds fetchAfter{200};       ///< of an appearance
    static constexpr std::chrono::milliseconds shareButtonAfter{500}; ///< of another address
    static constexpr std::chrono::seconds progressFor{2};
    static constexpr std::chrono::seconds readerKeptFor{10};

    TMailView(Process &process, MailServiceViewModel &service, InternetViewModel &internet,
              CopyViewModel &copy, TMailAlertViewModel &alert, AppConfigViewModel &appVM,
              QObject *parent = nullptr);

    const std::optional<QString> &email() const { return email_; }
    bool hasEmail() const { return email_.has_value(); }
    QString shownAddress() const { return email_.value_or(QString()).toLower(); }
    EmailBuilderCardView *builder() const { return builder_.get(); } ///< null while there is an address

    MailRows *mails() { return &mails_; }
    /// Whether an empty inbox is still being looked at for the first time.
    bool progress() const { return progress_; }
    bool showShareButton() const { return showShareButton_; }
    bool isOffline() const { return !internet_.isConnected(); }
    TMailAlertViewModel *alert() { return &alert_; }

    bool showMailDetails() const { return showMailDetails_; }
    MailDetailsView *details() { return &details_; }
    /// From the first mail that is opened until the tab has been left for ten seconds without an open mail:
    /// the web view costs memory, and the next mail is there at once while it is kept.
    bool keepsReader() const { return keepsReader_; }

    /// The tab was selected, or left.
    void appear();
    void disappear();

    Q_INVOKABLE void copyAddress();
    /// The tool button.
    Q_INVOKABLE void changeAddress();
    Q_INVOKABLE void tapMail(int row);
    Q_INVOKABLE void closeMail();
    Q_INVOKABLE void setTryAgain(const QUuid &signal);
    Q_INVOKABLE void retry() { setTryAgain(QUuid::createUuid()); }
    Q_INVOKABLE void dismissAlert() { alert_.dismiss(); }

Q_SIGNALS:
    void emailChanged();
    void progressChanged();
    void showShareButtonChanged();
    void showMailDetailsChanged();
    void keepsReaderChanged();
    void isOfflineChanged();

private:
    void setEmail(const std::optional<QString> &email);
    void build();
    void fetchIfOnline();
    void checkInbox();
    void setShowMailDetails(bool shown);
    void setKeepsReader(bool kept);
    void letReaderGo();
    void showFullScreenAd();

    Process &process_;
    MailServiceViewModel &service_;
    InternetViewModel &internet_;
    CopyViewModel &copy_;
    TMailAlertViewModel &alert_;
    AppConfigViewModel &appVM_;
    QString selectedDomain_;
    std::optional<QString> email_;
    std::unique_ptr<EmailBuilderCardView> builder_;
    MailRows mails_;
    MailDetailsView details_;
    bool progress_ = true;
    bool wasEmpty_ = false;
    int emptyViews_ = 0; ///< how often the empty state has appeared
    bool showShareButton_;
    bool showMailDetails_ = false;
    bool selected_ = false;
    bool keepsReader_ = false;
    int leavings_ = 0; ///< a wait that something came between is over
    QUuid tryAgain_;
};

} // namespace orl
