#include "containment/ContainedGroups.h"

#include "names/FileNames.h"
#include "results/FileAttributes.h"

#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace selfsame {

namespace {

std::optional<ResultItem> folderItem(const std::string &path, const FolderSums &sums, ItemFlag role)
{
    struct statx st {};
    if (statx(AT_FDCWD, path.c_str(), AT_SYMLINK_NOFOLLOW, STATX_BASIC_STATS | STATX_BTIME, &st) != 0 ||
        !S_ISDIR(st.stx_mode))
        return std::nullopt;
    ResultItem item;
    item.path = pathFromBytes(path);
    item.size = sums.size;
    item.physicalSize = sums.physicalSize;
    item.setItemCount(sums.files);
    item.modified = st.stx_mtime.tv_sec;
    item.modifiedNsec = qint32(st.stx_mtime.tv_nsec);
    item.attributes = st.stx_ctime.tv_sec;
    item.changedNsec = qint32(st.stx_ctime.tv_nsec);
    item.lastUsed = st.stx_atime.tv_sec;
    item.created = (st.stx_mask & STATX_BTIME) ? qint64(st.stx_btime.tv_sec) : kNoDate;
    item.device = makedev(st.stx_dev_major, st.stx_dev_minor);
    item.inode = st.stx_ino;
    item.flags = quint16(IsFolder | role);
    item.setTagList(readUserTags(path.c_str()));
    return item;
}

} // namespace

QList<ResultItem> containedGroupItems(const std::vector<Containment> &found, int firstGroup)
{
    QList<ResultItem> items;
    int group = firstGroup;
    for (const Containment &pair : found) {
        std::optional<ResultItem> contained = folderItem(pair.contained, pair.containedSums, ContainedFolder);
        std::optional<ResultItem> container = folderItem(pair.container, pair.containerSums, ContainingFolder);
        if (!contained || !container)
            continue;
        for (ResultItem *item : {&*contained, &*container}) {
            item->group = group;
            item->dupes = 2;
            items.append(std::move(*item));
        }
        ++group;
    }
    return items;
}

} // namespace selfsame
