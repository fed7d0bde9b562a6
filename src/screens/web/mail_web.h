#pragma once

#include <QObject>
#include <QQuickWebEngineProfile>
#include <QString>
#include <QUrl>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineUrlSchemeHandler>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace orl {

/// What the web view of a mail is given and allowed: the page, by an address of its own that is served once,
/// and of the network http and https alone. Nothing is written to disk, no file can be read, and nothing in
/// a page can reach the program.
///
/// While pictures are withheld the mail's page gets nothing from the network at all. What the user goes to
/// by a tap on a link is a page like any other.
class MailWeb : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickWebEngineProfile *profile READ profile CONSTANT)
    Q_PROPERTY(QString page READ page WRITE setPage NOTIFY pageChanged)
    Q_PROPERTY(bool withheld READ withheld WRITE setWithheld NOTIFY withheldChanged)
    Q_PROPERTY(QUrl address READ address NOTIFY pageChanged)
    Q_PROPERTY(QString destination READ destination NOTIFY destinationChanged)
public:
    explicit MailWeb(QObject *parent = nullptr);
    ~MailWeb() override;

    /// Makes the address scheme known. Before the web engine starts.
    static void registerScheme();

    QQuickWebEngineProfile *profile() const { return profile_.get(); }

    const QString &page() const { return page_; }
    void setPage(const QString &page);

    bool withheld() const { return withheld_; }
    void setWithheld(bool withheld);

    /// Where the view finds the page; another one for each page.
    QUrl address() const;

    /// Where the link that was tapped really leads, redirects included; empty once the page is there, and
    /// while no link is followed.
    const QString &destination() const { return destination_; }

    /// Whether the view may go there. `type` is one of WebEngineView's navigation types.
    Q_INVOKABLE bool allows(const QUrl &url, int type, bool mainFrame);
    /// Where a link leads as it is to be shown: its host in the letters that the network sees, and without a
    /// name and password before it, as they may look like another host.
    Q_INVOKABLE static QString shown(const QUrl &url);
    Q_INVOKABLE void loadEnded();

Q_SIGNALS:
    void pageChanged();
    void withheldChanged();
    void destinationChanged();

private:
    class Pages;
    class Gate;

    void setDestination(const QString &destination);

    std::unique_ptr<QQuickWebEngineProfile> profile_;
    std::unique_ptr<Pages> pages_;
    std::unique_ptr<Gate> gate_;
    QString page_;
    QString destination_;
    bool withheld_ = false;
    bool left_ = false; ///< a link was followed, so what is shown is no mail any more
};

} // namespace orl
