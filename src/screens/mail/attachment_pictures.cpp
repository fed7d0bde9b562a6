#include "screens/mail/attachment_pictures.h"

#include "screens/picture_response.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>

namespace orl {

QImage attachmentPicture(const QByteArray &encoded) {
    QBuffer buffer;
    buffer.setData(encoded);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    const int longest = std::max(size.width(), size.height());
    if (!size.isValid() || longest > AttachmentPictures::largestSource) return {};
    const QSize most(AttachmentPictures::largestSide, AttachmentPictures::largestSide);
    if (longest > AttachmentPictures::largestSide)
        reader.setScaledSize(size.scaled(most, Qt::KeepAspectRatio));
    return reader.read();
}

QQuickImageResponse *AttachmentPictures::requestImageResponse(const QString &id, const QSize &) {
    auto *response = new PictureResponse;
    response->delivery->response = response;
    const QString link = QUrl::fromPercentEncoding(id.toLatin1());
    queue_.post([delivery = response->delivery, link, kept = kept_, &reader = reader_] {
        {
            const std::lock_guard lock(kept->mutex);
            if (const QImage *known = kept->images.object(link)) return deliver(*delivery, *known);
        }
        const auto url = makeUrl(link);
        const auto answer = url ? reader.read({.url = *url}) : Result<UrlResponse>(Error{});
        const bool good = answer && answer.value().status < 300;
        const QImage image = good ? attachmentPicture(answer.value().body) : QImage();
        if (!image.isNull()) {
            const std::lock_guard lock(kept->mutex);
            kept->images.insert(link, new QImage(image), image.sizeInBytes());
        }
        deliver(*delivery, image);
    });
    return response;
}

} // namespace orl
