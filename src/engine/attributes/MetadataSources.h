#pragma once

// The sources behind readMetadata, one per library. Each fills the values it finds for the
// file; the reader keeps only those asked for.

#include "attributes/AttributeTypes.h"

#include <QByteArray>
#include <QMimeType>
#include <QSet>
#include <QString>

struct statx;

namespace selfsame
{

const QSet<QString> &fileSystemKeys();
const QSet<QString> &extendedAttributeKeys();
const QSet<QString> &mediaKeys();
const QSet<QString> &imageKeys();

// statx values, the name, and the MIME type (with its ancestors and description) when asked.
void readFileSystemValues(const QString &path, const struct statx &st, const QMimeType &mime,
                          const QSet<QString> &keys, MetadataValues &values);
void readExtendedAttributeValues(const QByteArray &localPath, MetadataValues &values);
// Audio and video files; the file is read through bounded, time-limited I/O.
void readMediaValues(const QByteArray &localPath, MetadataValues &values);
// EXIF, XMP and IPTC of image files.
void readImageValues(const QByteArray &localPath, MetadataValues &values);

} // namespace selfsame
