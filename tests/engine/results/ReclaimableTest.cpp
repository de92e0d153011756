#include "results/Reclaimable.h"

#include <gtest/gtest.h>

using namespace selfsame;

namespace
{

ResultItem copy(int group, qint64 bytes, quint64 inode)
{
    ResultItem item;
    item.path = QStringLiteral("/m/%1-%2").arg(group).arg(inode);
    item.group = group;
    item.physicalSize = bytes;
    item.device = 1;
    item.inode = inode;
    return item;
}

QList<ResultItem *> pointers(QList<ResultItem> &items)
{
    QList<ResultItem *> list;
    for (ResultItem &item : items)
        list.append(&item);
    return list;
}

TEST(Reclaimable, KeepingTheLargestCopyOfEachGroupFreesTheRest)
{
    QList<ResultItem> items{copy(0, 100, 1), copy(0, 100, 2), copy(0, 120, 3), copy(1, 50, 4), copy(1, 50, 5),
                            copy(2, 70, 6)};
    const ReclaimTotals totals = reclaimTotals(pointers(items));
    EXPECT_EQ(totals.groups, 2); // group 2 has one copy: nothing to free
    EXPECT_EQ(totals.files, 6);
    EXPECT_EQ(totals.reclaimable, 100 + 100 + 50);
}

TEST(Reclaimable, SharedStorageCountsOnceAndActedOnItemsNotAtAll)
{
    QList<ResultItem> items{copy(0, 100, 1), copy(0, 100, 1), copy(0, 100, 2), copy(0, 100, 3)};
    items[0].path = QStringLiteral("/m/hard-link");
    // A clone shares its storage with another copy: same allocation, other inode.
    items[3].set(HasAllocDigest);
    items[2].set(HasAllocDigest);
    items[3].allocDigest.fill(7);
    items[2].allocDigest.fill(7);
    // Two storages: the hard-linked pair and the clone pair.
    EXPECT_EQ(reclaimTotals(pointers(items)).reclaimable, 100);
    items[2].allocDigest.fill(8);
    EXPECT_EQ(reclaimTotals(pointers(items)).reclaimable, 200);

    items[1].setTrashedURL(QStringLiteral("/trash/files/x"));
    items[2].set(Deleted);
    items[3].setStatusImage(QStringLiteral("cloned"));
    const ReclaimTotals after = reclaimTotals(pointers(items));
    EXPECT_TRUE(isActedOn(items[1]) && isActedOn(items[2]) && isActedOn(items[3]));
    EXPECT_FALSE(isActedOn(items[0]));
    EXPECT_EQ(after.files, 1);
    EXPECT_EQ(after.groups, 0);
    EXPECT_EQ(after.reclaimable, 0);
}

} // namespace
