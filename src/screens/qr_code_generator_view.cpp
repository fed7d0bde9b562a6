#include "screens/qr_code_generator_view.h"

#include "identity/qr_code.h"

#include <QFile>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>

#include <algorithm>

namespace orl {

namespace {

constexpr int quiet = 1; // modules

/// What stands where there is no code; empty where even that is missing.
QImage xmark() {
    constexpr int side = 32;
    QFile file(QStringLiteral(":/orl/symbols/xmark.svg"));
    if (!file.open(QIODevice::ReadOnly)) return {};
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(file.readAll());
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

/// A square whose edges bend into its corners without a break of curvature.
QPainterPath continuousTile(double side, double radius) {
    const double r = std::clamp(radius, 0.0, side / 2);
    const double reach = std::min(1.5286 * r, side / 2);         // where the bend begins
    const double pull = std::max(0.0, (2.3431 * r - reach) / 3); // the bend's middle is that of a circle
    QPainterPath path;
    path.moveTo(reach, 0);
    path.lineTo(side - reach, 0);
    path.cubicTo(side - pull, 0, side, pull, side, reach);
    path.lineTo(side, side - reach);
    path.cubicTo(side, side - pull, side - pull, side, side - reach, side);
    path.lineTo(reach, side);
    path.cubicTo(pull, side, 0, side - pull, 0, side - reach);
    path.lineTo(0, reach);
    path.cubicTo(0, pull, pull, 0, reach, 0);
    return path;
}

} // namespace

QImage GeneratorManager::generateQRImage(const QString &text, const QColor &backgroundColor,
                                         const QColor &foregroundColor) const {
    const std::optional<QrCode> code = qrCode(text);
    if (!code) return xmark();
    QImage image(code->side + 2 * quiet, code->side + 2 * quiet, QImage::Format_ARGB32_Premultiplied);
    image.fill(backgroundColor);
    for (int y = 0; y < code->side; ++y)
        for (int x = 0; x < code->side; ++x)
            if (code->isDark(x, y)) image.setPixelColor(x + quiet, y + quiet, foregroundColor);
    return image;
}

QRCodeGeneratorView::QRCodeGeneratorView(QQuickItem *parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

void QRCodeGeneratorView::setContent(const QString &content) {
    content_ = content;
    redraw();
}
void QRCodeGeneratorView::setColor(const QColor &color) {
    color_ = color;
    redraw();
}
void QRCodeGeneratorView::setSide(double side) {
    side_ = side;
    setImplicitSize(side, side);
    redraw();
}
void QRCodeGeneratorView::setCornerRadius(double radius) {
    cornerRadius_ = radius;
    redraw();
}

void QRCodeGeneratorView::redraw() {
    update();
    Q_EMIT changed();
}

void QRCodeGeneratorView::paint(QPainter *painter) {
    painter->fillPath(continuousTile(side_, cornerRadius_), color_);
    const double codeSide = side_ - 2 * margin;
    if (content_.isEmpty() || codeSide <= 0) return;
    // Not smoothed, so that modules stay sharp; what the code covers goes out of the tile.
    painter->setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter->drawImage(QRectF(margin, margin, codeSide, codeSide),
                       GeneratorManager().generateQRImage(content_, Qt::transparent, Qt::black));
}

} // namespace orl
