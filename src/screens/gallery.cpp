#include "screens/gallery.h"

#include "identity/identity_tables.h"
#include "numbers/gradients.h"
#include "screens/sample_ads.h"

#include <QBuffer>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>

namespace orl {

namespace {

/// An ad that nobody loaded.
class MadeUpAd : public NativeAdContent {
public:
    explicit MadeUpAd(AdAssets assets) : assets_(std::move(assets)) {}
    const AdAssets &assets() const override { return assets_; }
    void tap() override {}

private:
    const AdAssets assets_;
};

QByteArray picture(const QSize &size, const GradientPair &colours) {
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient gradient(0, 0, size.width(), size.height());
    gradient.setColorAt(0, QColor(colours.light.name()));
    gradient.setColorAt(1, QColor(colours.dark.name()));
    painter.fillRect(image.rect(), gradient);
    painter.end();
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

AlertItem everything() {
    AlertItem item;
    item.image = QStringLiteral("limit_cover");
    item.title = QStringLiteral("Everything");
    item.subtitle = QStringLiteral("An alert that has all that one can have.");
    item.title2 = QStringLiteral("And more");
    item.subtitle2 = QStringLiteral("A second paragraph, and links to what is agreed to.");
    item.mainButtonTitle = QStringLiteral("agree");
    item.cancelButtonTitle = QStringLiteral("Cancel");
    return item;
}

FakeIdentity person() {
    const auto row = [](const char *title, const char *content) {
        return ExtraInfo{QLatin1String(title), QString::fromUtf8(content)};
    };
    return {.id = QStringLiteral("0"),
            .full_name = QStringLiteral("Élise Bérard"),
            .address = QStringLiteral("12 rue du Moulin\n21040 Dijon"),
            .gender = FakeGender::Female,
            .more_section = {row("Geo coordinates", "47.322, 5.0415"),
                             row("Mother's maiden name", "Lefèvre-Montaigne"),
                             row("Date of birth", "1988-02-29"), row("Age", "--")},
            .phone_section = {row("Home phone", "02 61 91 07 52"), row("Work phone", "06 39 98 11 20")},
            .internet_section = {row("Email address", "elise.berard42@example.net"),
                                 row("Username", "riverheron17"),
                                 row("Browser user agent",
                                     "Mozilla/5.0 (X11; Linux x86_64; rv:128.0) Gecko/20100101")},
            .body_section = {row("Height", "168.0"), row("Weight", "61.5"), row("Eye color", "Green"),
                             row("Blood type", "A-"), row("Hair", "Long, brown")},
            .other_section = {row("Company", "Atelier du Port"), row("Favorite sport", "Rowing")}};
}

} // namespace

Gallery::Gallery(Appearance &appearance, Process &process, QObject *parent)
    : QObject(parent),
      appearance_(appearance),
      genders_({"text", "picture", "chosen"}),
      tabs_({"label", "image"}),
      numbers_({"number", "bars"}),
      attachments_({"name", "size", "image"}),
      limitAlert_(process, limitReached(), 0, 100),
      termsAlert_(process, everything(), 0, 60),
      copyVM_(process),
      results_(copyVM_),
      shareSheet_(process, copyVM_),
      reviewPrompt_(process.platform().browser, QUrl()) {
    chooseGender(0);
    chooseTab(1);
    listCards();
    results_.show(person(), {QStringLiteral("Random"), displayText(FakeNameSet::French),
                             displayText(FakeCountry::France)});
    tracking_.setReady(true);
    consent_.setReady(true);
    const auto add = [&](NativeAdType type) -> NativeAdView & {
        return *ads_.emplace_back(std::make_unique<NativeAdView>(process, type));
    };
    for (const NativeAdType type : {NativeAdType::INSIDE_MESSAGES, NativeAdType::IN_HOME_SCREEN,
                                    NativeAdType::IDENTITY_HOME, NativeAdType::INSIDE_CHAT}) {
        add(type).fill(std::make_shared<MadeUpAd>(
            richAd(picture({96, 96}, gradientPairs.front()), {picture({640, 360}, gradientPairs.back())})));
        add(type).fill(std::make_shared<MadeUpAd>(poorAd()));
    }
}

Gallery::~Gallery() = default;

QVariantList Gallery::ads() const {
    QVariantList views;
    for (const auto &view : ads_)
        views << QVariant::fromValue(view.get());
    return views;
}

void Gallery::chooseGender(int index) {
    QList<KeyedListModel::Row> rows;
    for (const FakeGender gender : allGenders())
        rows << KeyedListModel::Row{rawValue(gender),
                                    {rawValue(gender), pictureName(gender), int(gender) == index}};
    genders_.setRows(rows);
}

void Gallery::chooseTab(int index) {
    const std::pair<const char *, const char *> tabs[] = {{"Messages", "ic_chat"},
                                                          {"EMail", "ic_email"},
                                                          {"Identity", "ic_id_card"},
                                                          {"Settings", "ic_settings"}};
    QList<KeyedListModel::Row> rows;
    for (const auto &[label, image] : tabs) {
        const auto filled = QLatin1String(int(rows.size()) == index ? "_fill" : "");
        rows << KeyedListModel::Row{QLatin1String(label),
                                    {QLatin1String(label), QLatin1String(image) + filled}};
    }
    tabs_.setRows(rows);
}

void Gallery::listCards() {
    QList<KeyedListModel::Row> numbers;
    for (int bars = 2; bars <= 4; ++bars) {
        const QString number = QStringLiteral("+47 000 01 23%1").arg(bars);
        numbers << KeyedListModel::Row{number, {number, bars}};
    }
    numbers_.setRows(numbers);
    attachments_.setRows(
        {{QStringLiteral("1"),
          {QStringLiteral("Harbour at noon.JPG"), QStringLiteral("218 KB"), QStringLiteral("photo")}},
         {QStringLiteral("2"),
          {QStringLiteral("minutes of the meeting on the nineteenth of November, third draft.pdf"),
           QStringLiteral("1.2 MB"), QStringLiteral("doc")}}});
}

void Gallery::share() {
    shareSheet_.present(QStringLiteral("Numbers to throw away: https://orl.example/"),
                        QUrl(QStringLiteral("https://orl.example/")));
}

void Gallery::askForTracking() {
    tracking_.ask([](std::optional<bool>) {});
}

void Gallery::askForConsent() {
    consent_.ask([](std::optional<bool>) {});
}

// A number of a group that is never given out.
void Gallery::showSSN() {
    ssnAlert_.setSsnValidItem(ValidSSN{
        QStringLiteral("000-12-3456"), QStringLiteral("Ohio"), QStringLiteral("1970"), QStringLiteral("1975"),
        QStringLiteral("51 to 56 years"), QStringLiteral("This number has a valid form")});
}

AvatarFace Gallery::face() const {
    SMSSender sender;
    sender.name = QStringLiteral("Harbourly Pay");
    sender.iconText = QStringLiteral("HP");
    sender.light = gradientPairs.front().light;
    sender.dark = gradientPairs.front().dark;
    return avatarFace(sender);
}

QStringList Gallery::nameSets() const {
    QStringList texts;
    for (const FakeNameSet nameSet : allNameSets())
        texts << displayText(nameSet);
    return texts;
}

} // namespace orl
