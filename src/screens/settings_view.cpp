#include "screens/settings_view.h"

#include "numbers/choice_allowance.h"
#include "numbers/request_view_model.h"
#include "platform/defaults_store.h"

#include <QPointer>

namespace orl {

struct SettingsView::Entry {
    Row row;
    const char *section;
    const char *title;
    const char *image;
    Leads leads;
};

namespace {

const QString notificationKey = QStringLiteral("Notification");

QString shareText(const QUrl &link) {
    return QStringLiteral("Orl: Virtual phone number for verification, Thousands of numbers from lot of "
                          "countries for FREE, No Charge \n\n") +
           link.toString();
}

} // namespace

QList<SettingsView::Entry> SettingsView::entries() {
    return {
        {Row::History, "General", "History", "clock.arrow.circlepath", Leads::Deeper},
        {Row::ChangeNumber, "General", "Change phone number", "arrow.triangle.2.circlepath", Leads::Deeper},
        {Row::Notification, "General", "New message notification", "bell.badge", Leads::Nowhere},
        {Row::PrivacyPolicy, "Privacy", "Privacy Policy", "lock.shield", Leads::Outside},
        {Row::TermsOfService, "Privacy", "Terms of Service", "doc.plaintext", Leads::Outside},
        {Row::Eula, "Privacy", "EULA", "checkmark.shield", Leads::Outside},
        {Row::ContactUs, "Privacy", "Contact us", "paperplane", Leads::Outside},
        {Row::ShareApp, "Other", "Share App", "square.and.arrow.up", Leads::ToSheet},
        {Row::RateUs, "Other", "Rate us", "star.leadinghalf.fill", Leads::Outside},
        {Row::OtherApps, "Other", "Other Apps", "apps.iphone", Leads::Outside},
    };
}

SettingsView::SettingsView(Process &process, RequestViewModel &request, InternetViewModel &internet,
                           CopyViewModel &copy, QObject *parent)
    : QObject(parent),
      process_(process),
      request_(request),
      internet_(internet),
      storeLinks_(process.platform()),
      rows_({"section", "title", "image", "leads", "first", "last"}),
      shareSheet_(process, copy),
      messageSoundEnabled_(process.shared<MessageSound>().messageSoundEnabled()) {}

void SettingsView::appear() {
    listRows();
    request_.restoreChosenNumber();
}

void SettingsView::listRows() {
    QList<Entry> all = entries();
    // Asked anew each time, as a mail program may have been installed meanwhile.
    if (!process_.platform().mailComposer.canSendMail())
        all.removeIf([](const Entry &entry) { return entry.row == Row::ContactUs; });

    QList<KeyedListModel::Row> rows;
    shown_.clear();
    for (qsizetype i = 0; i < all.size(); ++i) {
        const Entry &entry = all[i];
        const auto sectionAt = [&](qsizetype at) { return QLatin1String(all.value(at, {}).section); };
        const bool isSwitch = entry.row == Row::Notification;
        shown_ << entry.row;
        rows << KeyedListModel::Row{isSwitch ? notificationKey : QString::fromLatin1(entry.title),
                                    {QString::fromLatin1(entry.section), QString::fromLatin1(entry.title),
                                     isSwitch ? bell() : QString::fromLatin1(entry.image),
                                     QVariant::fromValue(entry.leads),
                                     sectionAt(i - 1) != QLatin1String(entry.section),
                                     sectionAt(i + 1) != QLatin1String(entry.section)}};
    }
    rows_.setRows(rows);
}

QString SettingsView::bell() const {
    return messageSoundEnabled_ ? QStringLiteral("bell.badge") : QStringLiteral("bell.slash");
}

void SettingsView::setMessageSoundEnabled(bool enabled) {
    messageSoundEnabled_ = enabled;
    process_.shared<MessageSound>().setMessageSoundEnabled(enabled);
    listRows();
    Q_EMIT messageSoundEnabledChanged();
}

void SettingsView::tap(int row) {
    if (row >= 0 && row < shown_.size()) open(shown_[row]);
}

void SettingsView::open(Row row) {
    const Platform &platform = process_.platform();
    switch (row) {
    case Row::History: return openHistory();
    case Row::ChangeNumber: return openCountries();
    case Row::Notification: return setMessageSoundEnabled(!messageSoundEnabled_);
    case Row::PrivacyPolicy: return openLegalPage(platform, LegalPage::PrivacyPolicy);
    case Row::TermsOfService: return openLegalPage(platform, LegalPage::TermsOfService);
    case Row::Eula: return openLegalPage(platform, LegalPage::Eula);
    case Row::ContactUs: return writeMail();
    case Row::ShareApp: return shareSheet_.present(shareText(storeLinks_.share), storeLinks_.share);
    case Row::RateUs: return platform.browser.open(storeLinks_.review);
    case Row::OtherApps: return platform.browser.open(storeLinks_.makerPage);
    }
}

void SettingsView::writeMail() {
    isShowingMailView_ = true;
    process_.platform().mailComposer.compose(contactAddress(), [self = QPointer(this)](int result) {
        if (!self) return;
        self->result_ = result;
        self->isShowingMailView_ = false;
    });
}

void SettingsView::openHistory() {
    if (historyPresented_) return;
    const auto last = std::move(history_); // goes after the screen that still shows it
    history_.reset(new HistoryView(process_, request_));
    connect(history_.get(), &HistoryView::dismissed, this, &SettingsView::closeHistory);
    Q_EMIT historyChanged();
    historyPresented_ = true;
    Q_EMIT historyPresentedChanged();
}

void SettingsView::closeHistory() {
    if (!historyPresented_) return;
    historyPresented_ = false;
    Q_EMIT historyPresentedChanged();
    appear();
}

void SettingsView::openCountries() {
    if (countriesPresented_) return;
    const auto last = std::move(countries_); // goes after the screen that still shows it
    countries_.reset(new CountriesView(process_, request_, internet_));
    connect(countries_.get(), &CountryScreen::numberChosen, this, &SettingsView::closeCountries);
    Q_EMIT countriesChanged();
    countriesPresented_ = true;
    Q_EMIT countriesPresentedChanged();
}

void SettingsView::closeCountries() {
    if (!countriesPresented_) return;
    countriesPresented_ = false;
    Q_EMIT countriesPresentedChanged();
    appear();
}

} // namespace orl
