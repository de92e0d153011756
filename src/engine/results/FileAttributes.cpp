#include "results/FileAttributes.h"

#include <QByteArray>

#include <sys/xattr.h>

namespace selfsame {

QStringList readUserTags(const char *path)
{
    char buffer[4096];
    const ssize_t size = lgetxattr(path, "user.xdg.tags", buffer, sizeof(buffer));
    if (size <= 0)
        return {};
    QStringList tags;
    for (const QByteArray &tag : QByteArray(buffer, size).split(',')) {
        const QString name = QString::fromUtf8(tag).trimmed();
        if (!name.isEmpty())
            tags.append(name);
    }
    return tags;
}

} // namespace selfsame
