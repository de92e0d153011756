#include "attributes/MetadataSources.h"
#include "results/FileAttributes.h"

#include <QDateTime>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace selfsame
{

namespace
{

QDateTime dateOf(const struct statx_timestamp &t)
{
    return QDateTime::fromMSecsSinceEpoch(qint64(t.tv_sec) * 1000 + t.tv_nsec / 1'000'000, Qt::UTC);
}

// A URL attribute as browsers write it on downloads, or an empty text.
QString urlAttribute(const QByteArray &localPath, const char *name)
{
    char buffer[8192];
    const ssize_t size = lgetxattr(localPath.constData(), name, buffer, sizeof(buffer));
    return size > 0 ? QString::fromUtf8(buffer, size).trimmed() : QString();
}

} // namespace

const QSet<QString> &fileSystemKeys()
{
    static const QSet<QString> keys = {"kMDItemFSSize",
                                       "kMDItemFSName",
                                       "kMDItemDisplayName",
                                       "kMDItemFSCreationDate",
                                       "kMDItemFSContentChangeDate",
                                       "kMDItemContentModificationDate",
                                       "kMDItemContentType",
                                       "kMDItemContentTypeTree",
                                       "kMDItemKind"};
    return keys;
}

const QSet<QString> &extendedAttributeKeys()
{
    static const QSet<QString> keys = {"kMDItemUserTags", "kMDItemWhereFroms"};
    return keys;
}

void readFileSystemValues(const QString &path, const struct statx &st, const QMimeType &mime,
                          const QSet<QString> &keys, MetadataValues &values)
{
    const QString name = path.mid(path.lastIndexOf(u'/') + 1);
    values.insert(QStringLiteral("kMDItemFSName"), name);
    values.insert(QStringLiteral("kMDItemDisplayName"), name);
    values.insert(QStringLiteral("kMDItemFSSize"), double(st.stx_size));
    if (st.stx_mask & STATX_BTIME)
        values.insert(QStringLiteral("kMDItemFSCreationDate"), dateOf(st.stx_btime));
    values.insert(QStringLiteral("kMDItemFSContentChangeDate"), dateOf(st.stx_mtime));
    values.insert(QStringLiteral("kMDItemContentModificationDate"), dateOf(st.stx_mtime));
    if (!mime.isValid()) return;
    values.insert(QStringLiteral("kMDItemContentType"), mime.name());
    if (keys.contains(QStringLiteral("kMDItemContentTypeTree"))) {
        QVariantList tree{mime.name()};
        for (const QString &ancestor : mime.allAncestors())
            tree.append(ancestor);
        values.insert(QStringLiteral("kMDItemContentTypeTree"), tree);
    }
    if (keys.contains(QStringLiteral("kMDItemKind")))
        values.insert(QStringLiteral("kMDItemKind"), mime.comment());
}

void readExtendedAttributeValues(const QByteArray &localPath, MetadataValues &values)
{
    const QStringList tags = readUserTags(localPath.constData());
    if (!tags.isEmpty()) values.insert(QStringLiteral("kMDItemUserTags"), QVariant(tags).toList());
    QVariantList origins;
    for (const char *name : {"user.xdg.origin.url", "user.xdg.referrer.url"})
        if (const QString url = urlAttribute(localPath, name); !url.isEmpty()) origins.append(url);
    if (!origins.isEmpty()) values.insert(QStringLiteral("kMDItemWhereFroms"), origins);
}

} // namespace selfsame
