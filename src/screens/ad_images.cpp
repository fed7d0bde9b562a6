#include "screens/ad_images.h"

#include "ads/ad_face.h"

#include <QQmlEngine>
#include <QQuickImageProvider>

namespace orl {

namespace {

class AdImages : public QQuickImageProvider {
public:
    explicit AdImages(const AdPictures &pictures) : QQuickImageProvider(Image), pictures_(pictures) {}

    QImage requestImage(const QString &id, QSize *size, const QSize &) override {
        QImage image = QImage::fromData(pictures_.bytes(id));
        *size = image.size();
        return image;
    }

private:
    const AdPictures &pictures_;
};

} // namespace

void prepareAds(QQmlEngine &engine, Process &process) {
    engine.addImageProvider(QStringLiteral("ad"), new AdImages(process.shared<AdPictures>()));
}

} // namespace orl
