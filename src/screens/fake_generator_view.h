#pragma once

#include "identity/identity_service.h"
#include "screens/ad_places.h"
#include "screens/generated_results_view.h"
#include "screens/saved_identities_view.h"
#include "screens/ssn_is_valid_alert_view.h"

#include <QPointer>

#include <chrono>
#include <memory>

namespace orl {

class InternetViewModel;

/// The third tab: makes an identity, shows it, keeps it under a name and brings kept ones back.
///
/// The choices live as long as the screen; what was saved lives in the store and is published through
/// RequestViewModel.
class FakeGeneratorView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by MainView")
    Q_PROPERTY(bool isOffline READ isOffline NOTIFY isOfflineChanged)
    Q_PROPERTY(orl::KeyedListModel *genders READ genders CONSTANT)
    Q_PROPERTY(QStringList nameSets READ nameSets CONSTANT)
    Q_PROPERTY(int nameSetIndex READ nameSetIndex NOTIFY selectionChanged)
    Q_PROPERTY(QStringList countries READ countryTexts NOTIFY selectionChanged)
    Q_PROPERTY(int countryIndex READ countryIndex NOTIFY selectionChanged)
    Q_PROPERTY(bool hasIdentity READ hasIdentity NOTIFY fakeIdentityChanged)
    Q_PROPERTY(bool disableGenerating READ disableGenerating NOTIFY disableGeneratingChanged)
    Q_PROPERTY(bool showSaveButton READ showSaveButton NOTIFY showSaveButtonChanged)
    Q_PROPERTY(bool hasSavedIdentities READ hasSavedIdentities NOTIFY savedIdentitiesChanged)
    Q_PROPERTY(QString generateButtonTitle READ generateButtonTitle NOTIFY generateButtonTitleChanged)
    Q_PROPERTY(QString saveNameText READ saveNameText WRITE setSaveNameText NOTIFY saveNameTextChanged)
    Q_PROPERTY(bool saveDialog READ saveDialog NOTIFY saveDialogChanged)
    Q_PROPERTY(
        bool savedCheckMarkAnimation READ savedCheckMarkAnimation NOTIFY savedCheckMarkAnimationChanged)
    Q_PROPERTY(bool showSavedIdentities READ showSavedIdentities NOTIFY showSavedIdentitiesChanged)
    Q_PROPERTY(orl::SavedIdentitiesView *saved READ saved NOTIFY showSavedIdentitiesChanged)
    Q_PROPERTY(orl::GeneratedResultsView *results READ results CONSTANT)
    Q_PROPERTY(orl::SSNIsValidAlertView *ssnAlert READ ssnAlert CONSTANT)
    Q_PROPERTY(orl::NativeWithGenerateButton *nativeWithButton READ nativeWithButton CONSTANT)
public:
    static constexpr std::chrono::milliseconds saveButtonAfter{700};
    static constexpr std::chrono::milliseconds busyAfterSuccess{1000};
    static constexpr std::chrono::milliseconds waitAfterNative{400};
    /// How long "check_mark" plays; as long as its file says.
    static constexpr std::chrono::milliseconds checkMarkLasts{1200};

    FakeGeneratorView(Process &process, const AdPlaces &ads, RequestViewModel &request,
                      InternetViewModel &internet, CopyViewModel &copy, QObject *parent = nullptr);
    ~FakeGeneratorView() override;

    /// To be called each time that the screen appears.
    void appear();

    bool isOffline() const;
    Q_INVOKABLE void retry() { setTryAgain(QUuid::createUuid()); }

    // The choices

    FakeGender genederSelection() const { return genederSelection_; }
    FakeNameSet nameSetSelection() const { return nameSetSelection_; }
    FakeCountry countrySelection() const { return countrySelection_; }

    /// Roles "text", "picture" and "chosen".
    KeyedListModel *genders() { return &genders_; }
    QStringList nameSets() const;
    int nameSetIndex() const;
    QStringList countryTexts() const; ///< those that go with the name set
    int countryIndex() const;
    Q_INVOKABLE void chooseGender(int index);
    /// Brings the first country of the name set along.
    Q_INVOKABLE void chooseNameSet(int index);
    Q_INVOKABLE void chooseCountry(int index);

