#include "demo/demo_host.h"
#include "demo/mail/mailboxes.h"
#include "looks.h"
#include "mail_screens_phone.h"
#include "resting.h"
#include "screens/review_prompt.h"
#include "screens/screens.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <filesystem>

using namespace orl;

namespace {

constexpr Look looks[] = {
    {"phone"},
    {"phone_dark", 390, 844, true},
    {"narrow_dark_large_text", 360, 640, true, 2},
    {"right_to_left", 390, 844, false, 1, true},
    {"desktop", 1000, 700},
};

void noteOurComplaint(QtMsgType type, const QMessageLogContext &context, const QString &text) {
    // The web engine tells on itself when it starts.
    static const QRegularExpression known(
        QStringLiteral("^(QWebEngine|Sandboxing|Init Parameters|GLImplementation|No suitable)"));
    if (!text.trimmed().contains(known)) noteComplaint(type, context, text);
}

/// Draws the mail tab with the mails of the demo host and looks at what can be measured. Keeps a picture of
/// each station in the folder "pictures" beside the test.
class MailLayoutTest : public MailScreensTest, public testing::WithParamInterface<Look> {
protected:
    MailLayoutTest() {
        complaints.clear();
        previous_ = qInstallMessageHandler(noteOurComplaint);
        setUp(appearance, GetParam());
        EXPECT_TRUE(pictures_.start());
    }

    ~MailLayoutTest() override {
        engine_.reset();
        qInstallMessageHandler(previous_);
    }

    void show() {
        engine_ = std::make_unique<QQmlApplicationEngine>();
        prepareScreens(*engine_, process->platform());
        engine_->setInitialProperties({{QStringLiteral("content"), QVariant::fromValue(content.get())},
                                       {QStringLiteral("reviewPrompt"), QVariant::fromValue(&prompt_)}});
        engine_->load(QUrl(QString::fromLatin1(mainWindow)));
        window_ = qobject_cast<QQuickWindow *>(engine_->rootObjects().value(0));
        ASSERT_NE(window_, nullptr) << complaints.join(u'\n').toStdString();
        window_->resize(GetParam().width, GetParam().height);
        phone.advance(SplashView::wait + SplashView::fade);
    }

    /// The played mail host answers as the demo's does once the first mails are there.
    void answerDemoInbox() {
        const QByteArray host = "127.0.0.1:" + QByteArray::number(pictures_.port());
        const double begun = phone.clock.now();
        const auto ask = [&](const QString &path, double now, const QUrlQuery &query = {}) {
            return mailboxes_.answer({path, now, query, "text/html,text/plain", host}).body;
        };
        QUrlQuery query;
        query.addQueryItem(QStringLiteral("inbox"), address);
        ask(QStringLiteral("/api/emails"), begun, query);
        const QByteArray list = ask(QStringLiteral("/api/emails"), begun + 80, query);
        answerInbox(list);
        for (const QJsonValue &mail : QJsonDocument::fromJson(list)[QStringLiteral("data")].toArray()) {
            const QString id = mail[QStringLiteral("id")].toString();
            phone.urls.answer(bodyUrl(id), ask(QStringLiteral("/api/emails/") + id, begun));
            for (const QJsonValue &file : mail[QStringLiteral("attachments")].toArray()) {
                const QString below =
                    id + QStringLiteral("/attachments/") + file[QStringLiteral("id")].toString();
                phone.urls.answer(bodyUrl(below), ask(QStringLiteral("/api/emails/") + below, begun));
            }
        }
    }

    int rowOf(const QString &sender) { return int(test::texts(*mail().mails(), "sender").indexOf(sender)); }

    void look(const char *station) {
        rest();
        save(station, window_->grabWindow());
    }

