#pragma once

#include "attributes/AttributeTypes.h"

#include <QSet>
#include <QString>

namespace selfsame
{

// Reads the "kMDItem…" values of one file on demand: file-system values from statx, tags
// and origins from extended attributes, audio and video values through FFmpeg, image values
// through Exiv2. Only the sources that can produce a wanted key are consulted, and media
// libraries only for files whose type is audio, video or image. A file that cannot be read
// or parsed simply lacks the values. Safe to call from several threads at once.
MetadataValues readMetadata(const QString &path, const QSet<QString> &keys);

// Every key that readMetadata can produce.
QSet<QString> readableMetadataKeys();

} // namespace selfsame
