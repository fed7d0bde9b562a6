#include "platform/qt/unpack.h"

#include <zlib.h>

namespace orl {

namespace {

constexpr int gzipOrZlib = 32 + MAX_WBITS; // zlib tells the two apart by their first bytes
constexpr qsizetype piece = qsizetype{64} * 1024;

struct Stream : z_stream {
    Stream() : z_stream{} { inflateInit2(this, gzipOrZlib); }
    ~Stream() { inflateEnd(this); }
    Stream(const Stream &) = delete;
    Stream &operator=(const Stream &) = delete;

    /// Appends up to a piece of what comes next.
    int next(QByteArray &body) {
        const qsizetype before = body.size();
        body.resize(before + piece);
        next_out = reinterpret_cast<Bytef *>(body.data() + before);
        avail_out = static_cast<uInt>(piece);
        const int code = inflate(this, Z_NO_FLUSH);
        body.chop(static_cast<qsizetype>(avail_out));
        return code;
    }

    /// A gzip body may consist of several parts, one after the other.
    bool anotherPartFollows() const { return avail_in >= 2 && next_in[0] == 0x1f && next_in[1] == 0x8b; }
};

} // namespace

Result<QByteArray> unpack(const QByteArray &packed, qint64 limit) {
    QByteArray body;
    Stream stream;
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(packed.constData())); // zlib only reads it
    stream.avail_in = static_cast<uInt>(packed.size());
    while (true) {
        const int code = stream.next(body);
        if (body.size() > limit) return Error{QStringLiteral("The body is larger than %1 bytes.").arg(limit)};
        if (code == Z_OK) continue;
        if (code != Z_STREAM_END)
            return Error{QStringLiteral("The compressed body is damaged or breaks off.")};
        if (!stream.anotherPartFollows()) return body;
        inflateReset(&stream);
    }
}

} // namespace orl
