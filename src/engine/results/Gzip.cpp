#include "results/Gzip.h"

#include <zlib.h>

#include <algorithm>

namespace selfsame {

namespace {
constexpr int kGzipWindow = 15 + 16; // the largest window, with a gzip header and trailer
constexpr qsizetype kChunk = 1 << 20;
} // namespace

QByteArray gzipCompress(const QByteArray &data)
{
    z_stream stream{};
    // The fastest level: JSON of results shrinks by about ten times even so, and saving
    // stays well under a second for large results.
    if (deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, kGzipWindow, 8, Z_DEFAULT_STRATEGY) != Z_OK) return {};
    QByteArray out;
    out.resize(qsizetype(deflateBound(&stream, uLong(data.size()))));
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(data.constData()));
    stream.avail_in = uInt(data.size());
    stream.next_out = reinterpret_cast<Bytef *>(out.data());
    stream.avail_out = uInt(out.size());
    const int result = deflate(&stream, Z_FINISH);
    out.resize(qsizetype(stream.total_out));
    deflateEnd(&stream);
    return result == Z_STREAM_END ? out : QByteArray();
}

bool isGzip(const QByteArray &data)
{
    return data.size() >= 2 && quint8(data[0]) == 0x1f && quint8(data[1]) == 0x8b;
}

std::optional<QByteArray> gzipDecompress(const QByteArray &data)
{
    z_stream stream{};
    if (inflateInit2(&stream, kGzipWindow) != Z_OK) return std::nullopt;
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(data.constData()));
    stream.avail_in = uInt(data.size());
    QByteArray out;
    int result = Z_OK;
    while (result == Z_OK) {
        const qsizetype done = out.size();
        out.resize(done + std::max(kChunk, done)); // doubling: few copies of a large result
        stream.next_out = reinterpret_cast<Bytef *>(out.data() + done);
        stream.avail_out = uInt(out.size() - done);
        result = inflate(&stream, Z_NO_FLUSH);
        out.resize(qsizetype(stream.total_out));
    }
    inflateEnd(&stream);
    if (result != Z_STREAM_END) return std::nullopt;
    return out;
}

} // namespace selfsame
