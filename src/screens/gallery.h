#pragma once

#include "ads/native_ad_view.h"
#include "platform/qt/stored_consent.h"
#include "screens/appearance.h"
#include "screens/avatar_face.h"
#include "screens/copy_view_model.h"
#include "screens/custom_alert_view.h"
#include "screens/generated_results_view.h"
#include "screens/review_prompt.h"
#include "screens/share_sheet.h"
#include "screens/ssn_is_valid_alert_view.h"

#include <memory>
#include <vector>

namespace orl {

/// Where the gallery's window is; it needs a `gallery` of this type.
inline constexpr char galleryWindow[] = "qrc:/Orl/Screens/GalleryWindow.qml";

/// What a page of all components needs of state, made up: it reads no host and keeps nothing.
class Gallery : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(orl::Appearance *appearance READ appearance CONSTANT)
    Q_PROPERTY(orl::KeyedListModel *genders READ genders CONSTANT)
    Q_PROPERTY(orl::KeyedListModel *tabs READ tabs CONSTANT)
    Q_PROPERTY(orl::KeyedListModel *numbers READ numbers CONSTANT)
    Q_PROPERTY(orl::KeyedListModel *attachments READ attachments CONSTANT)
    Q_PROPERTY(orl::SSNIsValidAlertView *ssnAlert READ ssnAlert CONSTANT)
    Q_PROPERTY(orl::CustomAlertView *limitAlert READ limitAlert CONSTANT)
    Q_PROPERTY(orl::CustomAlertView *termsAlert READ termsAlert CONSTANT)
    Q_PROPERTY(orl::GeneratedResultsView *results READ results CONSTANT)
    Q_PROPERTY(orl::CopyViewModel *copyVM READ copyVM CONSTANT)
    Q_PROPERTY(orl::ShareSheet *shareSheet READ shareSheet CONSTANT)
    Q_PROPERTY(orl::ReviewPrompt *reviewPrompt READ reviewPrompt CONSTANT)
    Q_PROPERTY(orl::StoredQuestion *tracking READ tracking CONSTANT)
    Q_PROPERTY(orl::StoredQuestion *consent READ consent CONSTANT)
    Q_PROPERTY(orl::AvatarFace face READ face CONSTANT)
    Q_PROPERTY(QStringList nameSets READ nameSets CONSTANT)
    Q_PROPERTY(QVariantList ads READ ads CONSTANT)
public:
    /// The process is where the pictures of the ads are kept.
    Gallery(Appearance &appearance, Process &process, QObject *parent = nullptr);
    ~Gallery() override;

    Appearance *appearance() { return &appearance_; }
    KeyedListModel *genders() { return &genders_; }
    SSNIsValidAlertView *ssnAlert() { return &ssnAlert_; }
    KeyedListModel *tabs() { return &tabs_; }
    KeyedListModel *numbers() { return &numbers_; }
    KeyedListModel *attachments() { return &attachments_; }
    CustomAlertView *limitAlert() { return &limitAlert_; }
    CustomAlertView *termsAlert() { return &termsAlert_; } ///< with everything that an alert can have
    GeneratedResultsView *results() { return &results_; }
    CopyViewModel *copyVM() { return &copyVM_; }
    ShareSheet *shareSheet() { return &shareSheet_; }
    ReviewPrompt *reviewPrompt() { return &reviewPrompt_; }
    StoredQuestion *tracking() { return &tracking_; }
    StoredQuestion *consent() { return &consent_; }
    AvatarFace face() const;
    QStringList nameSets() const;
    QVariantList ads() const; ///< native cards; nothing happens when one is tapped

    Q_INVOKABLE void chooseGender(int index);
    Q_INVOKABLE void chooseTab(int index);
    Q_INVOKABLE void showSSN(); ///< puts a made-up result into the alert
    Q_INVOKABLE void share();
    Q_INVOKABLE void askForReview() { reviewPrompt_.requestReview(); }
    Q_INVOKABLE void askForTracking();
    Q_INVOKABLE void askForConsent();

private:
    void listCards();

    Appearance &appearance_;
    KeyedListModel genders_;
    KeyedListModel tabs_;
    KeyedListModel numbers_;
    KeyedListModel attachments_;
    SSNIsValidAlertView ssnAlert_;
    CustomAlertView limitAlert_;
    CustomAlertView termsAlert_;
    CopyViewModel copyVM_;
    GeneratedResultsView results_;
    ShareSheet shareSheet_;
    ReviewPrompt reviewPrompt_;
    StoredQuestion tracking_;
    StoredQuestion consent_;
    std::vector<std::unique_ptr<NativeAdView>> ads_;
};

} // namespace orl
