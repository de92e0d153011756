#include "attributes/MetadataReader.h"

#include "attributes/MetadataSources.h"
#include "names/FileNames.h"

#include <QFile>
#include <QMimeDatabase>
#include <cmath>
#include <fcntl.h>
#include <sys/stat.h>

namespace selfsame
{

namespace
{

bool wantsAny(const QSet<QString> &keys, const QSet<QString> &sourceKeys)
{
    return keys.intersects(sourceKeys);
}

bool isMedia(const QMimeType &mime)
{
    const QString name = mime.name();
    return name.startsWith(QLatin1String("audio/")) || name.startsWith(QLatin1String("video/")) ||
           mime.inherits(QStringLiteral("application/ogg")) ||
           name == QLatin1String("application/vnd.rn-realmedia") || name == QLatin1String("application/mxf");
}

// Values a damaged or hand-edited file may hold but no real file can: a latitude beyond the
// poles, a negative duration, a number that is not one. They count as missing, so that they
// neither group files nor sort them.
bool plausible(const QString &key, const QVariant &value)
{
    if (value.typeId() != QMetaType::Double && value.typeId() != QMetaType::Float &&
        value.typeId() != QMetaType::Int && value.typeId() != QMetaType::LongLong &&
        value.typeId() != QMetaType::UInt && value.typeId() != QMetaType::ULongLong)
        return true;
    const double number = value.toDouble();
    if (!std::isfinite(number)) return false;
    if (key == QLatin1String("kMDItemLatitude")) return std::fabs(number) <= 90.0;
    if (key == QLatin1String("kMDItemLongitude")) return std::fabs(number) <= 180.0;
    if (key == QLatin1String("kMDItemDurationSeconds") || key == QLatin1String("kMDItemTotalBitRate") ||
        key == QLatin1String("kMDItemPixelWidth") || key == QLatin1String("kMDItemPixelHeight"))
        return number >= 0.0;
    return true;
}

} // namespace

QSet<QString> readableMetadataKeys()
{
    return fileSystemKeys() | extendedAttributeKeys() | mediaKeys() | imageKeys();
}

MetadataValues readMetadata(const QString &path, const QSet<QString> &keys)
{
    MetadataValues values;
    const QByteArray localPath = pathBytes(path);
    struct statx st {
    };
    if (keys.isEmpty() ||
        statx(AT_FDCWD, localPath.constData(), 0, STATX_BASIC_STATS | STATX_BTIME, &st) != 0)
        return values;

    const bool regular = S_ISREG(st.stx_mode);
    const bool media = regular && wantsAny(keys, mediaKeys());
    const bool image = regular && wantsAny(keys, imageKeys());
    const bool typeWanted = keys.contains(QStringLiteral("kMDItemContentType")) ||
                            keys.contains(QStringLiteral("kMDItemContentTypeTree")) ||
                            keys.contains(QStringLiteral("kMDItemKind"));
    // The type comes from the name when it is unambiguous, else from the first bytes.
    const QMimeType mime =
        media || image || typeWanted
            ? QMimeDatabase().mimeTypeForFile(path, regular ? QMimeDatabase::MatchDefault
                                                            : QMimeDatabase::MatchExtension)
            : QMimeType();

    if (wantsAny(keys, fileSystemKeys())) readFileSystemValues(path, st, mime, keys, values);
    if (wantsAny(keys, extendedAttributeKeys())) readExtendedAttributeValues(localPath, values);
    if (media && isMedia(mime))
        readMediaValues(localPath, values);
    else if (image && mime.name().startsWith(QLatin1String("image/")))
        readImageValues(localPath, values);

    values.removeIf([&](const MetadataValues::iterator &it) {
        return !keys.contains(it.key()) || !plausible(it.key(), it.value());
    });
    return values;
}

} // namespace selfsame
