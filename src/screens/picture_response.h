#pragma once

#include <QImage>
#include <QQuickImageProvider>

#include <memory>
#include <mutex>

namespace orl {

class PictureResponse;

/// What a reading worker and the view share. The view may go while the worker still reads.
struct Delivery {
    std::mutex mutex;
    PictureResponse *response;
};

class PictureResponse : public QQuickImageResponse {
public:
    ~PictureResponse() override {
        const std::lock_guard lock(delivery->mutex);
        delivery->response = nullptr;
    }

    const std::shared_ptr<Delivery> delivery = std::make_shared<Delivery>();

    void finish(const QImage &image) {
        image_ = image;
        Q_EMIT finished();
    }

    QQuickTextureFactory *textureFactory() const override {
        return QQuickTextureFactory::textureFactoryForImage(image_);
    }
    QString errorString() const override {
        return image_.isNull() ? QStringLiteral("no picture") : QString();
    }

private:
    QImage image_;
};

inline void deliver(Delivery &delivery, const QImage &image) {
    const std::lock_guard lock(delivery.mutex);
    PictureResponse *response = delivery.response;
    if (!response) return;
    // On the response's own thread, which drops the call when the response goes first.
    QMetaObject::invokeMethod(
        response, [response, image] { response->finish(image); }, Qt::QueuedConnection);
}

} // namespace orl