    // The button

    const std::optional<FakeIdentity> &fakeIdentity() const { return fakeIdentity_; }
    bool hasIdentity() const { return fakeIdentity_.has_value(); }
    bool disableGenerating() const { return disableGenerating_; } ///< the button is busy
    bool showSaveButton() const { return showSaveButton_; }
    const QString &generateButtonTitle() const { return generateButtonTitle_; }

    /// With an identity on screen it clears that; the next tap generates. A busy button takes no tap.
    Q_INVOKABLE void tapGenerate();

    // The results and what is saved

    GeneratedResultsView *results() { return &results_; }
    SSNIsValidAlertView *ssnAlert() { return &ssnAlert_; }
    const std::optional<ValidSSN> &validSSNItem() const { return ssnAlert_.ssnValidItem(); }

    bool hasSavedIdentities() const { return !request_.savedIdentities().isEmpty(); }
    const QString &saveNameText() const { return saveNameText_; }
    void setSaveNameText(const QString &text);
    bool saveDialog() const { return saveDialog_; }
    bool savedCheckMarkAnimation() const { return savedCheckMarkAnimation_; }
    Q_INVOKABLE void openSaveDialog();
    Q_INVOKABLE void cancelSave() { setSaveDialog(false); }
    /// Keeps the identity under the name as it was typed; an empty one keeps the dialogue open.
    Q_INVOKABLE void save();

    bool showSavedIdentities() const { return showSavedIdentities_; }
    SavedIdentitiesView *saved() const { return saved_.get(); } ///< null until first opened
    Q_INVOKABLE void openSaved();
    Q_INVOKABLE void closeSaved() { setShowSavedIdentities(false); }
    Q_INVOKABLE void reopen(int row);

    // Ads

    /// Whether a native card is to hold a generation back. Nothing sets it so far.
    bool nativeBeforeGenerate = false;

    NativeWithGenerateButton *nativeWithButton() { return nativeWithButton_.get(); }

Q_SIGNALS:
    void isOfflineChanged();
    void selectionChanged();
    void fakeIdentityChanged();
    void disableGeneratingChanged();
    void showSaveButtonChanged();
    void savedIdentitiesChanged();
    void generateButtonTitleChanged();
    void saveNameTextChanged();
    void saveDialogChanged();
    void savedCheckMarkAnimationChanged();
    void showSavedIdentitiesChanged();

private:
    void setTryAgain(const QUuid &signal);
    void listGenders();
    void reset();
    void generate();
    void finish(const std::optional<FakeIdentity> &made);
    void after(std::chrono::milliseconds delay, void (FakeGeneratorView::*step)());
    void setFakeIdentity(const std::optional<FakeIdentity> &identity);
    void setDisableGenerating(bool busy);
    void setShowSaveButton(bool shown);
    void setGenerateButtonTitle(const QString &title);
    void setSaveDialog(bool shown);
    void setSavedCheckMarkAnimation(bool playing);
    void setShowSavedIdentities(bool shown);
    void letSave() { setShowSaveButton(true); }
    void letGenerate() { setDisableGenerating(false); }
    void endCheckMark() { setSavedCheckMarkAnimation(false); }

    Process &process_;
    RequestViewModel &request_;
    InternetViewModel &internet_;
    FakeGender genederSelection_ = FakeGender::Random; // spelled so on purpose
    FakeNameSet nameSetSelection_ = FakeNameSet::English;
    FakeCountry countrySelection_ = FakeCountry::UnitedStates;
    std::optional<FakeIdentity> fakeIdentity_;
    bool disableGenerating_ = false;
    bool showSaveButton_ = false;
    QString generateButtonTitle_;
    QString saveNameText_;
    bool saveDialog_ = false;
    bool savedCheckMarkAnimation_ = false;
    bool showSavedIdentities_ = false;
    QUuid tryAgain_;
    KeyedListModel genders_;
    GeneratedResultsView results_;
    SSNIsValidAlertView ssnAlert_;
    const std::unique_ptr<NativeWithGenerateButton> nativeWithButton_;
    std::unique_ptr<SavedIdentitiesView, QScopedPointerDeleteLater> saved_;
};

} // namespace orl
