#include "screens/mail/mail_details_view.h"

#include "mail/mail_page.h"
#include "platform/queues.h"
#include "screens/mail/mail_rows.h"

#include <QPointer>

namespace orl {

namespace {

bool isPicture(const QString &fileName) {
    const QString name = fileName.toLower();
    return name.contains(QLatin1String(".png")) || name.contains(QLatin1String(".jpg")) ||
           name.contains(QLatin1String(".jpeg"));
}

} // namespace

MailDetailsView::MailDetailsView(Process &process, MailServiceViewModel &service, QObject *parent)
    : QObject(parent),
      process_(process),
      service_(service),
      privacy_(process.shared<MailPrivacy>()),
      attachments_({"name", "size", "image"}) {
    connect(&privacy_, &MailPrivacy::isOnChanged, this, &MailDetailsView::makePage);
}

void MailDetailsView::appear() {
    picturesShown_ = false;
    setMail(service_.openedMail());
    process_.platform().mainQueue.postAfter(readAfter, [service = QPointer(&service_), mail = mailInfo_] {
        if (service && mail && !mail->read) service->markRead(mail->id);
    });
}

void MailDetailsView::disappear() {
    setMail(std::nullopt);
}

void MailDetailsView::setMail(const std::optional<MailInfo> &mail) {
    mailInfo_ = mail;
    setImageToShowLink({});
    QList<KeyedListModel::Row> rows;
    for (const MailAttachment &file : this->mail().attachments.value_or(QList<MailAttachment>())) {
        const char *image = isPicture(file.file_name) ? "photo" : "doc";
        rows << KeyedListModel::Row{file.id, {file.file_name, file.size_for_human, QLatin1String(image)}};
    }
    attachments_.setRows(rows);
    Q_EMIT mailChanged();
    makePage();
}

QString MailDetailsView::time() const {
    return mailInfo_ ? shownMailTime(process_.platform(), *mailInfo_) : QString();
}

void MailDetailsView::tapAttachment(int row) {
    const QList<MailAttachment> files = mail().attachments.value_or(QList<MailAttachment>());
    if (row < 0 || row >= files.size() || !isPicture(files[row].file_name)) return;
    setImageToShowLink(attachmentUrl(process_.platform().endpoints, files[row]));
}

void MailDetailsView::setImageToShowLink(const QString &link) {
    if (link == imageToShowLink_) return;
    imageToShowLink_ = link;
    Q_EMIT imageToShowLinkChanged();
}

QString MailDetailsView::text() const {
    return mailText(page_);
}

bool MailDetailsView::isPrivate() const {
    return privacy_.isOn();
}

void MailDetailsView::togglePrivate() {
    picturesShown_ = false;
    privacy_.setOn(!privacy_.isOn());
}

void MailDetailsView::showPictures() {
    picturesShown_ = true;
    makePage();
}

/// A mail may be large, so it is cleaned on a worker.
void MailDetailsView::makePage() {
    const int number = ++pagesMade_;
    if (!hasContent() || !isPrivate()) return setPage(mail().content.value_or(QString()), 0);
    setPage({}, 0);
    const Platform &platform = process_.platform();
    platform.globalQueue.post([&main = platform.mainQueue, page = *mailInfo_->content, show = picturesShown_,
                               self = QPointer(this), number] {
        main.post([self, number, made = privateMail(page, show)] {
            if (self && self->pagesMade_ == number) self->setPage(made.page, made.pictures);
        });
    });
}

void MailDetailsView::setPage(const QString &page, int pictures) {
    page_ = page;
    pictures_ = pictures;
    Q_EMIT pageChanged();
}

} // namespace orl
