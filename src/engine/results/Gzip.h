#pragma once

#include <QByteArray>

#include <optional>

namespace selfsame {

// gzip streams (RFC 1952), so that a saved file can also be read with zcat.
QByteArray gzipCompress(const QByteArray &data);
bool isGzip(const QByteArray &data);
// Nothing when the stream is damaged or ends before its end.
std::optional<QByteArray> gzipDecompress(const QByteArray &data);

} // namespace selfsame
