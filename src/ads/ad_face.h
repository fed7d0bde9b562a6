#pragma once

#include "platform/ad_service.h"
#include "platform/process.h"

#include <QObject>

#include <map>
#include <mutex>

namespace orl {

/// The pictures of the ads that are held, for whom draws them: by keys, as screens name pictures by texts.
/// Usable from any thread; shared by the Process.
class AdPictures {
public:
    /// A picture stays as long as somebody holds its key.
    using Key = std::shared_ptr<const QString>;

    explicit AdPictures(Process &) {}

    /// Null for no bytes.
    Key keep(const QByteArray &bytes);

    /// Empty where nobody holds the key any more.
    QByteArray bytes(const QString &key) const;

    std::size_t held() const;

private:
    struct Entry {
        std::weak_ptr<const QString> key;
        QByteArray bytes;
    };

    mutable std::mutex mutex_;
    std::map<QString, Entry> entries_;
    quint64 next_ = 0;
};

/// An ad as a screen draws it. Texts that it does not have are empty; its places are to be hidden.
struct AdFace {
    Q_GADGET
    Q_PROPERTY(QString headline READ headline CONSTANT)
    Q_PROPERTY(QString body READ body CONSTANT)
    Q_PROPERTY(QString callToAction READ callToAction CONSTANT)
    Q_PROPERTY(QString advertiser READ advertiser CONSTANT)
    Q_PROPERTY(QString store READ store CONSTANT)
    Q_PROPERTY(QString price READ price CONSTANT)
    Q_PROPERTY(QString stars READ stars CONSTANT)
    Q_PROPERTY(QString icon READ icon CONSTANT)
    Q_PROPERTY(QString media READ media CONSTANT)
    Q_PROPERTY(bool hasVideoContent READ hasVideoContent CONSTANT)
    Q_PROPERTY(int frames READ frames CONSTANT)
    Q_PROPERTY(int frameMilliseconds READ frameMilliseconds CONSTANT)
public:
    AdFace() = default;
    AdFace(Process &process, const AdAssets &assets);

    QString headline() const { return texts_.headline; }
    QString body() const { return texts_.body; }
    QString callToAction() const { return texts_.callToAction; }
    QString advertiser() const { return texts_.advertiser; }
    QString store() const { return texts_.store; }
    QString price() const { return texts_.price; }
    QString stars() const;                                         ///< the name of the star picture
    QString icon() const { return icon_ ? *icon_ : QString(); }    ///< a key of AdPictures
    QString media() const { return media_ ? *media_ : QString(); } ///< likewise
    bool hasVideoContent() const { return texts_.media.hasVideoContent(); }
    int frames() const { return texts_.media.frames; } ///< side by side in the media's picture
    int frameMilliseconds() const { return static_cast<int>(texts_.media.frameTime.count()); }

private:
    AdAssets texts_; ///< without the bytes of the pictures
    AdPictures::Key icon_;
    AdPictures::Key media_;
};

} // namespace orl
