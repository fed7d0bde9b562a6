#pragma once

#include "spy_server.h"
#include "support/wait_until.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>
#include <QTimer>

#include <functional>
#include <gtest/gtest.h>
#include <tuple>
#include <utility>

namespace orl {

/// The web view as mails use it, and a server that hears whatever it lets out.
class MailWebTest : public testing::Test {
protected:
    void SetUp() override {
        view_.engine()->addImportPath(qEnvironmentVariable("ORL_WEB_DIR", ORL_WEB_DIR));
        component_.setData("import Orl.Web\nMailPage { anchors.fill: parent }", QUrl());
        open();
        view_.resize(390, 600);
        view_.show();
    }

    void TearDown() override { close(); }

    void open() {
        mail_ = qobject_cast<QQuickItem *>(component_.create());
        ASSERT_NE(mail_, nullptr) << component_.errorString().toStdString();
        mail_->setParentItem(view_.contentItem());
    }
    void close() { delete std::exchange(mail_, nullptr); }

    /// Taps the page until it has noticed: a tap before the page has been drawn finds nothing under it.
    bool tap(const std::function<bool()> &noticed) {
        QTimer again;
        again.callOnTimeout([this] { QTest::mouseClick(&view_, Qt::LeftButton, {}, QPoint(100, 100)); });
        again.start(100);
        return waitUntil(noticed);
    }

    QObject &web() const { return *mail_->findChild<QObject *>(QStringLiteral("mailView")); }

    /// Shows a page and waits until it has loaded.
    void load(const QString &page, bool withheld = false) {
        mail_->setProperty("withheld", withheld);
        mail_->setProperty("page", page);
        ASSERT_TRUE(waitUntil([&] { return mail_->property("ready").toBool(); }))
            << page.left(200).toStdString();
    }

    QString title() const { return web().property("title").toString(); }

    /// Runs a script in a page that may have scripts; what it says by its title.
    QString say(const QString &script) {
        load(QStringLiteral("<script>%1</script>").arg(script));
        std::ignore = waitUntil([&] { return title().startsWith(QStringLiteral("says ")); });
        return title().mid(5);
    }

    QString leak(const char *markup) const {
        return QString::fromUtf8(markup).replace(QStringLiteral("spy.example"), spy.host());
    }

    /// A request that comes after all others that were made until now.
    void knock() {
        load(QStringLiteral("<img src='%1'>").arg(spy.url(QStringLiteral("/last"))));
        ASSERT_TRUE(waitUntil([&] { return spy.paths.contains(QStringLiteral("/last")); }));
    }

    SpyServer spy;
    QQuickView view_;
    QQmlComponent component_{view_.engine()};
    QQuickItem *mail_ = nullptr;
};

} // namespace orl
