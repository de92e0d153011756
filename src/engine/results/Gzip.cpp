#include "results/Gzip.h"

#include <libdeflate.h>

#include <algorithm>
#include <memory>

namespace selfsame {

namespace {
// The fastest level: the JSON of results still shrinks to a quarter or less, and saving
// large results stays well under a second.
constexpr int kLevel = 1;
constexpr qsizetype kMaximumRatio = 1032; // the most that deflate can shrink anything
} // namespace

QByteArray gzipCompress(const QByteArray &data)
{
    const std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)> compressor(
        libdeflate_alloc_compressor(kLevel), libdeflate_free_compressor);
    if (!compressor) return {};
    QByteArray out;
    out.resize(qsizetype(libdeflate_gzip_compress_bound(compressor.get(), std::size_t(data.size()))));
    const std::size_t size = libdeflate_gzip_compress(compressor.get(), data.constData(), std::size_t(data.size()),
                                                      out.data(), std::size_t(out.size()));
    out.resize(qsizetype(size));
    return out;
}

bool isGzip(const QByteArray &data)
{
    return data.size() >= 2 && quint8(data[0]) == 0x1f && quint8(data[1]) == 0x8b;
}

std::optional<QByteArray> gzipDecompress(const QByteArray &data)
{
    if (data.size() < 18) return std::nullopt; // header and trailer
    const std::unique_ptr<libdeflate_decompressor, decltype(&libdeflate_free_decompressor)> decompressor(
        libdeflate_alloc_decompressor(), libdeflate_free_decompressor);
    if (!decompressor) return std::nullopt;
    // The trailer holds the size modulo 4 GiB: start there, unless it is beyond what JSON
    // shrinks by (the end of a file cut short is no trailer), and grow if that was too little.
    const auto *end = reinterpret_cast<const quint8 *>(data.constData() + data.size());
    qsizetype size = qsizetype(end[-4]) | qsizetype(end[-3]) << 8 | qsizetype(end[-2]) << 16 | qsizetype(end[-1]) << 24;
    if (size > 64 * data.size()) size = 8 * data.size();
    size = std::max<qsizetype>(size, 1024);
    for (;;) {
        QByteArray out;
        out.resize(size);
        std::size_t actual = 0;
        const libdeflate_result result = libdeflate_gzip_decompress(
            decompressor.get(), data.constData(), std::size_t(data.size()), out.data(), std::size_t(out.size()), &actual);
        if (result == LIBDEFLATE_SUCCESS) {
            out.resize(qsizetype(actual));
            return out;
        }
        // A stream cut short reads as damaged; only a full buffer is worth another try.
        if (result != LIBDEFLATE_INSUFFICIENT_SPACE || size > kMaximumRatio * data.size()) return std::nullopt;
        size *= 4;
    }
}

} // namespace selfsame
