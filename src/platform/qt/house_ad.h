#pragma once

#include "platform/ad_service.h"
#include "platform/url_reader.h"

#include <QUrl>

namespace orl {

/// An ad as the ad endpoint gave it, its pictures included.
struct HouseAd {
    static constexpr std::chrono::seconds defaultReward{15};

    AdAssets assets;
    QUrl link;                                  ///< where a tap leads
    std::chrono::seconds reward{defaultReward}; ///< how long a rewarded one must be watched
};

/// Reads house ads from the ad endpoint and from nowhere else: "/units/UNIT/N.json" is the document of the
/// Nth ad that this run asks of a unit, and all pictures stand on the same host. What is sent says nothing
/// about the user.
///
/// The document is an object with the texts "headline" and "link" and, where the ad has them, "body",
/// "call_to_action", "advertiser", "store", "price", the number "star_rating", the paths "icon" and
/// "picture", "reward_seconds" (1 to 60) and "video": {"frames": 2 to 60, "frame_ms": 20 to 1000}, by which
/// the picture is a strip of frames. A link is an absolute http(s) URL or a path.
class HouseAdReader {
public:
    static constexpr qint64 mostDocumentBytes = qint64{64} * 1024;
    static constexpr qint64 mostPictureBytes = qint64{4} * 1024 * 1024;
    static constexpr qint64 mostPixels = 8'000'000;
    static constexpr std::chrono::seconds patience{10}; ///< without any byte arriving

    HouseAdReader(UrlReader &reader, QString adHost) : reader_(reader), adHost_(std::move(adHost)) {}

    /// Blocks until the whole ad is here. Garbage anywhere in it, a picture that cannot be drawn or one that
    /// is too large, is an error: there are no half ads.
    Result<HouseAd> read(const QString &unit, int number) const;

private:
    Result<QByteArray> fetch(const QString &path, qint64 mostBytes) const;
    Result<QByteArray> fetchPicture(const QString &path, int frames) const;

    UrlReader &reader_;
    QString adHost_;
};

} // namespace orl
