#pragma once

#include "mail/mail_privacy.h"
#include "mail/mail_service_view_model.h"
#include "screens/keyed_list_model.h"

#include <QtQml/qqmlregistration.h>

#include <memory>
#include <optional>

namespace orl {

/// One mail: its header, its page and its attachments. The mail is a copy from when it was opened; a body
/// that arrives later is there when it is opened again.
class MailDetailsView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by TMailView")
    Q_PROPERTY(QString subject READ subject NOTIFY mailChanged)
    Q_PROPERTY(QString sender READ sender NOTIFY mailChanged)
    Q_PROPERTY(QString senderAddress READ senderAddress NOTIFY mailChanged)
    Q_PROPERTY(QString time READ time NOTIFY mailChanged)
    Q_PROPERTY(bool hasContent READ hasContent NOTIFY mailChanged)
    Q_PROPERTY(orl::KeyedListModel *attachments READ attachments CONSTANT)
    Q_PROPERTY(QString imageToShowLink READ imageToShowLink NOTIFY imageToShowLinkChanged)
    Q_PROPERTY(QString page READ page NOTIFY pageChanged)
    Q_PROPERTY(QString text READ text NOTIFY pageChanged)
    Q_PROPERTY(bool isPrivate READ isPrivate NOTIFY pageChanged)
    Q_PROPERTY(bool withheld READ withheld NOTIFY pageChanged)
    Q_PROPERTY(int withheldPictures READ withheldPictures NOTIFY pageChanged)
public:
    static constexpr std::chrono::seconds readAfter{1};

    MailDetailsView(Process &process, MailServiceViewModel &service, QObject *parent = nullptr);

    /// Shows the mail that was opened, and marks it as read a second later whatever happens until then.
    void appear();
    /// Nothing of the mail goes on running.
    void disappear();

    const std::optional<MailInfo> &mailInfo() const { return mailInfo_; }
    QString subject() const { return mail().subject; }
    QString sender() const { return mail().sender.display_name; }
    QString senderAddress() const { return mail().sender.email; }
    QString time() const; ///< see shownMailTime
    bool hasContent() const { return mailInfo_ && mailInfo_->content; }

    /// Roles "name", "size" and "image" (a symbol).
    KeyedListModel *attachments() { return &attachments_; }
    /// Shows the picture of an attachment that is one by its name; others cannot be opened.
    Q_INVOKABLE void tapAttachment(int row);
    /// The attachment on screen; empty for none.
    const QString &imageToShowLink() const { return imageToShowLink_; }

    /// What the web view shows; empty until it is made.
    const QString &page() const { return page_; }
    /// Its words, for where there is no web view.
    QString text() const;

    /// See MailPrivacy. While pictures are withheld the page gets nothing from the network.
    bool isPrivate() const;
    bool withheld() const { return isPrivate() && !picturesShown_; }
    int withheldPictures() const { return withheld() ? pictures_ : 0; }
    Q_INVOKABLE void togglePrivate();
    Q_INVOKABLE void showPictures();

Q_SIGNALS:
    void mailChanged();
    void imageToShowLinkChanged();
    void pageChanged();

private:
    MailInfo mail() const { return mailInfo_.value_or(MailInfo()); }
    void setMail(const std::optional<MailInfo> &mail);
    void makePage();
    void setPage(const QString &page, int pictures);
    void setImageToShowLink(const QString &link);

    Process &process_;
    MailServiceViewModel &service_;
    MailPrivacy &privacy_;
    std::optional<MailInfo> mailInfo_;
    KeyedListModel attachments_;
    QString imageToShowLink_;
    QString page_;
    int pictures_ = 0;
    bool picturesShown_ = false;
    int pagesMade_ = 0; ///< a page that a later one has overtaken is dropped
};

} // namespace orl
