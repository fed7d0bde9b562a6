#pragma once

#include <QColor>
#include <QImage>
#include <QQuickPaintedItem>

namespace orl {

/// Makes QR codes as pictures.
class GeneratorManager {
public:
    /// One pixel a module, with a margin of one module; dark modules in the foreground, the rest in the
    /// background. A text that no code can hold gives the symbol "xmark".
    QImage generateQRImage(const QString &text, const QColor &backgroundColor,
                           const QColor &foregroundColor) const;
};

/// A text as a QR code that is cut out of a rounded tile: what lies behind the tile shows through the dark
/// modules. An empty text leaves the tile whole.
class QRCodeGeneratorView : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString content READ content WRITE setContent NOTIFY changed)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)
    Q_PROPERTY(double size READ side WRITE setSide NOTIFY changed)
    Q_PROPERTY(double cornerRadius READ cornerRadius WRITE setCornerRadius NOTIFY changed)
public:
    static constexpr double margin = 2; ///< points between the tile's edge and the code

    explicit QRCodeGeneratorView(QQuickItem *parent = nullptr);

    const QString &content() const { return content_; }
    const QColor &color() const { return color_; }
    double side() const { return side_; } ///< of the tile, in points
    double cornerRadius() const { return cornerRadius_; }

    void setContent(const QString &content);
    void setColor(const QColor &color);
    void setSide(double side);
    void setCornerRadius(double radius);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void changed();

private:
    void redraw();

    QString content_;
    QColor color_ = Qt::white;
    double side_ = 0;
    double cornerRadius_ = 0;
};

} // namespace orl
