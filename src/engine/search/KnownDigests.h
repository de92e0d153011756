#pragma once

#include "search/ContentNode.h"
#include "search/DigestCache.h"
#include "search/EntryTable.h"

#include <vector>

namespace selfsame {

// The digest cache as one hashing step sees it: what the cache knew of each candidate when
// hashing began, and what the step learns, handed to the cache in batches.
class KnownDigests {
public:
    KnownDigests(DigestCache *cache, const EntryTable &entries, qint64 walkStartedNs);

    bool enabled() const { return m_cache != nullptr; }

    // `headerSkipped` tells for each node whether its digest leaves out the MP4 header.
    void lookUp(const std::vector<ContentNode> &nodes, const std::vector<std::size_t> &candidates,
                const std::vector<char> &headerSkipped);
    // What the cache knew of the node, or null.
    const CachedDigest *known(std::size_t node) const
    {
        return node < m_index.size() && m_index[node] ? &m_values[m_index[node] - 1] : nullptr;
    }

    // Records of one hashing thread, written once enough have gathered and when it ends.
    struct Batch {
        std::vector<std::pair<DigestKey, CachedDigest>> records;
    };
    void learnt(Batch &batch, const ContentNode &node, bool headerSkipped, CachedDigest value);
    void flush(Batch &batch);

private:
    DigestKey key(const ContentNode &node, bool headerSkipped) const;
    bool settled(const ContentNode &node) const;

    DigestCache *m_cache;
    const EntryTable &m_entries;
    qint64 m_settledBeforeNs;
    std::vector<quint32> m_index; // per node: 1 + position in m_values, 0 when unknown
    std::vector<CachedDigest> m_values;
};

} // namespace selfsame
