#include "attributes/MetadataReader.h"

#include "attributes/MetadataSources.h"

#include <QFile>
#include <QMimeDatabase>
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

} // namespace

QSet<QString> readableMetadataKeys()
{
    return fileSystemKeys() | extendedAttributeKeys() | mediaKeys() | imageKeys();
}

MetadataValues readMetadata(const QString &path, const QSet<QString> &keys)
{
    MetadataValues values;
    const QByteArray localPath = QFile::encodeName(path);
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

    values.removeIf([&](const MetadataValues::iterator &it) { return !keys.contains(it.key()); });
    return values;
}

} // namespace selfsame
