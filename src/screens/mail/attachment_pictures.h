#pragma once

#include "platform/queues.h"
#include "platform/url_reader.h"

#include <QCache>
#include <QImage>
#include <QQuickAsyncImageProvider>

#include <memory>
#include <mutex>

namespace orl {

/// "image://attachment/URL" (the URL percent-encoded): a picture that came with a mail, read through the
/// phone's own reader and no larger than a screen can show. The last ones are kept, up to `mostKept` bytes of
/// pixels in all. What cannot be read or is no picture is an error.
class AttachmentPictures : public QQuickAsyncImageProvider {
public:
    static constexpr int mostKept = 48 * 1024 * 1024;
    static constexpr int largestSide = 2048;     ///< of what is shown
    static constexpr int largestSource = 20'000; ///< a larger picture is not unpacked

    AttachmentPictures(GlobalQueue &queue, UrlReader &reader) : queue_(queue), reader_(reader) {}
    QQuickImageResponse *requestImageResponse(const QString &id, const QSize &requestedSize) override;

private:
    /// Shared with the workers, which may outlive the provider.
    struct Kept {
        std::mutex mutex;
        QCache<QString, QImage> images{mostKept};
    };

    GlobalQueue &queue_;
    UrlReader &reader_;
    std::shared_ptr<Kept> kept_ = std::make_shared<Kept>();
};

/// The picture, scaled down where it is larger than AttachmentPictures shows; null where the bytes are none.
QImage attachmentPicture(const QByteArray &encoded);

} // namespace orl
