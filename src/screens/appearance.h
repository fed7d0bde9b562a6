#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace orl {

/// How the user wants screens to look, everywhere on the device. Whoever knows the desktop writes it; Theme
/// reads it.
class Appearance : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool dark READ dark WRITE setDark NOTIFY darkChanged)
    Q_PROPERTY(double textScale READ textScale WRITE setTextScale NOTIFY textScaleChanged)
    Q_PROPERTY(bool reducedMotion READ reducedMotion WRITE setReducedMotion NOTIFY reducedMotionChanged)
    Q_PROPERTY(bool keyboardInUse READ keyboardInUse NOTIFY keyboardInUseChanged)
    Q_PROPERTY(bool rightToLeft READ rightToLeft WRITE setRightToLeft NOTIFY rightToLeftChanged)
public:
    static constexpr double smallestTextScale = 0.75;
    static constexpr double largestTextScale = 2.0;

    using QObject::QObject;

    bool dark() const { return dark_; }
    void setDark(bool dark);

    /// 1 is 100 %; kept between 75 and 200 %, the range that the layouts are made for.
    double textScale() const { return textScale_; }
    void setTextScale(double scale);

    /// Nothing may move but fades.
    bool reducedMotion() const { return reducedMotion_; }
    void setReducedMotion(bool reduced);

    /// Layouts are mirrored, as in the languages that are written so.
    bool rightToLeft() const { return rightToLeft_; }
    void setRightToLeft(bool mirrored);

    /// The user's last input came from the keyboard, so that its place must be seen.
    bool keyboardInUse() const { return keyboardInUse_; }

    /// Watches all input of the application from now on.
    void watchInput(QObject *application) { application->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void keyboardInUseChanged();
    void darkChanged();
    void textScaleChanged();
    void reducedMotionChanged();
    void rightToLeftChanged();

private:
    void setKeyboardInUse(bool inUse);

    bool keyboardInUse_ = false;
    bool dark_ = false;
    double textScale_ = 1;
    bool reducedMotion_ = false;
    bool rightToLeft_ = false;
};

} // namespace orl
