#pragma once

#include "results/ResultItem.h"
#include "search/LargeBlockAllocator.h"

#include <memory>

namespace selfsame {

// An item taking part in the content comparison, with what hashing and folder digests add.
// Most candidates are told apart without a digest, so digests live apart from the node.
struct ContentNode {
    quint32 entry = 0;    // index in the run's EntryTable
    quint16 flags = 0;    // ItemFlag bits: the entry's, plus HasDigest and HasAllocDigest
    qint64 size = 0;
    qint64 physicalSize = 0;
    qint64 itemCount = 0; // files inside a folder, at any depth

    bool has(ItemFlag f) const { return (flags & f) != 0; }
    const Digest &digest() const { return m_digests->content; }
    const Digest &allocDigest() const { return m_digests->allocation; }
    void setDigest(const Digest &d)
    {
        digests().content = d;
        flags |= HasDigest;
    }
    void setAllocDigest(const Digest &d)
    {
        digests().allocation = d;
        flags |= HasAllocDigest;
    }

    // Once copied into a result item, the digests need not be kept twice.
    void releaseDigests() { m_digests.reset(); }

private:
    struct Digests {
        Digest content{};
        Digest allocation{};
    };
    Digests &digests()
    {
        if (!m_digests)
            m_digests = std::make_unique<Digests>();
        return *m_digests;
    }
    std::unique_ptr<Digests> m_digests;
};

// The candidates of one search: one node per file that shares its size with another.
using ContentNodes = LargeVector<ContentNode>;

} // namespace selfsame
