#pragma once

#include "results/ResultItem.h"

#include <QList>

namespace selfsame
{

// An item that a file command moved away or replaced: its path no longer holds the copy found.
bool isActedOn(const ResultItem &item);

// What a list of items adds up to: the duplicate groups among them (two or more copies still
// in place), their copies still in place, and the storage that keeping one copy of each group
// would free. Copies that share their storage (hard links, clones) count once; of each group the
// largest storage is the one kept.
struct ReclaimTotals {
    qsizetype groups = 0;
    qsizetype files = 0;
    qint64 reclaimable = 0;
};
ReclaimTotals reclaimTotals(const QList<ResultItem *> &items);

} // namespace selfsame
