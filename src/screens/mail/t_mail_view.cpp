#include "screens/mail/t_mail_view.h"

#include "ads/pop_up_ad.h"
#include "mail/address.h"
#include "platform/defaults_store.h"
#include "platform/queues.h"

#include <QPointer>

namespace orl {

TMailView::TMailView(Process &process, MailServiceViewModel &service, InternetViewModel &internet,
                     CopyViewModel &copy, TMailAlertViewModel &alert, AppConfigViewModel &appVM,
                     QObject *parent)
    : QObject(parent),
      process_(process),
      service_(service),
      internet_(internet),
      copy_(copy),
      alert_(alert),
      appVM_(appVM),
      selectedDomain_(Constants::domains().first()),
      email_(process.platform().store.text(selectedEmailKey)),
      mails_(process, service),
      details_(process, service),
      showShareButton_(email_.has_value()) {
    connect(&internet_, &InternetViewModel::isConnectedChanged, this, &TMailView::isOfflineChanged);
    connect(&service_, &MailServiceViewModel::foundOffline, this, [this] {
        if (selected_) internet_.checkConnection();
    });
    connect(&mails_, &MailRows::countChanged, this, &TMailView::checkInbox);
    build();
    checkInbox();
}

void TMailView::appear() {
    selected_ = true;
    ++leavings_;
    internet_.checkConnection();
    process_.platform().mainQueue.postAfter(fetchAfter, [self = QPointer(this)] {
        if (self) self->fetchIfOnline();
    });
    wasEmpty_ = false;
    checkInbox();
}

void TMailView::disappear() {
    selected_ = false;
    letReaderGo();
}

void TMailView::fetchIfOnline() {
    if (!email_ || !internet_.isReachableNow()) return;
    service_.setCurrentAddress(*email_);
    service_.fetchMails();
}

void TMailView::setTryAgain(const QUuid &signal) {
    if (signal == tryAgain_) return;
    tryAgain_ = signal;
    internet_.checkConnection();
    fetchIfOnline();
}

void TMailView::setEmail(const std::optional<QString> &email) {
    if (email == email_) return;
    email_ = email;
    build();
    Q_EMIT emailChanged();
    wasEmpty_ = false;
    checkInbox();
    if (email_) {
        service_.setCurrentAddress(*email_);
        service_.fetchMails();
    }
    process_.platform().mainQueue.postAfter(shareButtonAfter,
                                            [self = QPointer(this), shown = email.has_value()] {
                                                if (!self) return;
                                                self->showShareButton_ = shown;
                                                Q_EMIT self->showShareButtonChanged();
                                            });
}

/// The card is made anew each time.
void TMailView::build() {
    // Its own button may have brought us here.
    if (builder_) builder_.release()->deleteLater();
    if (email_) return;
    builder_ = std::make_unique<EmailBuilderCardView>(
        appVM_, selectedDomain_,
        EmailBuilderCardView::Actions{
            .create =
                [this](const QString &address) {
                    setEmail(address);
                    process_.platform().store.setValue(selectedEmailKey, address);
                },
            .cancel = [this] { setEmail(service_.currentAddress()); },
            .selectDomain = [this](const QString &domain) { selectedDomain_ = domain; }});
}

/// The empty state begins with two seconds of looking each time that it appears.
void TMailView::checkInbox() {
    const bool empty = email_ && mails_.count() == 0;
    if (empty == wasEmpty_) return;
    wasEmpty_ = empty;
    const int view = ++emptyViews_;
    progress_ = true;
    Q_EMIT progressChanged();
    if (!empty) return;
    process_.platform().mainQueue.postAfter(progressFor, [self = QPointer(this), view] {
        if (!self || self->emptyViews_ != view) return;
        self->progress_ = false;
        Q_EMIT self->progressChanged();
    });
}

void TMailView::copyAddress() {
    if (email_) copy_.copy(*email_);
}

void TMailView::changeAddress() {
    process_.platform().haptics.impact(Impact::Soft);
    setEmail(std::nullopt);
    showFullScreenAd();
}

void TMailView::tapMail(int row) {
    if (row < 0 || row >= service_.mails().size()) return;
    service_.setOpenedMail(service_.mails()[row]);
    setKeepsReader(true);
    details_.appear();
    setShowMailDetails(true);
    showFullScreenAd();
}

void TMailView::closeMail() {
    if (!showMailDetails_) return;
    setShowMailDetails(false);
    details_.disappear();
    letReaderGo();
}

void TMailView::setShowMailDetails(bool shown) {
    showMailDetails_ = shown;
    Q_EMIT showMailDetailsChanged();
}

void TMailView::setKeepsReader(bool kept) {
    if (kept == keepsReader_) return;
    keepsReader_ = kept;
    Q_EMIT keepsReaderChanged();
}

void TMailView::letReaderGo() {
    if (selected_ || showMailDetails_ || !keepsReader_) return;
    process_.platform().mainQueue.postAfter(readerKeptFor, [self = QPointer(this), leaving = ++leavings_] {
        if (self && self->leavings_ == leaving && !self->selected_ && !self->showMailDetails_)
            self->setKeepsReader(false);
    });
}

void TMailView::showFullScreenAd() {
    process_.shared<PopUpAd>().showInterstitial(1);
}

} // namespace orl
