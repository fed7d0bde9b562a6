#pragma once

#include "platform/queues.h"
#include "platform/url_reader.h"

#include <QQuickAsyncImageProvider>

namespace orl {

/// "image://symbol/NAME/COLOUR": a symbol of one colour, drawn at the size that is asked for.
class SymbolImages : public QQuickImageProvider {
public:
    SymbolImages() : QQuickImageProvider(Image) {}
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

/// "image://flag/CODE": a country's flag with round corners; a neutral one for an unknown code.
class FlagImages : public QQuickImageProvider {
public:
    FlagImages() : QQuickImageProvider(Image) {}
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

/// "image://sender/URL" (the URL percent-encoded): a sender's picture cut to a disc, read through the phone's
/// own reader. A picture that cannot be read or decoded is an error, which the view covers with letters.
class SenderPictures : public QQuickAsyncImageProvider {
public:
    SenderPictures(GlobalQueue &queue, UrlReader &reader) : queue_(queue), reader_(reader) {}
    QQuickImageResponse *requestImageResponse(const QString &id, const QSize &requestedSize) override;

private:
    GlobalQueue &queue_;
    UrlReader &reader_;
};

/// The picture filled into a disc of this many pixels across; null where the bytes are no picture.
QImage discOf(const QByteArray &encoded, int diameter);

} // namespace orl
