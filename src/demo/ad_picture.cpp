#include "ad_picture.h"

#include "random.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

struct Shape {
    QSize frame;
    int frames;
};

std::optional<Shape> shapeNamed(const QString &name) {
    if (name == u"icon"_s) return Shape{{128, 128}, 1};
    if (name == u"wide"_s) return Shape{{1200, 628}, 1};
    if (name == u"tall"_s) return Shape{{720, 1280}, 1};
    if (name == u"film"_s) return Shape{{320, 180}, filmFrames};
    return std::nullopt;
}

QPainterPath hill(const QSizeF &size, double base, double swell, double phase) {
    constexpr int steps = 24;
    QPainterPath path(QPointF(0, size.height()));
    for (int i = 0; i <= steps; ++i) {
        const double x = double(i) / steps;
        const double y = base + swell * std::sin(phase + x * 5);
        path.lineTo(x * size.width(), y * size.height());
    }
    path.lineTo(size.width(), size.height());
    path.closeSubpath();
    return path;
}

/// `risen` goes from 0 to 1 in the course of a film.
void paintFrame(QPainter &painter, const QSizeF &size, const QString &name, double risen) {
    Random random(mix(31, name));
    const int hue = random.below(360);
    const double phase = random.below(628) / 100.0;
    QLinearGradient sky(0, 0, 0, size.height());
    sky.setColorAt(0, QColor::fromHsv(hue, 150, 190 + static_cast<int>(40 * risen)));
    sky.setColorAt(1, QColor::fromHsv((hue + 50) % 360, 90, 250));
    painter.fillRect(QRectF(QPointF(0, 0), size), sky);
    const double radius = std::min(size.width(), size.height()) / 7;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 244, 214));
    painter.drawEllipse(QPointF(size.width() * 0.68, size.height() * (0.75 - 0.45 * risen)), radius, radius);
    for (int i = 0; i < 3; ++i) {
        painter.setBrush(QColor::fromHsv((hue + 100 + 12 * i) % 360, 120 + 30 * i, 190 - 45 * i));
        painter.drawPath(hill(size, 0.62 + 0.12 * i, 0.06, phase + 1.7 * i));
    }
}

} // namespace

QByteArray adPicture(const QString &name, const QString &shapeName) {
    const std::optional<Shape> shape = shapeNamed(shapeName);
    if (!shape) return {};
    QImage image(shape->frame.width() * shape->frames, shape->frame.height(), QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int frame = 0; frame < shape->frames; ++frame) {
        painter.save();
        painter.translate(frame * shape->frame.width(), 0);
        painter.setClipRect(QRect(QPoint(0, 0), shape->frame));
        const double risen = shape->frames > 1 ? frame / (shape->frames - 1.0) : 1;
        paintFrame(painter, shape->frame, name, risen);
        painter.restore();
    }
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", 88);
    return bytes;
}

} // namespace orl::demo
