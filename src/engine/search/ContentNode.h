#pragma once

#include "results/ResultItem.h"

namespace selfsame {

// An item taking part in the content comparison, with what hashing and folder digests add.
struct ContentNode {
    quint32 entry = 0;    // index in the run's EntryTable
    quint16 flags = 0;    // ItemFlag bits: the entry's, plus HasDigest and HasAllocDigest
    qint64 size = 0;
    qint64 physicalSize = 0;
    qint64 itemCount = 0; // files inside a folder, at any depth
    Digest digest{};
    Digest allocDigest{};

    bool has(ItemFlag f) const { return (flags & f) != 0; }
    void setDigest(const Digest &d)
    {
        digest = d;
        flags |= HasDigest;
    }
    void setAllocDigest(const Digest &d)
    {
        allocDigest = d;
        flags |= HasAllocDigest;
    }
};

} // namespace selfsame
