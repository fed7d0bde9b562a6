// Servers that ask who the user is. The engine asks the user only for a server that it trusts and where there
// is a certificate to give, so this program has a home of its own, whose keys hold both: an authority of the
// test's, and a certificate from it.
#include "mail_web_view.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QSslKey>
#include <QTemporaryDir>

using namespace orl;

namespace {

QString file(const char *name) {
    return ORL_CERTIFICATES + QLatin1Char('/') + QLatin1String(name);
}

QByteArray bytes(const char *name) {
    QFile opened(file(name));
    EXPECT_TRUE(opened.open(QIODevice::ReadOnly)) << name;
    return opened.readAll();
}

/// A home with the authority and the certificate among the user's keys.
bool makeHome(const QString &home) {
    const QString keys = home + QStringLiteral("/.pki/nssdb");
    const auto run = [&](const QString &program, const QStringList &arguments) {
        return QProcess::execute(program, QStringList{QStringLiteral("-d"), QStringLiteral("sql:") + keys} +
                                              arguments) == 0;
    };
    const QString none; // a password
    qputenv("HOME", home.toLocal8Bit());
    return QDir().mkpath(keys) &&
           run(QStringLiteral("certutil"), {QStringLiteral("-N"), QStringLiteral("--empty-password")}) &&
           run(QStringLiteral("certutil"),
               {QStringLiteral("-A"), QStringLiteral("-n"), QStringLiteral("authority"), QStringLiteral("-t"),
                QStringLiteral("C,,"), QStringLiteral("-i"), file("ca.pem")}) &&
           run(QStringLiteral("pk12util"), {QStringLiteral("-i"), file("client.p12"), QStringLiteral("-W"),
                                            none, QStringLiteral("-K"), none});
}

/// A server that asks; what happens to those who do not answer is the mode's.
QSslConfiguration asking(QSslSocket::PeerVerifyMode mode) {
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setPrivateKey(QSslKey(bytes("server.key"), QSsl::Ec));
    tls.setLocalCertificate(QSslCertificate(bytes("server.pem")));
    tls.setCaCertificates({QSslCertificate(bytes("ca.pem"))});
    tls.setPeerVerifyMode(mode);
    return tls;
}

class MailWebCertificatesTest : public MailWebTest {
protected:
    void SetUp() override {
        MailWebTest::SetUp();
        // Behind the page's own handler.
        QQmlComponent component(view_.engine());
        component.setData("import QtQml\nConnections { target: null; property list<string> offered;"
                          "function onSelectClientCertificate(selection) {"
                          "for (let i = 0; i < selection.certificates.length; ++i)"
                          "offered.push(selection.certificates[i].subject) } }",
                          QUrl());
        asked_.reset(component.create());
        ASSERT_NE(asked_, nullptr) << component.errorString().toStdString();
        asked_->setProperty("target", QVariant::fromValue(&web()));
    }

    QStringList offered() const { return asked_->property("offered").toStringList(); }
    bool loaded() const { return !mail_->property("loading").toBool(); }

    void go(const SpyServer &server) {
        mail_->setProperty("page", QStringLiteral("<title>mail</title><script>location = '%1'</script>")
                                       .arg(server.url(QStringLiteral("/page"))));
    }

private:
    std::unique_ptr<QObject> asked_;
};

TEST_F(MailWebCertificatesTest, AServerThatAsksWhoTheUserIsGetsNoAnswer) {
    const SpyServer server(asking(QSslSocket::QueryPeer));
    load(QStringLiteral("<img src='%1'>").arg(server.url(QStringLiteral("/picture"))));
    EXPECT_TRUE(waitUntil([&] { return server.paths.contains(QStringLiteral("/picture")); }));
    go(server);
    EXPECT_TRUE(waitUntil([&] { return title() == QStringLiteral("/page"); })) << title().toStdString();
    EXPECT_TRUE(server.certificates.isEmpty());
    EXPECT_TRUE(offered().contains(QStringLiteral("client"))) << "there was nothing to give";
}

TEST_F(MailWebCertificatesTest, AServerThatInsistsIsLeftAndTheViewGoesOn) {
    const SpyServer server(asking(QSslSocket::VerifyPeer));
    go(server);
    EXPECT_TRUE(waitUntil([&] { return !offered().isEmpty(); })) << "nobody was asked";
    EXPECT_TRUE(waitUntil([&] { return loaded(); }));
    EXPECT_EQ(server.paths, QStringList());
    EXPECT_EQ(server.certificates, QList<QSslCertificate>());
    ASSERT_NO_FATAL_FAILURE(knock());
}

} // namespace

int main(int argc, char **argv) {
    const QTemporaryDir home;
    if (!makeHome(home.path())) return 1;
    QGuiApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
