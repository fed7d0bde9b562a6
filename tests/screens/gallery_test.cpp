#include "screens/gallery.h"
#include "screens_phone.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace orl {
namespace {

/// What the gallery does not show, besides files whose name ends in "Screen".
const QSet<QString> notShown{
    // whole screens and pages under other names
    u"CountryList"_s, u"FullScreenAd"_s, u"HomeHeader"_s, u"MailAddressBuilder"_s, u"MailWebView"_s,
    u"Main"_s, u"NativeAdXMark"_s,
    // frames around components that it shows: where and when those stand, and how they move
    u"AnchoredBanner"_s, u"CustomNavigation"_s, u"FullSwipePop"_s, u"NativeAdCard"_s, u"NativeAdSlot"_s,
    u"NativeBeforeGenerate"_s, u"NumberChoiceDialogs"_s, u"SlideOver"_s, u"TabPage"_s,
    // nothing to look at
    u"Ads"_s, u"KeepInSight"_s, u"Late"_s, u"ReadAhead"_s, u"Theme"_s};

/// The text of each component by its name.
QHash<QString, QString> components() {
    const QDir folder(QStringLiteral(":/Orl/Screens"));
    QHash<QString, QString> texts;
    for (const QString &name : folder.entryList({QStringLiteral("*.qml")})) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        texts.insert(name.chopped(4), QString::fromUtf8(file.readAll()));
    }
    return texts;
}

/// Every component that one of these names, or that one of those names.
QSet<QString> reached(QStringList names, const QHash<QString, QString> &texts) {
    static const QRegularExpression use(QStringLiteral("\\b(\\w+)(?: \\{|\\.qml\")"));
    QSet<QString> found;
    while (!names.isEmpty()) {
        const QString name = names.takeLast();
        if (!texts.contains(name) || found.contains(name)) continue;
        found << name;
        for (auto matches = use.globalMatch(texts[name]); matches.hasNext();)
            names << matches.next().captured(1);
    }
    return found;
}

using GalleryTest = ScreensTest;

} // namespace

TEST_F(GalleryTest, HasEveryComponent) {
    const QHash<QString, QString> texts = components();
    ASSERT_GT(texts.size(), 100);
    const Gallery gallery(appearance, *process);
    QStringList roots{QStringLiteral("GalleryWindow")};
    for (const QVariant &ad : gallery.ads())
        roots << ad.value<NativeAdView *>()->layout();
    const QSet<QString> shown = reached(roots, texts);
    for (auto text = texts.keyBegin(); text != texts.keyEnd(); ++text) {
        if (!text->endsWith(QStringLiteral("Screen"))) {
            EXPECT_NE(shown.contains(*text), notShown.contains(*text))
                << text->toStdString() << " is neither in the gallery nor listed as left out, or both";
        }
    }
    for (const QString &name : notShown)
        EXPECT_TRUE(texts.contains(name)) << name.toStdString() << " is gone";
}

} // namespace orl
