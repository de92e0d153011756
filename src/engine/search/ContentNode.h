#pragma once

#include "results/ResultItem.h"
#include "search/LargeBlockAllocator.h"

#include <memory>

namespace selfsame {

// An item taking part in the content comparison, with what hashing and folder digests add.
// Most candidates are told apart without a digest, so digests live apart from the node, and
// a search of a million files holds a small node for each.
struct ContentNode {
    quint32 entry = 0;    // index in the run's EntryTable
    quint16 flags = 0;    // ItemFlag bits: the entry's, plus HasDigest and HasAllocDigest
    qint64 size = 0;
    qint64 physicalSize = 0;

    bool has(ItemFlag f) const { return (flags & f) != 0; }
    const Digest &digest() const { return m_record->content; }
    // Storage is told apart by the key that result items keep, not by the whole digest.
    const AllocationKey &allocDigest() const { return m_record->allocation; }
    qint64 itemCount() const { return m_record ? m_record->itemCount : 0; } // files inside a folder, at any depth
    void setDigest(const Digest &d)
    {
        record().content = d;
        flags |= HasDigest;
    }
    void setAllocDigest(const Digest &d) { setAllocDigest(allocationKey(d)); }
    void setAllocDigest(const AllocationKey &key)
    {
        record().allocation = key;
        flags |= HasAllocDigest;
    }
    void setItemCount(qint64 count) { record().itemCount = count; }

    // Once copied into a result item, the digests need not be kept twice.
    void releaseDigests() { m_record.reset(); }

private:
    struct Record {
        Digest content{};
        AllocationKey allocation{};
        qint64 itemCount = 0;
    };
    Record &record()
    {
        if (!m_record)
            m_record = std::make_unique<Record>();
        return *m_record;
    }
    std::unique_ptr<Record> m_record;
};

// The candidates of one search: one node per file that shares its size with another.
using ContentNodes = LargeVector<ContentNode>;

} // namespace selfsame
