#include "screens/fake_generator_view.h"

#include "ads/pop_up_ad.h"
#include "config/internet_view_model.h"
#include "platform/haptics.h"
#include "platform/queues.h"

namespace orl {

namespace {

constexpr int secondsBeforeAd = 1;

QString generateTitle() {
    return QStringLiteral("Generate");
}

template<class Value>
QStringList displayTexts(const QList<Value> &values) {
    QStringList texts;
    for (const Value value : values)
        texts << displayText(value);
    return texts;
}

} // namespace

FakeGeneratorView::FakeGeneratorView(Process &process, const AdPlaces &ads, RequestViewModel &request,
                                     InternetViewModel &internet, CopyViewModel &copy, QObject *parent)
    : QObject(parent),
      process_(process),
      request_(request),
      internet_(internet),
      generateButtonTitle_(generateTitle()),
      genders_({"text", "picture", "chosen"}),
      results_(copy),
      nativeWithButton_(ads.nativeWithGenerateButton()) {
    connect(&internet_, &InternetViewModel::isConnectedChanged, this, &FakeGeneratorView::isOfflineChanged);
    connect(&request_, &RequestViewModel::savedIdentitiesChanged, this,
            &FakeGeneratorView::savedIdentitiesChanged);
    connect(nativeWithButton_.get(), &NativeWithGenerateButton::doGenerateChanged, this, [this] {
        nativeWithButton_->setShowNativeBeforeGenerate(false);
        after(waitAfterNative, &FakeGeneratorView::generate);
    });
    listGenders();
}

FakeGeneratorView::~FakeGeneratorView() = default;

void FakeGeneratorView::appear() {
    internet_.checkConnection();
    if (const auto stored = process_.shared<SavedIdentities>().load())
        request_.setSavedIdentities(published(*stored));
}

bool FakeGeneratorView::isOffline() const {
    return !internet_.isConnected();
}

void FakeGeneratorView::setTryAgain(const QUuid &signal) {
    if (signal == tryAgain_) return;
    tryAgain_ = signal;
    internet_.checkConnection();
}

// ---- The choices ----

QStringList FakeGeneratorView::nameSets() const {
    return displayTexts(allNameSets());
}
int FakeGeneratorView::nameSetIndex() const {
    return int(allNameSets().indexOf(nameSetSelection_));
}
QStringList FakeGeneratorView::countryTexts() const {
    return displayTexts(orl::countries(nameSetSelection_));
}
int FakeGeneratorView::countryIndex() const {
    return int(orl::countries(nameSetSelection_).indexOf(countrySelection_));
}

void FakeGeneratorView::listGenders() {
    QList<KeyedListModel::Row> rows;
    for (const FakeGender gender : allGenders())
        rows << KeyedListModel::Row{rawValue(gender),
                                    {rawValue(gender), pictureName(gender), gender == genederSelection_}};
    genders_.setRows(rows);
}

void FakeGeneratorView::chooseGender(int index) {
    if (index < 0 || index >= allGenders().size()) return;
    genederSelection_ = allGenders()[index];
    listGenders();
    Q_EMIT selectionChanged();
}

void FakeGeneratorView::chooseNameSet(int index) {
    if (index < 0 || index >= allNameSets().size() || index == nameSetIndex()) return;
    nameSetSelection_ = allNameSets()[index];
    countrySelection_ = orl::countries(nameSetSelection_).first();
    Q_EMIT selectionChanged();
}

void FakeGeneratorView::chooseCountry(int index) {
    const QList<FakeCountry> &offered = orl::countries(nameSetSelection_);
    if (index < 0 || index >= offered.size()) return;
    countrySelection_ = offered[index];
    Q_EMIT selectionChanged();
}

// ---- The button ----

void FakeGeneratorView::tapGenerate() {
    if (disableGenerating_) return;
    if (fakeIdentity_) return reset();
    if (nativeBeforeGenerate) return nativeWithButton_->setShowNativeBeforeGenerate(true);
    generate();
}

void FakeGeneratorView::reset() {
    setShowSaveButton(false);
    setFakeIdentity(std::nullopt);
    process_.shared<PopUpAd>().showInterstitial(secondsBeforeAd);
}

void FakeGeneratorView::generate() {
    setGenerateButtonTitle(generateTitle());
    setFakeIdentity(std::nullopt);
    setDisableGenerating(true);
    const Platform &platform = process_.platform();
    platform.globalQueue.post([platform, gender = genederSelection_, nameSet = nameSetSelection_,
                               country = countrySelection_, self = QPointer(this)] {
        const IdentityPath path = identityPath(platform, gender, nameSet, country);
        fetchIdentity(platform, path.url, path.gender, [&](const std::optional<FakeIdentity> &made) {
            platform.mainQueue.post([self, made] {
                if (self) self->finish(made);
            });
        });
    });
}

void FakeGeneratorView::finish(const std::optional<FakeIdentity> &made) {
    if (made) {
        after(saveButtonAfter, &FakeGeneratorView::letSave);
        setFakeIdentity(made);
        after(busyAfterSuccess, &FakeGeneratorView::letGenerate);
    } else {
        setGenerateButtonTitle(QStringLiteral("Failed! Change something & try again"));
        setDisableGenerating(false);
    }
    process_.shared<PopUpAd>().showInterstitial(secondsBeforeAd);
}

void FakeGeneratorView::after(std::chrono::milliseconds delay, void (FakeGeneratorView::*step)()) {
    process_.platform().mainQueue.postAfter(delay, [self = QPointer(this), step] {
        if (self) (self->*step)();
    });
}

void FakeGeneratorView::setFakeIdentity(const std::optional<FakeIdentity> &identity) {
    fakeIdentity_ = identity;
    if (identity)
        results_.show(*identity, {caseName(genederSelection_), displayText(nameSetSelection_),
                                  displayText(countrySelection_)});
    Q_EMIT fakeIdentityChanged();
}

void FakeGeneratorView::setDisableGenerating(bool busy) {
    disableGenerating_ = busy;
    Q_EMIT disableGeneratingChanged();
}

void FakeGeneratorView::setShowSaveButton(bool shown) {
    showSaveButton_ = shown;
    Q_EMIT showSaveButtonChanged();
}

void FakeGeneratorView::setGenerateButtonTitle(const QString &title) {
    generateButtonTitle_ = title;
    Q_EMIT generateButtonTitleChanged();
}

// ---- What is saved ----

void FakeGeneratorView::openSaveDialog() {
    process_.platform().haptics.impact(Impact::Soft);
    setSaveDialog(true);
}

void FakeGeneratorView::setSaveNameText(const QString &text) {
    saveNameText_ = text;
    Q_EMIT saveNameTextChanged();
}

void FakeGeneratorView::save() {
    if (saveNameText_.isEmpty() || !fakeIdentity_) return;
    process_.platform().haptics.impact(Impact::Soft);
    process_.shared<SavedIdentities>().save(
        saveNameText_, *fakeIdentity_,
        [this](const SavedIdentities::List &list) { request_.setSavedIdentities(published(list)); });
    setSaveNameText({});
    setSaveDialog(false);
    setSavedCheckMarkAnimation(true);
    after(checkMarkLasts, &FakeGeneratorView::endCheckMark);
}

void FakeGeneratorView::openSaved() {
    if (!hasSavedIdentities()) return;
    process_.platform().haptics.impact(Impact::Soft);
    const auto last = std::move(saved_); // goes after the screen that still shows it
    saved_.reset(new SavedIdentitiesView(process_, request_));
    setShowSavedIdentities(true);
}

void FakeGeneratorView::reopen(int row) {
    if (!saved_ || row < 0 || row >= saved_->count()) return;
    setFakeIdentity(saved_->at(row).identity);
    setShowSavedIdentities(false);
}

void FakeGeneratorView::setSaveDialog(bool shown) {
    saveDialog_ = shown;
    Q_EMIT saveDialogChanged();
}

void FakeGeneratorView::setSavedCheckMarkAnimation(bool playing) {
    savedCheckMarkAnimation_ = playing;
    Q_EMIT savedCheckMarkAnimationChanged();
}

void FakeGeneratorView::setShowSavedIdentities(bool shown) {
    showSavedIdentities_ = shown;
    Q_EMIT showSavedIdentitiesChanged();
}

} // namespace orl
