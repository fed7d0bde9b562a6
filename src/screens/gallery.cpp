#include "screens/gallery.h"

#include "identity/identity_tables.h"
#include "numbers/gradients.h"

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

AdAssets richAd() {
    return {.headline = QStringLiteral("Your city by bicycle"),
            .body = QStringLiteral("Unlock one at any corner. The first half hour is on us."),
            .callToAction = QStringLiteral("Ride"),
            .advertiser = QStringLiteral("Harbour Bikes"),
            .store = QStringLiteral("Phone store"),
            .price = QStringLiteral("Free"),
            .starRating = 4.5,
            .icon = picture({96, 96}, gradientPairs.front()),
            .media = {.picture = picture({640, 360}, gradientPairs.back())}};
}

AdAssets poorAd() {
    return {.headline = QStringLiteral("Tomatoes on the ninth floor")};
}

} // namespace

Gallery::Gallery(Appearance &appearance, Process &process, QObject *parent)
    : QObject(parent), appearance_(appearance), genders_({"text", "picture", "chosen"}) {
    chooseGender(0);
    const auto add = [&](NativeAdType type) -> NativeAdView & {
        return *ads_.emplace_back(std::make_unique<NativeAdView>(process, type));
    };
    for (const NativeAdType type : {NativeAdType::INSIDE_MESSAGES, NativeAdType::IN_HOME_SCREEN,
                                    NativeAdType::IDENTITY_HOME, NativeAdType::INSIDE_CHAT}) {
        add(type).fill(std::make_shared<MadeUpAd>(richAd()));
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
