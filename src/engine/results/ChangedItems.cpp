#include "results/ChangedItems.h"

#include <sys/stat.h>

namespace selfsame {

namespace {

bool changed(const ResultItem &item)
{
    struct stat st;
    if (::lstat(item.path.toUtf8().constData(), &st) != 0) return true;
    if (!replacedStatus(item).isEmpty()) return false;
    if (quint64(st.st_ino) != item.inode) return true;
    if (item.has(IsFolder)) return !S_ISDIR(st.st_mode);
    return qint64(st.st_size) != item.size || qint64(st.st_mtim.tv_sec) != item.modified;
}

} // namespace

qsizetype markChangedItems(QList<ResultItem> &items)
{
    qsizetype count = 0;
    for (ResultItem &item : items) {
        const bool gone = !item.trashedURL().isEmpty() || item.has(Deleted) ? false : changed(item);
        item.set(Missing, gone);
        count += gone ? 1 : 0;
    }
    return count;
}

} // namespace selfsame
