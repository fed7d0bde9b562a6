#include "screens/pictures.h"

#include "screens/picture_response.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>

#include <algorithm>

namespace orl {

namespace {

constexpr int mostPixels = 4096; ///< across; a larger picture is not decoded

QByteArray contents(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QImage drawn(const QByteArray &svg, const QSize &size, double roundness) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(svg);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(QRectF(QPointF(), QSizeF(size)), roundness, roundness);
    painter.setClipPath(shape);
    renderer.render(&painter, QRectF(QPointF(), QSizeF(size)));
    return image;
}

QSize orDefault(const QSize &requested, const QSize &fallback) {
    return requested.width() > 0 && requested.height() > 0 ? requested : fallback;
}

} // namespace

QImage SymbolImages::requestImage(const QString &id, QSize *size, const QSize &requestedSize) {
    const QString name = id.section(u'/', 0, 0);
    const QString colour = id.section(u'/', 1);
    QByteArray svg = contents(QStringLiteral(":/orl/symbols/%1.svg").arg(name));
    svg.replace("currentColor", colour.toLatin1());
    const QSize wanted = orDefault(requestedSize, {24, 24});
    if (size) *size = wanted;
    return drawn(svg, wanted, 0);
}

QImage FlagImages::requestImage(const QString &id, QSize *size, const QSize &requestedSize) {
    QByteArray svg = contents(QStringLiteral(":/orl/flags/%1.svg").arg(id));
    if (svg.isEmpty()) svg = contents(QStringLiteral(":/orl/flags/_generic.svg"));
    const QSize wanted = orDefault(requestedSize, {40, 30});
    if (size) *size = wanted;
    return drawn(svg, wanted, wanted.height() / 6.0);
}

QImage discOf(const QByteArray &encoded, int diameter) {
    QBuffer buffer;
    buffer.setData(encoded);
    QImageReader reader(&buffer);
    const QSize real = reader.size();
    if (!real.isValid() || std::max(real.width(), real.height()) > mostPixels) return {};
    reader.setScaledSize(real.scaled(diameter, diameter, Qt::KeepAspectRatioByExpanding));
    const QImage picture = reader.read();
    if (picture.isNull()) return {};

    QImage disc(diameter, diameter, QImage::Format_ARGB32_Premultiplied);
    disc.fill(Qt::transparent);
    QPainter painter(&disc);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addEllipse(disc.rect());
    painter.setClipPath(shape);
    painter.drawImage((diameter - picture.width()) / 2, (diameter - picture.height()) / 2, picture);
    return disc;
}

QQuickImageResponse *SenderPictures::requestImageResponse(const QString &id, const QSize &requestedSize) {
    auto *response = new PictureResponse;
    response->delivery->response = response;
    const QUrl url(QUrl::fromPercentEncoding(id.toLatin1()));
    const int diameter = orDefault(requestedSize, {80, 80}).width();
    queue_.post([delivery = response->delivery, url, diameter, &reader = reader_] {
        const Result<UrlResponse> answer = reader.read({url});
        const bool good = answer && answer.value().status < 300;
        deliver(*delivery, good ? discOf(answer.value().body, diameter) : QImage());
    });
    return response;
}

} // namespace orl
