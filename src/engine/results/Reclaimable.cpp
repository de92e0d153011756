#include "results/Reclaimable.h"

#include <QHash>
#include <QSet>

namespace selfsame
{

namespace
{

struct GroupStorage {
    qsizetype copies = 0;
    qint64 total = 0;
    qint64 largest = 0;
    qint64 contained = -1; // a contained folder's: all of it goes, whatever its container's size
    QSet<QPair<quint64, quint64>> inodes;
    QSet<QByteArray> allocations;

    void add(const ResultItem &item)
    {
        ++copies;
        if (item.has(ContainedFolder)) contained = item.physicalSize;
        const QPair<quint64, quint64> inode{item.device, item.inode};
        const bool knownInode = item.inode != 0 && inodes.contains(inode);
        const QByteArray allocation = item.has(HasAllocDigest)
                                          ? QByteArray(reinterpret_cast<const char *>(item.allocDigest.data()),
                                                       qsizetype(item.allocDigest.size()))
                                          : QByteArray();
        const bool knownAllocation = !allocation.isEmpty() && allocations.contains(allocation);
        if (item.inode != 0) inodes.insert(inode);
        if (!allocation.isEmpty()) allocations.insert(allocation);
        if (knownInode || knownAllocation) return;
        total += item.physicalSize;
        largest = std::max(largest, item.physicalSize);
    }
};

} // namespace

bool isActedOn(const ResultItem &item)
{
    return item.has(Deleted) || !item.trashedURL().isEmpty() || !item.statusImage().isEmpty();
}

ReclaimTotals reclaimTotals(const QList<ResultItem *> &items)
{
    ReclaimTotals totals;
    QHash<int, GroupStorage> groups;
    for (const ResultItem *item : items) {
        if (isActedOn(*item) || item->has(Missing)) continue;
        ++totals.files;
        if (item->group >= 0) groups[item->group].add(*item);
    }
    for (const GroupStorage &group : std::as_const(groups)) {
        if (group.copies < 2) continue;
        ++totals.groups;
        totals.reclaimable += group.contained >= 0 ? group.contained : group.total - group.largest;
    }
    return totals;
}

} // namespace selfsame