    /// A mail's page is drawn by another process: looks until there are white letters on its dark ground.
    void lookAtPage(const char *station) {
        rest();
        QImage picture;
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                rest();
                const auto *page = window_->findChild<QQuickItem *>(QStringLiteral("mailView"));
                if (!page || page->property("loading").toBool()) return false;
                picture = window_->grabWindow();
                const QRect seen = seenOf(*page);
                return seen.height() < 60 ||
                       coloursOf(picture.copy(seen)) > 5; // large text may leave no room
            },
            30000))
            << station;
        save(station, picture);
    }

    void save(const char *station, const QImage &picture) {
        std::filesystem::create_directories("pictures");
        picture.save(QStringLiteral("pictures/%1-%2.png")
                         .arg(QString::fromLatin1(station), QString::fromLatin1(GetParam().name)),
                     nullptr, 80);
        SCOPED_TRACE(station);
        EXPECT_GT(coloursOf(picture), 20) << "a blank screen";
        check(*window_->contentItem());
        EXPECT_EQ(std::exchange(complaints, {}).join(u'\n').toStdString(), "");
    }

    /// What shows these words; null where nothing does.
    static const QQuickItem *showing(const QQuickItem &item, const QString &words) {
        if (!item.isVisible()) return nullptr;
        if (item.property("text").toString().contains(words)) return &item;
        for (const QQuickItem *child : item.childItems())
            if (const QQuickItem *found = showing(*child, words)) return found;
        return nullptr;
    }

    void rest() {
        comeToRest(*window_->contentItem(), [this] { phone.settle(); });
    }

    ReviewPrompt prompt_{browser, QUrl()};
    DemoHost pictures_;

private:
    /// The part of the window in which it is not cut off.
    static QRect seenOf(const QQuickItem &item) {
        QRectF seen = item.mapRectToScene(item.boundingRect());
        for (const QQuickItem *above = item.parentItem(); above; above = above->parentItem())
            if (above->clip()) seen &= above->mapRectToScene(QRectF(0, 0, above->width(), above->height()));
        return seen.toRect();
    }

    static int coloursOf(const QImage &picture) {
        QSet<QRgb> colours;
        for (int y = 0; y < picture.height(); y += 3) {
            for (int x = 0; x < picture.width(); x += 3)
                colours.insert(picture.pixel(x, y));
        }
        return int(colours.size());
    }

    void check(const QQuickItem &item) {
        if (!item.isVisible() || item.opacity() == 0 || item.clip()) return;
        if (item.inherits("QQuickAbstractButton") || item.inherits("QQuickTextField")) {
            const QString name =
                item.property("text").toString() + item.property("placeholderText").toString();
            EXPECT_FALSE(name.isEmpty()) << item.metaObject()->className() << " has no name";
            EXPECT_GE(item.width(), 44) << name.toStdString();
            EXPECT_GE(item.height(), 44) << name.toStdString();
            checkPlace(item, name);
        }
        if (item.inherits("QQuickText")) {
            const QString words = item.property("text").toString();
            checkPlace(item, words);
            EXPECT_TRUE(holdsItsWords(item)) << words.toStdString();
        }
        for (const QQuickItem *child : item.childItems())
            check(*child);
    }

    void checkPlace(const QQuickItem &item, const QString &who) {
        const QRectF place = item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
        EXPECT_GE(place.left(), -0.5) << who.toStdString();
        EXPECT_LE(place.right(), window_->width() + 0.5) << who.toStdString();
    }

    QtMessageHandler previous_ = nullptr;
    demo::Mailboxes mailboxes_{1};
    std::unique_ptr<QQmlApplicationEngine> engine_;

protected:
    QQuickWindow *window_ = nullptr;
};

