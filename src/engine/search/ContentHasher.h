#pragma once

#include "search/ContentNode.h"
#include "search/EntryTable.h"
#include "search/FolderHandles.h"
#include "search/KnownDigests.h"
#include "search/RunContext.h"

#include <QStringList>

#include <mutex>
#include <vector>

namespace selfsame {

// A run of nodes of one size, [begin, end) in the node list.
struct SizeRun {
    std::size_t begin;
    std::size_t end;
};

// Gives the members of same-size runs their content digests, on all cores, reading as
// little as the digests allow:
// - hard links of one file are read once;
// - with `sampleFirst`, a file whose first and last bytes differ from every other file of
//   its size is never read whole: it cannot have a duplicate, so no digest is needed;
// - files that may be equal are read side by side and compared chunk by chunk; SHA-512 runs
//   once per distinct content, and a file that turns out unique stops being read.
// - with a digest cache, files whose key is unchanged since an earlier search take their
//   digest, whole-content fingerprint or sample from it: when every file of a size is known
//   there, none is read, and a file known by a fingerprint no other file has needs no digest.
// Every digest produced is the SHA-512 of the file's bytes, as if each file were hashed alone.
class ContentHasher {
public:
    // `walkStartedNs`: when enumeration began, which tells files too fresh for the cache.
    ContentHasher(const EntryTable &entries, RunContext &context, bool ignoreMp4Header, bool sampleFirst,
                  qint64 walkStartedNs = 0);

    void hash(ContentNodes &nodes, const std::vector<SizeRun> &runs);

    static constexpr qint64 kSampleSize = 4096;
    // Files of one size compared side by side hold at most this much in memory together.
    static constexpr qint64 kMaxBucketBytes = qint64(1) << 20;

    // User tags of the digested files that have any, read while they were open.
    std::vector<std::pair<std::size_t, QStringList>> takeTags() { return std::move(m_tags); }

private:
    struct Worker;

    // All files of one size: sampled, split by their samples, and digested where they agree.
    void hashSize(ContentNodes &nodes, const std::vector<std::size_t> &files, Worker &worker);
    void hashWhole(ContentNodes &nodes, const std::vector<std::size_t> &files, Worker &worker);
    void hashSampled(ContentNodes &nodes, const std::vector<std::size_t> &files, Worker &worker,
                     std::vector<std::pair<std::size_t, quint64>> &freshSamples);
    // Files the cache knows by their fingerprint alone are read only when another file of
    // `group` has the same fingerprint, or one whose fingerprint is unknown (`othersUnknown`).
    void readUnlessUnique(ContentNodes &nodes, const std::vector<std::size_t> &group,
                          const std::vector<std::size_t> &fingerprinted, bool othersUnknown, Worker &worker);
    // Files that took their digest from the cache and may join a group: allocation digest and tags.
    void completeKnown(ContentNodes &nodes, const std::vector<std::size_t> &files, Worker &worker);
    void recordLearnt(const ContentNodes &nodes, const std::vector<std::size_t> &files,
                      const std::vector<std::pair<std::size_t, quint64>> &freshSamples, Worker &worker);
    // Files that may share their content; `openFiles` holds their descriptors when already open.
    void hashBucket(ContentNodes &nodes, const std::vector<std::size_t> &bucket,
                    const std::vector<int> &openFiles, Worker &worker);
    // Feeds the fingerprint the bytes of an open file from `offset` to `size`; false when it
    // could not read them all.
    bool readRest(int fd, qint64 offset, qint64 size, Fingerprinter &fingerprint, Worker &worker);
    void hashAlone(ContentNodes &nodes, std::size_t index, Worker &worker);
    template <typename Job> void parallel(std::size_t count, Job job);
    qint64 hashedLength(const ContentNode &node) const;
    // The most a size job reads: the samples and every byte hashed of the files it may open.
    qint64 plannedBytes(const ContentNodes &nodes, const std::vector<std::size_t> &files) const;
    void countRead(Worker &worker, qint64 bytes);
    void reportProgress();

    const EntryTable &m_entries;
    FolderHandles m_folders;
    RunContext &m_context;
    bool m_ignoreMp4Header;
    bool m_sampleFirst;
    std::vector<char> m_needsDigest; // per node: hard links share it, so it cannot be skipped
    std::vector<char> m_headerSkipped; // per node: its digest leaves out the MP4 header
    std::vector<char> m_complete;      // per node: digested over every byte, worth keeping
    KnownDigests m_known;
    std::mutex m_tagsMutex;
    std::vector<std::pair<std::size_t, QStringList>> m_tags;
};

} // namespace selfsame
