#include "search/KnownDigests.h"

#include <sys/statfs.h>

namespace selfsame {

KnownDigests::KnownDigests(DigestCache *cache, const EntryTable &entries, qint64 walkStartedNs)
    : m_cache(cache && cache->isOpen() ? cache : nullptr), m_entries(entries),
      m_settledBeforeNs(m_cache ? walkStartedNs - m_cache->options().settleNs : 0)
{
}

DigestKey KnownDigests::key(const ContentNode &node, bool headerSkipped) const
{
    const FileEntry &entry = m_entries[node.entry];
    return {entry.device, entry.inode, entry.size, entry.modifiedNs, entry.changedNs, headerSkipped};
}

bool KnownDigests::settled(const ContentNode &node) const
{
    const FileEntry &entry = m_entries[node.entry];
    return entry.changedNs < m_settledBeforeNs && entry.modifiedNs < m_settledBeforeNs;
}

bool KnownDigests::keepsPlacement(const ContentNode &node) const
{
    constexpr unsigned long kExtFamily = 0xEF53;
    const FileEntry &entry = m_entries[node.entry];
    std::lock_guard lock(m_volumesMutex);
    const auto [at, isNew] = m_keepsPlacement.try_emplace(entry.device, false);
    if (isNew) {
        struct statfs volume;
        at->second = statfs(m_entries.folderPath(entry.folder).c_str(), &volume) == 0 &&
                     static_cast<unsigned long>(volume.f_type) == kExtFamily;
    }
    return at->second;
}

void KnownDigests::lookUp(const ContentNodes &nodes, const std::vector<std::size_t> &candidates,
                          const std::vector<char> &headerSkipped)
{
    if (!m_cache)
        return;
    std::vector<DigestKey> keys;
    std::vector<std::size_t> asked;
    keys.reserve(candidates.size());
    for (std::size_t node : candidates) {
        if (!settled(nodes[node]))
            continue;
        keys.push_back(key(nodes[node], headerSkipped[node]));
        asked.push_back(node);
    }
    m_index.assign(nodes.size(), 0);
    // Reserved whole: growing them would copy every record again.
    m_known.reserve(keys.size());
    m_digests.reserve(keys.size());
    m_attributes.reserve(keys.size());
    m_cache->lookup(keys, [&](std::size_t i, CachedDigest value) {
        Known known;
        known.hasSample = value.sample.has_value();
        known.sample = value.sample.value_or(0);
        known.hasFingerprint = value.fingerprint.has_value();
        known.fingerprint = value.fingerprint.value_or(Fingerprint{});
        if (value.digest) {
            m_digests.push_back(*value.digest);
            known.digest = quint32(m_digests.size());
        }
        if (value.attributes && keepsPlacement(nodes[asked[i]])) {
            m_attributes.push_back(std::move(*value.attributes));
            known.attributes = quint32(m_attributes.size());
        }
        m_known.push_back(known);
        m_index[asked[i]] = quint32(m_known.size());
    });
}

std::optional<CachedDigest> KnownDigests::known(std::size_t node) const
{
    if (node >= m_index.size() || !m_index[node])
        return std::nullopt;
    const Known &known = m_known[m_index[node] - 1];
    CachedDigest value;
    if (known.hasSample)
        value.sample = known.sample;
    if (known.hasFingerprint)
        value.fingerprint = known.fingerprint;
    if (known.digest)
        value.digest = m_digests[known.digest - 1];
    if (known.attributes)
        value.attributes = m_attributes[known.attributes - 1];
    return value;
}

void KnownDigests::learnt(Batch &batch, const ContentNode &node, bool headerSkipped, CachedDigest value)
{
    if (!m_cache || !settled(node) || (!value.sample && !value.digest && !value.fingerprint))
        return;
    if (value.attributes && !keepsPlacement(node))
        value.attributes.reset();
    batch.records.emplace_back(key(node, headerSkipped), std::move(value));
    if (batch.records.size() >= 4096)
        flush(batch);
}

void KnownDigests::flush(Batch &batch)
{
    if (m_cache && !batch.records.empty())
        m_cache->store(std::move(batch.records));
    batch.records.clear();
}

} // namespace selfsame
