// Draws the identity tab and the gallery of components as people may have set up their devices, and keeps
// pictures in the folder "pictures" beside the test.

#include "identity/sample_identities.h"
#include "looks.h"
#include "resting.h"
#include "screens/ad_images.h"
#include "screens/gallery.h"
#include "screens/screens.h"
#include "screens_phone.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <algorithm>
#include <filesystem>

namespace orl {
namespace {

constexpr Look identityLooks[] = {
    {"phone"},
    {"phone_dark", 390, 844, true},
    {"narrow", 360, 640},
    {"narrow_dark_large_text", 360, 640, true, 2},
    {"right_to_left", 390, 844, false, 1, true},
    {"wide", 1280, 800},
};

/// A window is looked at as a whole: what can be tapped has a name, a size for a thumb and lies within it.
class IdentityLayoutTest : public ScreensTest, public testing::WithParamInterface<Look> {
protected:
    IdentityLayoutTest() {
        complaints.clear();
        previous_ = qInstallMessageHandler(noteComplaint);
        setUp(appearance, GetParam());
    }
    ~IdentityLayoutTest() override {
        engine.reset();
        qInstallMessageHandler(previous_);
    }

    void show(const char *file, const QVariantMap &properties) {
        engine = std::make_unique<QQmlApplicationEngine>();
        prepareScreens(*engine, process->platform());
        prepareAds(*engine, *process);
        engine->setInitialProperties(properties);
        engine->load(QUrl(QString::fromLatin1(file)));
        window = qobject_cast<QQuickWindow *>(engine->rootObjects().value(0));
        ASSERT_NE(window, nullptr) << complaints.join(u'\n').toStdString();
        window->resize(GetParam().width, GetParam().height);
    }

    void rest() {
        comeToRest(*window->contentItem(), [this] { phone.settle(); });
    }

    void look(const QString &station) {
        rest();
        std::filesystem::create_directories("pictures");
        window->grabWindow().save(
            QStringLiteral("pictures/id-%1-%2.png").arg(station, QString::fromLatin1(GetParam().name)),
            nullptr, 80);
        SCOPED_TRACE(station.toStdString());
        check(*window->contentItem());
        EXPECT_EQ(std::exchange(complaints, {}).join(u'\n').toStdString(), "");
    }

    QQuickItem &button(const char *text) const {
        for (QQuickItem *item : window->findChildren<QQuickItem *>())
            if (item->inherits("QQuickAbstractButton") && item->property("text") == QLatin1String(text))
                return *item;
        ADD_FAILURE() << "no button " << text;
        return *window->contentItem();
    }

    FakeGeneratorView &view() { return *content->main()->fakeGenerator(); }

    std::unique_ptr<QQmlApplicationEngine> engine;
    QQuickWindow *window = nullptr;

private:
    void check(const QQuickItem &item) {
        if (!item.isVisible() || item.opacity() == 0) return;
        // What scrolls sideways reaches beyond the window.
        if (item.inherits("QQuickListView") && item.property("orientation").toInt() == Qt::Horizontal) return;
        const bool control = item.inherits("QQuickAbstractButton") || item.inherits("QQuickTextField");
        const QString name = item.property("text").toString() + item.property("placeholderText").toString();
        if (control || item.inherits("QQuickText")) {
            const QRectF place = item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
            EXPECT_GE(place.left(), -0.5) << name.toStdString();
            EXPECT_LE(place.right(), window->width() + 0.5) << name.toStdString();
        }
        if (item.inherits("QQuickText")) {
            EXPECT_TRUE(holdsItsWords(item)) << name.toStdString();
        }
        if (control) {
            EXPECT_FALSE(name.isEmpty()) << item.metaObject()->className();
            EXPECT_GE(std::min(item.width(), item.height()), 44) << name.toStdString();
        }
        for (const QQuickItem *child : item.childItems())
            check(*child);
    }

