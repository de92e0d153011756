#include "results/FileAttributes.h"

#include <QByteArray>

#include <sys/xattr.h>

namespace selfsame {

namespace {

constexpr const char *kTagsAttribute = "user.xdg.tags";

QStringList parseTags(const char *bytes, ssize_t size)
{
    QStringList tags;
    if (size <= 0)
        return tags;
    for (const QByteArray &tag : QByteArray(bytes, size).split(',')) {
        const QString name = QString::fromUtf8(tag).trimmed();
        if (!name.isEmpty())
            tags.append(name);
    }
    return tags;
}

} // namespace

QStringList readUserTags(const char *path)
{
    char buffer[4096];
    return parseTags(buffer, lgetxattr(path, kTagsAttribute, buffer, sizeof(buffer)));
}

QStringList readUserTags(int fd)
{
    char buffer[4096];
    return parseTags(buffer, fgetxattr(fd, kTagsAttribute, buffer, sizeof(buffer)));
}

} // namespace selfsame
