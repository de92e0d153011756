#include "fileops/ItemSafety.h"

#include "search/Digest.h"

#include <QCoreApplication>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace selfsame
{

QString changedSinceSearch(const ResultItem &item)
{
    struct stat st {
    };
    if (lstat(item.path.toUtf8().constData(), &st) != 0)
        return QCoreApplication::translate("ItemSafety", "“%1” is gone: %2")
            .arg(item.path, QString::fromLocal8Bit(std::strerror(errno)));
    if (item.has(IsFolder)) {
        if (!S_ISDIR(st.st_mode))
            return QCoreApplication::translate("ItemSafety", "“%1” is no longer a folder").arg(item.path);
        return {};
    }
    if (S_ISDIR(st.st_mode) || qint64(st.st_size) != item.size)
        return QCoreApplication::translate("ItemSafety",
                                           "“%1” changed since the search: its size is no longer %2 bytes")
            .arg(item.path)
            .arg(item.size);
    if (qint64(st.st_mtim.tv_sec) != item.modified)
        return QCoreApplication::translate("ItemSafety", "“%1” was modified since the search").arg(item.path);
    return {};
}

bool sameContent(const QString &a, const QString &b)
{
    const int fa = openForReading(a.toUtf8().constData());
    const int fb = openForReading(b.toUtf8().constData());
    bool same = fa >= 0 && fb >= 0;
    constexpr std::size_t chunk = std::size_t(1) << 20;
    std::vector<char> bufferA(same ? chunk : 0), bufferB(same ? chunk : 0);
    for (off_t offset = 0; same;) {
        const ssize_t na = readAt(fa, bufferA.data(), chunk, offset);
        const ssize_t nb = readAt(fb, bufferB.data(), chunk, offset);
        same = na >= 0 && na == nb && std::memcmp(bufferA.data(), bufferB.data(), std::size_t(na)) == 0;
        if (na <= 0) break;
        offset += na;
    }
    if (fa >= 0) close(fa);
    if (fb >= 0) close(fb);
    return same;
}

} // namespace selfsame
