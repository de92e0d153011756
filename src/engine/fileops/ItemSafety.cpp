#include "fileops/ItemSafety.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstring>
#include <sys/stat.h>

namespace selfsame {

QString changedSinceSearch(const ResultItem &item)
{
    struct stat st{};
    if (lstat(item.path.toUtf8().constData(), &st) != 0)
        return QCoreApplication::translate("ItemSafety", "“%1” is gone: %2")
            .arg(item.path, QString::fromLocal8Bit(std::strerror(errno)));
    if (item.has(IsFolder)) {
        if (!S_ISDIR(st.st_mode))
            return QCoreApplication::translate("ItemSafety", "“%1” is no longer a folder").arg(item.path);
        return {};
    }
    if (S_ISDIR(st.st_mode) || qint64(st.st_size) != item.size)
        return QCoreApplication::translate("ItemSafety", "“%1” changed since the search: its size is no longer %2 bytes")
            .arg(item.path).arg(item.size);
    if (qint64(st.st_mtim.tv_sec) != item.modified)
        return QCoreApplication::translate("ItemSafety", "“%1” was modified since the search").arg(item.path);
    return {};
}

} // namespace selfsame
