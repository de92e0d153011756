#pragma once

#include "search/ContentNode.h"
#include "search/DigestCache.h"
#include "search/EntryTable.h"

#include <mutex>
#include <unordered_map>
#include <vector>

namespace selfsame {

// The digest cache as one hashing step sees it: what the cache knew of each candidate when
// hashing began, and what the step learns, handed to the cache in batches.
class KnownDigests {
public:
    KnownDigests(DigestCache *cache, const EntryTable &entries, qint64 walkStartedNs);

    bool enabled() const { return m_cache != nullptr; }

    // `headerSkipped` tells for each node whether its digest leaves out the MP4 header.
    void lookUp(const ContentNodes &nodes, const std::vector<std::size_t> &candidates,
                const std::vector<char> &headerSkipped);
    // What the cache knew of the node, if anything.
    std::optional<CachedDigest> known(std::size_t node) const;

    // Records of one hashing thread, written once enough have gathered and when it ends.
    struct Batch {
        std::vector<std::pair<DigestKey, CachedDigest>> records;
    };
    void learnt(Batch &batch, const ContentNode &node, bool headerSkipped, CachedDigest value);
    void flush(Batch &batch);

private:
    DigestKey key(const ContentNode &node, bool headerSkipped) const;
    bool settled(const ContentNode &node) const;
    // Whether the node's file system never shares storage between files (the ext family):
    // there its allocation digest can only equal that of another path of the same file,
    // so a cached one tells the same as a fresh one.
    bool keepsPlacement(const ContentNode &node) const;

    DigestCache *m_cache;
    const EntryTable &m_entries;
    qint64 m_settledBeforeNs;
    // A second search knows most of its files: what it knows is kept small.
    struct Known {
        quint64 sample = 0;
        Fingerprint fingerprint;
        quint32 digest = 0;     // 1 + position in m_digests, 0 for none
        quint32 attributes = 0; // 1 + position in m_attributes, 0 for none
        bool hasSample = false;
        bool hasFingerprint = false;
    };
    LargeVector<quint32> m_index; // per node: 1 + position in m_known, 0 when unknown
    LargeVector<Known> m_known;
    LargeVector<Digest> m_digests;
    std::vector<CachedDigest::Attributes> m_attributes;
    mutable std::mutex m_volumesMutex;
    mutable std::unordered_map<quint64, bool> m_keepsPlacement; // per device
};

} // namespace selfsame
