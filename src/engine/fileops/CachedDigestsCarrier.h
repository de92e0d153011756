#pragma once

#include "results/ResultItem.h"
#include "search/DigestCache.h"

#include <QHash>
#include <QList>

namespace selfsame
{

// Keeps the digest cache's knowledge of files across Selfsame's own actions. A hard link made
// to a kept copy, a clone put in a copy's place, a file put back from the trash: each keeps
// its content but gets a new change time (or inode), which is part of the cache's key, so the
// next search would read it again. Taken before an action and applied after it, this stores
// each record again under the file's new key.
class CachedDigestsCarrier
{
public:
    // The keys of the items as they are now, before the action (of items in the trash, as
    // they were before they went).
    explicit CachedDigestsCarrier(const QList<ResultItem *> &items);

    // The items whose content the action kept (untouched, hard linked, cloned or put back)
    // and whose key changed while their size and modification time did not: their records,
    // under both header rules, are stored under their new key. Returns how many were.
    int carryOver(DigestCache &cache) const;

private:
    QHash<ResultItem *, DigestKey> m_before;
};

// The cache key of an item as its fields have it.
DigestKey digestKeyOf(const ResultItem &item, bool headerSkipped = false);

} // namespace selfsame
