// What a page may ask a browser for, and a mail's page is refused. Pages that the user was led to by a mail
// ask here, as they may ask for more than a mail: the loopback interface counts as a secure origin.
#include "mail_web_view.h"
#include "platform/qt/loopback_server.h"

#include <QDir>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QSslSocket>
#include <QTemporaryDir>
#include <QWebEngineDownloadRequest>

#include <memory>

using namespace orl;

namespace {

class MailWebRefusalsTest : public MailWebTest {
protected:
    static QString text(const QUrl &url) { return QString::fromLatin1(url.toEncoded()); }

    /// Gives the server another page and leads the view there.
    void visit(const QByteArray &markup) {
        const QByteArray number = QByteArray::number(++visits_);
        const QString path = QStringLiteral("/page") + QString::fromLatin1(number);
        host.page(path, "<title>" + number + "</title>" + markup, "Content-Type: text/html\r\n");
        leave(host.url(path));
        ASSERT_TRUE(waitUntil([&] {
            return mail_->property("url").toUrl().path() == path && !mail_->property("loading").toBool() &&
                   !title().isEmpty();
        }));
    }

    /// Shows a mail that goes elsewhere by itself.
    void leave(const QUrl &url) {
        mail_->setProperty(
            "page", QStringLiteral("<title>mail</title><script>location = '%1'</script>").arg(text(url)));
    }

    /// What a page says by its title, of that form.
    QString said() {
        std::ignore = waitUntil([&] { return title().startsWith(QStringLiteral("says ")); });
        return title().mid(5);
    }

    /// A request that reaches the server after all others that were made until now.
    void knockAt(LoopbackServer &server) {
        QSslSocket socket;
        socket.setPeerVerifyMode(QSslSocket::VerifyNone);
        const QUrl url = server.url(QStringLiteral("/last"));
        socket.connectToHostEncrypted(url.host(), quint16(url.port()));
        ASSERT_TRUE(socket.waitForEncrypted(30000)) << socket.errorString().toStdString();
        socket.write("GET /last HTTP/1.1\r\n\r\n");
        ASSERT_TRUE(socket.waitForReadyRead(30000)) << socket.errorString().toStdString();
    }

