// The digest cache's part of the hashing: files it knows, and what the hashing taught it.
#include "search/ContentHasher.h"

#include "results/FileAttributes.h"
#include "search/ContentHasherWorker.h"

#include <algorithm>
#include <mutex>
#include <unistd.h>

namespace selfsame {

void ContentHasher::readUnlessUnique(ContentNodes &nodes, const std::vector<std::size_t> &group,
                                     const std::vector<std::size_t> &fingerprinted, bool othersUnknown,
                                     Worker &worker)
{
    if (fingerprinted.empty())
        return;
    std::sort(worker.fingerprints.begin(), worker.fingerprints.end());
    auto fresh = [&](std::size_t i) -> std::optional<Fingerprint> {
        const auto at = std::lower_bound(worker.fingerprints.begin(), worker.fingerprints.end(),
                                         std::make_pair(i, Fingerprint{}));
        if (at != worker.fingerprints.end() && at->first == i)
            return at->second;
        return std::nullopt;
    };
    // The fingerprints of the whole group; a digest without one could equal anything.
    std::vector<Fingerprint> all;
    bool wildcard = othersUnknown;
    for (std::size_t i : group) {
        const std::optional<CachedDigest> known = m_known.known(i);
        if (known && known->fingerprint)
            all.push_back(*known->fingerprint);
        else if (const auto learnt = fresh(i))
            all.push_back(*learnt);
        else if (nodes[i].has(HasDigest))
            wildcard = true;
    }
    std::sort(all.begin(), all.end());
    std::vector<std::size_t> shared;
    for (std::size_t i : fingerprinted) {
        const Fingerprint own = *m_known.known(i)->fingerprint;
        const auto [from, to] = std::equal_range(all.begin(), all.end(), own);
        if (wildcard || to - from > 1) {
            m_needsDigest[i] = 1;
            shared.push_back(i);
        } else {
            ++worker.statistics.filesFromCache; // unique: no file of its size has its bytes
            reportProgress();
        }
    }
    if (!shared.empty())
        hashBucket(nodes, shared, {}, worker);
}

void ContentHasher::completeKnown(ContentNodes &nodes, const std::vector<std::size_t> &files, Worker &worker)
{
    std::vector<std::size_t> digested;
    for (std::size_t i : files)
        if (nodes[i].has(HasDigest))
            digested.push_back(i);
    std::sort(digested.begin(), digested.end(), [&](std::size_t a, std::size_t b) {
        return compareDigests(nodes[a].digest(), nodes[b].digest()) < 0;
    });
    for (std::size_t k = 0; k < digested.size(); ++k) {
        const std::size_t i = digested[k];
        const std::optional<CachedDigest> known = m_known.known(i);
        if (!known || !known->digest)
            continue;
        // Folders sum their children's allocation digests; hard links share this one.
        const bool mayGroup = !m_sampleFirst || m_needsDigest[i] ||
                              (k > 0 && nodes[digested[k - 1]].digest() == nodes[i].digest()) ||
                              (k + 1 < digested.size() && nodes[digested[k + 1]].digest() == nodes[i].digest());
        if (!mayGroup)
            continue;
        QStringList tags;
        if (known->attributes) {
            if (known->attributes->allocDigest)
                nodes[i].setAllocDigest(*known->attributes->allocDigest);
            tags = known->attributes->tags;
        } else {
            const int fd = m_folders.openFile(m_entries[nodes[i].entry]);
            if (fd < 0)
                continue;
            if (auto alloc = computeAllocDigest(fd, worker.allocStorage))
                nodes[i].setAllocDigest(*alloc);
            tags = readUserTags(fd);
            close(fd);
            worker.placed.emplace_back(i, tags);
        }
        if (!tags.isEmpty()) {
            std::lock_guard lock(m_tagsMutex);
            m_tags.emplace_back(i, std::move(tags));
        }
    }
}

void ContentHasher::recordLearnt(const ContentNodes &nodes, const std::vector<std::size_t> &files,
                                 const std::vector<std::pair<std::size_t, quint64>> &freshSamples,
                                 Worker &worker)
{
    std::sort(worker.fingerprints.begin(), worker.fingerprints.end());
    std::stable_sort(worker.placed.begin(), worker.placed.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    auto fresh = freshSamples.begin();
    for (std::size_t i : files) {
        while (fresh != freshSamples.end() && fresh->first < i)
            ++fresh;
        CachedDigest value;
        if (fresh != freshSamples.end() && fresh->first == i)
            value.sample = fresh->second;
        const std::optional<CachedDigest> known = m_known.known(i);
        const auto placed = std::lower_bound(worker.placed.begin(), worker.placed.end(), i,
                                             [](const auto &p, std::size_t node) { return p.first < node; });
        if (placed != worker.placed.end() && placed->first == i) {
            value.attributes.emplace();
            if (nodes[i].has(HasAllocDigest))
                value.attributes->allocDigest = paddedDigest(nodes[i].allocDigest());
            value.attributes->tags = placed->second;
        }
        if (known && known->digest) {
            if (value.attributes) { // the digest was known, its placement is learnt
                value.sample = known->sample;
                value.digest = known->digest;
                value.fingerprint = known->fingerprint;
                m_known.learnt(worker.learnt, nodes[i], m_headerSkipped[i], std::move(value));
            }
            continue;
        }
        const auto learnt = std::lower_bound(worker.fingerprints.begin(), worker.fingerprints.end(),
                                             std::make_pair(i, Fingerprint{}));
        if (learnt != worker.fingerprints.end() && learnt->first == i)
            value.fingerprint = learnt->second;
        if (m_complete[i])
            value.digest = nodes[i].digest();
        const bool news = value.digest || value.fingerprint || (value.sample && !known);
        if (known) {
            value.sample = value.sample ? value.sample : known->sample;
            value.fingerprint = value.fingerprint ? value.fingerprint : known->fingerprint;
        }
        if (news)
            m_known.learnt(worker.learnt, nodes[i], m_headerSkipped[i], std::move(value));
    }
}

} // namespace selfsame