    QtMessageHandler previous_ = nullptr;
};

const QString femaleUrl = QStringLiteral("https://identity.example/english-united-states/female");

} // namespace

TEST_P(IdentityLayoutTest, Tab) {
    makeHome();
    show(mainWindow, {{QStringLiteral("content"), QVariant::fromValue(content.get())}});
    phone.advance(SplashView::wait + SplashView::fade);
    content->main()->select(2);
    look(QStringLiteral("options"));

    view().chooseGender(2);
    phone.urls.answer(femaleUrl, UrlResponse{503, "<html>"});
    view().tapGenerate();
    look(QStringLiteral("failed"));

    QJsonObject wire = test::wireIdentity();
    wire.insert(QStringLiteral("useragent"),
                QStringLiteral("Mozilla/5.0 (X11; Linux x86_64; rv:128.0) Gecko/20100101 Firefox/128.0"));
    phone.urls.answer(femaleUrl, encodeJson(wire));
    phone.urls.hold(femaleUrl);
    view().tapGenerate();
    look(QStringLiteral("busy"));
    phone.urls.release(femaleUrl);
    phone.settle();
    phone.advance(std::chrono::seconds(2));
    look(QStringLiteral("results"));
    view().results()->tap(1);
    look(QStringLiteral("copied"));
    phone.advance(std::chrono::seconds(3));
    view().openSaveDialog();
    look(QStringLiteral("save"));
    view().setSaveNameText(QStringLiteral("Work"));
    view().save();
    look(QStringLiteral("check-mark"));
    phone.advance(std::chrono::hours(2));
    view().setSaveNameText(QStringLiteral("A name that is long enough to need another line of a phone"));
    view().save();
    phone.advance(std::chrono::seconds(2));
    view().openSaved();
    look(QStringLiteral("saved"));
    view().reopen(0);
    view().ssnAlert()->setSsnValidItem(ValidSSN{
        QStringLiteral("000-12-3456"), QStringLiteral("Ohio"), QStringLiteral("1970"), QStringLiteral("1975"),
        QStringLiteral("51 to 56 years"), QStringLiteral("This number has a valid form")});
    look(QStringLiteral("ssn"));
    view().ssnAlert()->done();
    phone.reachability.setOnline(false);
    view().retry();
    content->main()->select(0);
    content->main()->select(2);
    look(QStringLiteral("offline"));
}

namespace {

void gatherTexts(QQuickItem &item, QList<QQuickItem *> &texts) {
    if (!item.isVisible() || item.opacity() == 0) return;
    if (item.inherits("QQuickText") && !item.property("text").toString().isEmpty()) texts << &item;
    for (QQuickItem *child : item.childItems())
        gatherTexts(*child, texts);
}

/// Pairs of texts that share room.
QStringList textsOnTexts(QQuickItem &root) {
    QList<QQuickItem *> texts;
    gatherTexts(root, texts);
    const auto place = [](const QQuickItem *text) {
        return text->mapRectToScene({0, 0, text->width(), text->height()}).adjusted(1, 1, -1, -1);
    };
    const auto words = [](const QQuickItem *text) { return text->property("text").toString(); };
    QStringList pairs;
    for (auto first = texts.cbegin(); first != texts.cend(); ++first)
        for (auto second = first + 1; second != texts.cend(); ++second)
            if (place(*first).intersects(place(*second)))
                pairs << words(*first) + QStringLiteral(" / ") + words(*second);
    return pairs;
}

} // namespace

TEST_P(IdentityLayoutTest, Gallery) {
    Gallery gallery(appearance, *process);
    show(galleryWindow, {{QStringLiteral("gallery"), QVariant::fromValue(&gallery)}});
    auto *scroll = window->findChild<QQuickItem *>(QStringLiteral("gallery"));
    ASSERT_NE(scroll, nullptr);
    rest();
    EXPECT_EQ(button("Main, pressed").height(), button("Main").height())
        << "a text that fits into a line was laid out with two";
    EXPECT_EQ(textsOnTexts(*scroll).join(u'\n').toStdString(), "");
    for (const QQuickItem *field : window->findChildren<QQuickItem *>()) {
        if (!field->inherits("QQuickTextField") || !field->isVisible()) continue;
        EXPECT_EQ(field->property("effectiveHorizontalAlignment").toInt(),
                  GetParam().rightToLeft ? Qt::AlignRight : Qt::AlignLeft)
            << field->property("text").toString().toStdString();
    }
    const double most = scroll->property("contentHeight").toDouble() - window->height();
    ASSERT_GT(most, 1000);
    int page = 0;
    for (double at = 0; page == 0 || at < most + window->height(); at += window->height() * 0.9) {
        scroll->setProperty("contentY", std::min(at, most));
        look(QStringLiteral("gallery%1").arg(page++));
    }
    const char *const questions[] = {
        "Show a question", "Show an alert", "Show the limit alert", "Show an alert with everything",
        "Ask for a name",  "Share",         "Ask for a review"};
    for (const char *question : questions) {
        QMetaObject::invokeMethod(&button(question), "clicked");
        look(QString::fromLatin1(question));
        QTest::keyClick(window, Qt::Key_Escape);
    }
    QMetaObject::invokeMethod(&button("Ask for tracking"), "clicked");
    look(QStringLiteral("tracking"));
    gallery.tracking()->answer(true);
    QMetaObject::invokeMethod(&button("Ask for consent"), "clicked");
    look(QStringLiteral("consent"));
    gallery.consent()->answer(true);
    engine.reset(); // ahead of what it shows
}

INSTANTIATE_TEST_SUITE_P(Looks, IdentityLayoutTest, testing::ValuesIn(identityLooks),
                         [](const auto &look) { return std::string(look.param.name); });

} // namespace orl

int main(int argc, char **argv) {
    QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