    LoopbackServer host;

private:
    int visits_ = 0;
};

TEST_F(MailWebRefusalsTest, APageOfAHostThatNobodyVouchesForIsNotLoaded) {
    LoopbackServer stranger(true);
    for (const char *path : {"/page", "/picture", "/script", "/fetched"})
        stranger.page(QString::fromLatin1(path), "<title>stranger</title>", "Content-Type: text/html\r\n");
    QSignalSpy refused(&web(), SIGNAL(certificateError(QWebEngineCertificateError)));

    load(QStringLiteral("<title>mail</title><img src='%1'><script src='%2'></script>"
                        "<script>fetch('%3').then(() => document.title = 'says got it', "
                        "() => document.title = 'says refused')</script>")
             .arg(text(stranger.url(QStringLiteral("/picture"))),
                  text(stranger.url(QStringLiteral("/script"))),
                  text(stranger.url(QStringLiteral("/fetched")))));
    EXPECT_EQ(said(), QStringLiteral("refused"));

    leave(stranger.url(QStringLiteral("/page")));
    EXPECT_TRUE(waitUntil([&] { return !refused.isEmpty(); })) << "nobody was asked";
    EXPECT_TRUE(waitUntil([&] { return !mail_->property("loading").toBool(); }));
    EXPECT_NE(title(), QStringLiteral("stranger"));

    ASSERT_NO_FATAL_FAILURE(knockAt(stranger));
    ASSERT_EQ(stranger.requests(1).size(), 1);
    EXPECT_TRUE(stranger.requests(1).front().startsWith("GET /last")) << "something was sent";
}

TEST_F(MailWebRefusalsTest, NothingIsDownloaded) {
    const QTemporaryDir folder;
    QObject *profile = web().property("profile").value<QObject *>();
    ASSERT_NE(profile, nullptr);
    profile->setProperty("downloadPath", folder.path());
    // Behind the page's own handler. What has not been accepted by then is not begun.
    QQmlComponent component(view_.engine());
    component.setData("import QtQml\nConnections { target: null; property string states;"
                      "function onDownloadRequested(download) { states += download.state } }",
                      QUrl());
    const std::unique_ptr<QObject> asked(component.create());
    ASSERT_NE(asked, nullptr) << component.errorString().toStdString();
    asked->setProperty("target", QVariant::fromValue(profile));
    const QString cancelled = QString::number(QWebEngineDownloadRequest::DownloadCancelled);
    host.page(QStringLiteral("/file"), QByteArray(64, 'x'),
              "Content-Type: application/octet-stream\r\nContent-Disposition: attachment\r\n");
    host.page(QStringLiteral("/named"), "words", "Content-Type: text/plain\r\n");
    ASSERT_NO_FATAL_FAILURE(visit("x"));
    struct Case {
        const char *name, *script;
    };
    for (const Case &c :
         {Case{"a file", "location = '/file'"},
          Case{"a link that names a file", "const a = document.createElement('a'); a.href = '/named';"
                                           "a.download = 'named.txt'; a.click()"},
          Case{"a file of the page's own", "const a = document.createElement('a');"
                                           "a.href = URL.createObjectURL(new Blob(['words']));"
                                           "a.download = 'own.txt'; a.click()"}}) {
        SCOPED_TRACE(c.name);
        asked->setProperty("states", QString());
        ASSERT_NO_FATAL_FAILURE(visit(QByteArray("<script>") + c.script + "</script>"));
        ASSERT_TRUE(waitUntil([&] { return !asked->property("states").toString().isEmpty(); }))
            << "nobody was asked";
        EXPECT_EQ(asked->property("states").toString(), cancelled);
        EXPECT_TRUE(QDir(folder.path()).isEmpty());
    }
}

/// A permission that nobody answers stays open, so that what was said is an answer.
TEST_F(MailWebRefusalsTest, NoPermissionIsGiven) {
    struct Case {
        const char *name, *script, *said;
    };
    const Case cases[] = {
        {"place",
         "navigator.geolocation.getCurrentPosition(() => say('found'), e => say(e.code == "
         "e.PERMISSION_DENIED))",
         "true"},
        {"notifications", "Notification.requestPermission().then(say)", "denied"},
        {"microphone",
         "navigator.mediaDevices.getUserMedia({audio: true}).then(() => say('heard'), e => say(e.name))",
         "NotAllowedError"},
        {"camera",
         "navigator.mediaDevices.getUserMedia({video: true}).then(() => say('seen'), e => say(e.name))",
         "NotAllowedError"},
        {"screen",
         "navigator.mediaDevices.getDisplayMedia({video: true}).then(() => say('seen'), e => say('refused'))",
         "refused"},
        {"clipboard", "navigator.clipboard.readText().then(() => say('read'), e => say(e.name))",
         "NotAllowedError"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        ASSERT_NO_FATAL_FAILURE(visit(QByteArray("<script>const say = x => document.title = 'says ' + x;") +
                                      c.script + "</script>"));
        EXPECT_EQ(said().toStdString(), c.said);
    }
}

/// A browser opens a window for a real tap. Here what the tap wanted is shown in place, if it is a page of
/// the web, and the page goes on living either way.
TEST_F(MailWebRefusalsTest, ATapOpensNoWindowAndLeavesThePageAlive) {
    const auto lives = [](const QByteArray &name) {
        return "<script>let n = 0; setInterval(() => document.title = 'says " + name +
               " ' + n++, 10)</script>";
    };
    for (const char *path : {"/window", "/window?"}) // as a form writes it
        host.page(QString::fromLatin1(path), lives("window"), "Content-Type: text/html\r\n");
    const QByteArray whole = " style='position:fixed;inset:0;width:100%;height:100%'";
    const auto onTap = [&](const char *script) { return "<p" + whole + " onclick=\"" + script + "\">"; };
    struct Case {
        const char *name;
        QByteArray page;
        bool follows;
    };
    const Case cases[] = {
        {"a script", onTap("window.open('/window')"), true},
        {"a script that hides who opened it", onTap("window.open('/window', '', 'noopener')"), true},
        {"a script of a frame",
         "<iframe" + whole + " srcdoc=\"<body style=height:100vh onclick=window.open('/window')>\"></iframe>",
         true},
        {"a link", "<a" + whole + " href='/window' target=_blank>x</a>", true},
        {"a form", "<form action='/window' target=_blank><button" + whole + ">x</button></form>", true},
        {"a script that names no page", onTap("window.kept = window.open()"), false},
        {"a script that writes into it",
         onTap("window.open().document.write('<script>opener.n = 0</script>')"), false},
        {"a script that closes it", onTap("window.open().close()"), false},
        {"a link to a script", "<a" + whole + " href='javascript:1' target=_blank>x</a>", false},
    };
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view_));
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        ASSERT_NO_FATAL_FAILURE(visit(c.page + lives("page")));
        QSignalSpy asked(&web(), SIGNAL(newWindowRequested(QQuickWebEngineNewWindowRequest *)));
        ASSERT_TRUE(tap([&] { return !asked.isEmpty(); })) << "nobody was asked";
        const QString who = QLatin1String(c.follows ? "window" : "page");
        EXPECT_TRUE(waitUntil([&] { return said().startsWith(who); })) << said().toStdString();
        for (int turns = 0; turns < 3; ++turns) {
            const QString now = said();
            EXPECT_TRUE(waitUntil([&] { return said() != now; })) << "its scripts stand still";
            EXPECT_TRUE(said().startsWith(who)) << said().toStdString();
        }
        EXPECT_EQ(QGuiApplication::allWindows(), QWindowList{&view_});
    }
    ASSERT_NO_FATAL_FAILURE(visit("another page of that host"));
}

} // namespace
