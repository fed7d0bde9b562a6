#include "sender_icon.h"

#include "random.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace orl::demo {

namespace {

constexpr int side = 128;
constexpr int cells = 5;

/// No letters: text needs fonts, and those a running application object.
void paintMark(QPainter &painter, Random &random) {
    const qreal cell = side / (cells + 2.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    for (int row = 0; row < cells; ++row) {
        for (int column = 0; column <= cells / 2; ++column) {
            if (random.oneIn(2)) continue;
            for (const int mirrored : {column, cells - 1 - column})
                painter.drawEllipse(QRectF((mirrored + 1) * cell, (row + 1) * cell, cell, cell));
        }
    }
}

} // namespace

QByteArray senderIcon(const QString &name) {
    Random random(mix(128, name));
    QImage image(side, side, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const int hue = random.below(360);
    QLinearGradient gradient(0, 0, side, side);
    gradient.setColorAt(0, QColor::fromHsv(hue, 170, 220));
    gradient.setColorAt(1, QColor::fromHsv((hue + 40) % 360, 220, 160));
    painter.fillRect(image.rect(), gradient);
    paintMark(painter, random);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", 88);
    return bytes;
}

} // namespace orl::demo
