#pragma once

#include "ads/ad_face.h"
#include "platform/qt/ad_stage.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace orl {

/// The ad that stands over everything else, as a screen shows it.
class FullScreenAdView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool isUp READ isUp NOTIFY changed)
    Q_PROPERTY(orl::AdFace face READ face NOTIFY changed)
    Q_PROPERTY(QString reward READ reward NOTIFY changed)
    Q_PROPERTY(QString closeTitle READ closeTitle CONSTANT)
public:
    /// Both must outlive it.
    FullScreenAdView(Process &process, AdStage &stage, QObject *parent = nullptr);

    bool isUp() const { return stage_.isUp(); }
    const AdFace &face() const { return face_; }
    /// How far the reward is; empty where there is none to earn.
    QString reward() const;
    static QString closeTitle() { return QStringLiteral("Close"); }

    Q_INVOKABLE void close() { stage_.close(); }
    Q_INVOKABLE void tap() { stage_.tap(); }

Q_SIGNALS:
    void changed();

private:
    void follow();

    Process &process_;
    AdStage &stage_;
    AdFace face_;
    bool up_ = false;
};

} // namespace orl