TEST_P(MailLayoutTest, Builder) {
    openTab();
    show();
    look("mail-builder");
    mail().builder()->tapLogin();
    mail().builder()->setLogin(QStringLiteral("hello"));
    look("mail-builder-suggestions");
    const QList<QQuickItem *> fields = window_->findChildren<QQuickItem *>(QStringLiteral("addressPart"));
    ASSERT_EQ(fields.size(), 2);
    const auto place = [](const QQuickItem &item) { return item.mapToScene(QPointF()); };
    EXPECT_TRUE(place(*fields[0]).x() < place(*fields[1]).x() ||
                place(*fields[0]).y() < place(*fields[1]).y())
        << "a name stands before its domain";
    answerInbox(QStringList{});
    phone.urls.answer(phone.endpoints.mailHost + "/api/emails?inbox=" + mail().builder()->address(),
                      test::inboxJson({}));
    mail().builder()->create();
    phone.advance(std::chrono::seconds(1));
    look("mail-checking");
    phone.advance(std::chrono::seconds(3));
    look("mail-empty");
    phone.reachability.setOnline(false);
    mail().retry();
    look("mail-offline");
}

TEST_P(MailLayoutTest, Mails) {
    phone.store.setValue("selected_email", address);
    answerDemoInbox();
    openTab();
    phone.advance(std::chrono::seconds(3));
    show();
    look("mail-inbox");

    mail().tapMail(rowOf(QStringLiteral("Orl")));
    lookAtPage("mail-welcome");
    auto *page = window_->findChild<QQuickItem *>(QStringLiteral("mailView"));
    const QSizeF size = page->size();
    page->parentItem()->setProperty("hovered", QStringLiteral("https://www.bank.example.") +
                                                   QStringLiteral("long-host.").repeated(8) +
                                                   QStringLiteral("somebody.example/account"));
    look("mail-link");
    const QQuickItem *link = showing(*window_->contentItem(), QStringLiteral("https://www.bank.example."));
    ASSERT_NE(link, nullptr);
    EXPECT_LE(link->mapToScene(QPointF(0, link->height())).y(), window_->height()) << "it is out of sight";
    EXPECT_EQ(page->size(), size) << "the link moves away from under the pointer";
    mail().closeMail();
    mail().tapMail(rowOf(QStringLiteral("Maya Okafor")));
    lookAtPage("mail-attachments");
    mail().details()->tapAttachment(0);
    look("mail-attachment-picture");
    mail().closeMail();

    const auto subjects = test::texts(*mail().mails(), "subject");
    const auto newsletter = std::find_if(subjects.begin(), subjects.end(), [](const QString &s) {
        return s.startsWith(QStringLiteral("This month"));
    });
    mail().tapMail(int(newsletter - subjects.begin()));
    lookAtPage("mail-newsletter");
    mail().details()->togglePrivate();
    lookAtPage("mail-private");
    mail().details()->togglePrivate();
    mail().closeMail();
    look("mail-inbox-read");
}

/// As root, and not told to do without its sandbox, the web engine would end the program.
TEST_P(MailLayoutTest, WordsWhereTheWebEngineMayNotRun) {
    if (QFileInfo(QStringLiteral("/proc/self")).ownerId() != 0) GTEST_SKIP() << "root alone is refused";
    const QByteArray told = qgetenv("QTWEBENGINE_DISABLE_SANDBOX");
    qunsetenv("QTWEBENGINE_DISABLE_SANDBOX");
    phone.store.setValue("selected_email", address);
    answerDemoInbox();
    openTab();
    phone.advance(std::chrono::seconds(3));
    show();
    mail().tapMail(rowOf(QStringLiteral("Orl")));
    look("mail-words");
    EXPECT_EQ(window_->findChild<QQuickItem *>(QStringLiteral("mailView")), nullptr);
    EXPECT_NE(showing(*window_->contentItem(), QStringLiteral("does not run as root")), nullptr)
        << "nobody says why";
    EXPECT_TRUE(mail().details()->text().startsWith(QStringLiteral("Your inbox is ready\nMail to ")));
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", told);
}

INSTANTIATE_TEST_SUITE_P(Looks, MailLayoutTest, testing::ValuesIn(looks),
                         [](const auto &look) { return std::string(look.param.name); });

} // namespace

int main(int argc, char **argv) {
    QGuiApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
