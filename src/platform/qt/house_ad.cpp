#include "platform/qt/house_ad.h"

#include "platform/json.h"

#include <QBuffer>
#include <QImageReader>

namespace orl {

namespace {

constexpr qint64 mostFrames = 60;
constexpr qint64 leastFrameMs = 20;
constexpr qint64 mostFrameMs = 1000;
constexpr qint64 mostRewardSeconds = 60;

struct Video {
    qint64 frames = 1;
    qint64 frameMs = 0;
};

/// The document, with paths where an ad has pictures.
struct Document {
    AdAssets texts;
    QString link;
    QString icon;
    QString picture;
    Video video;
    qint64 reward = 0;
};

qint64 within(JsonDecoder &json, const char *key, qint64 value, qint64 least, qint64 most) {
    if (value < least || value > most)
        json.fail(key, QStringLiteral("from %1 to %2 is expected").arg(least).arg(most));
    return value;
}

/// A path on the ad endpoint. "//host/x" would be another host.
QString path(JsonDecoder &json, const char *key) {
    const QString given = json.optionalText(key).value_or(QString());
    const bool isPath = given.startsWith(QLatin1Char('/')) && !given.startsWith(QLatin1String("//"));
    if (!given.isEmpty() && !isPath) json.fail(key, QStringLiteral("a path is expected"));
    return given;
}

QString text(JsonDecoder &json, const char *key) {
    return json.optionalText(key).value_or(QString());
}

Document decode(JsonDecoder &json) {
    Document document;
    document.texts.headline = json.text("headline");
    document.texts.body = text(json, "body");
    document.texts.callToAction = text(json, "call_to_action");
    document.texts.advertiser = text(json, "advertiser");
    document.texts.store = text(json, "store");
    document.texts.price = text(json, "price");
    document.texts.starRating = json.optionalReal("star_rating");
    document.link = json.text("link");
    document.icon = path(json, "icon");
    document.picture = path(json, "picture");
    document.video =
        json.optionalObject("video",
                            [](JsonDecoder &video) {
                                return Video{within(video, "frames", video.integer("frames"), 2, mostFrames),
                                             within(video, "frame_ms", video.integer("frame_ms"),
                                                    leastFrameMs, mostFrameMs)};
                            })
            .value_or(Video{});
    document.reward = within(json, "reward_seconds",
                             json.optionalInteger("reward_seconds").value_or(HouseAd::defaultReward.count()),
                             1, mostRewardSeconds);
    return document;
}

} // namespace

Result<HouseAd> HouseAdReader::read(const QString &unit, int number) const {
    const Result<QByteArray> bytes =
        fetch(QStringLiteral("/units/%1/%2.json").arg(unit).arg(number), mostDocumentBytes);
    if (!bytes) return bytes.error();
    const Result<Document> document = decodeJson(bytes.value(), decode);
    if (!document) return document.error();
    const Document &given = document.value();

    HouseAd ad{given.texts, {}, std::chrono::seconds(given.reward)};
    const bool onHost =
        given.link.startsWith(QLatin1Char('/')) && !given.link.startsWith(QLatin1String("//"));
    const std::optional<QUrl> link = makeUrl(onHost ? adHost_ + given.link : given.link);
    if (!link) return Error{QStringLiteral("link: \"%1\" is no http or https URL").arg(given.link)};
    ad.link = *link;
    const Result<QByteArray> icon = fetchPicture(given.icon, 1);
    if (!icon) return icon.error();
    ad.assets.icon = icon.value();
    const int frames = static_cast<int>(given.video.frames);
    const Result<QByteArray> picture = fetchPicture(given.picture, frames);
    if (!picture) return picture.error();
    if (!picture.value().isEmpty())
        ad.assets.media = {picture.value(), frames, std::chrono::milliseconds(given.video.frameMs)};
    return ad;
}

Result<QByteArray> HouseAdReader::fetch(const QString &path, qint64 mostBytes) const {
    const std::optional<QUrl> url = makeUrl(adHost_ + path);
    if (!url) return Error{QStringLiteral("\"%1\" makes no URL").arg(adHost_ + path)};
    UrlRequest request{.url = *url, .ignoreCache = true, .timeout = patience};
    request.sameOrigin = true;
    request.mostBytes = mostBytes;
    Result<UrlResponse> response = reader_.read(request);
    if (!response) return response.error();
    constexpr int ok = 200;
    if (response.value().status != ok)
        return Error{QStringLiteral("%1 answered with status %2").arg(path).arg(response.value().status)};
    return std::move(response).value().body;
}

Result<QByteArray> HouseAdReader::fetchPicture(const QString &path, int frames) const {
    if (path.isEmpty()) return QByteArray();
    Result<QByteArray> bytes = fetch(path, mostPictureBytes);
    if (!bytes) return bytes;
    QBuffer buffer;
    buffer.setData(bytes.value());
    QImageReader image(&buffer);
    // Nothing else: other formats that are installed, such as drawings, may cost any amount of work.
    const bool known = image.format() == "png" || image.format() == "jpeg";
    const QSize size = image.size();
    const qint64 pixels = qint64{size.width()} * size.height();
    if (!known || !size.isValid() || pixels > mostPixels || size.width() % frames != 0)
        return Error{QStringLiteral("%1 is no picture that an ad may have").arg(path)};
    // Decoded once here, so that nothing is shown of an ad whose picture breaks off.
    if (image.read().isNull()) return Error{QStringLiteral("%1: %2").arg(path, image.errorString())};
    return bytes;
}

} // namespace orl
