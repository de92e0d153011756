#include "search/ContentHasher.h"

#include "results/FileAttributes.h"
#include "search/ContentHasherWorker.h"
#include "search/Digest.h"
#include "search/ReadingThreads.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <mutex>
#include <numeric>
#include <thread>
#include <unistd.h>
#include <unordered_map>

namespace selfsame {

namespace {

struct InodeKey {
    quint64 device;
    quint64 inode;
    bool operator==(const InodeKey &) const = default;
};
struct InodeHash {
    std::size_t operator()(const InodeKey &k) const { return std::hash<quint64>()(k.inode * 31 + k.device); }
};

} // namespace

ContentHasher::ContentHasher(const EntryTable &entries, RunContext &context, bool ignoreMp4Header, bool sampleFirst,
                             qint64 walkStartedNs)
    : m_entries(entries), m_folders(entries), m_context(context), m_ignoreMp4Header(ignoreMp4Header),
      m_sampleFirst(sampleFirst), m_known(context.digestCache, entries, walkStartedNs)
{
}

qint64 ContentHasher::hashedLength(const ContentNode &node) const
{
    if (!m_ignoreMp4Header)
        return node.size;
    const bool skip = skipsMp4Header(m_ignoreMp4Header, m_entries.name(m_entries[node.entry]), node.size);
    return node.size - (skip ? kMp4HeaderSize : 0);
}

qint64 ContentHasher::plannedBytes(const ContentNodes &nodes, const std::vector<std::size_t> &files) const
{
    qint64 bytes = 0;
    for (std::size_t i : files) {
        const std::optional<CachedDigest> known = m_known.known(i);
        if (known && known->digest)
            continue;
        const qint64 length = hashedLength(nodes[i]);
        bytes += length + (m_sampleFirst && length > 4 * kSampleSize ? 2 * kSampleSize : 0);
    }
    return bytes;
}

void ContentHasher::countRead(Worker &worker, qint64 bytes)
{
    worker.statistics.bytesRead += bytes;
    m_context.reading.read(bytes);
    reportProgress();
}

void ContentHasher::reportProgress()
{
    ReadProgress &reading = m_context.reading;
    m_context.status(
        [&] {
            return QCoreApplication::translate("DuplicateSearch", "Comparing files… %1")
                .arg(reading.text(m_context.throttle.now()));
        },
        reading.fraction());
}

template <typename Job> void ContentHasher::parallel(std::size_t count, Job job)
{
    std::atomic<std::size_t> next{0};
    std::mutex mutex;
    auto run = [&] {
        Worker worker;
        for (std::size_t i = next++; i < count && !m_context.aborted(); i = next++)
            job(i, worker);
        m_known.flush(worker.learnt);
        std::lock_guard lock(mutex);
        SearchStatistics &total = m_context.statistics;
        total.bytesRead += worker.statistics.bytesRead;
        total.filesHashed += worker.statistics.filesHashed;
        total.filesSampled += worker.statistics.filesSampled;
        total.unreadableFiles += worker.statistics.unreadableFiles;
        total.filesFromCache += worker.statistics.filesFromCache;
    };
    const std::size_t threads = std::min<std::size_t>(readingThreadsForFiles(),
                                                      std::max<std::size_t>(count, 1));
    std::vector<std::thread> pool;
    for (std::size_t t = 1; t < threads; ++t)
        pool.emplace_back(run);
    run();
    for (std::thread &thread : pool)
        thread.join();
}

void ContentHasher::hash(ContentNodes &nodes, const std::vector<SizeRun> &runs)
{
    m_needsDigest.assign(nodes.size(), m_sampleFirst ? 0 : 1);
    std::vector<std::pair<std::size_t, std::size_t>> followers; // (hard link, first path of its inode)
    std::vector<std::size_t> symlinks;
    std::vector<std::vector<std::size_t>> candidates; // per run: the first path of every inode
    std::unordered_map<InodeKey, std::size_t, InodeHash> firstOfInode;
    for (const SizeRun &run : runs) {
        firstOfInode.clear();
        std::vector<std::size_t> files;
        for (std::size_t i = run.begin; i < run.end; ++i) {
            ContentNode &node = nodes[i];
            const FileEntry &entry = m_entries[node.entry];
            if (node.has(IsFolder)) {
                continue;
            } else if (node.has(IsSymlink)) {
                symlinks.push_back(i);
            } else if (node.size == 0) {
                node.setDigest(emptyDigest());
            } else if (auto [first, isNew] = firstOfInode.try_emplace(InodeKey{entry.device, entry.inode}, i);
                       !isNew) {
                followers.emplace_back(i, first->second);
                m_needsDigest[first->second] = 1;
            } else {
                files.push_back(i);
            }
        }
        if (!files.empty())
            candidates.push_back(std::move(files));
    }
    if (m_known.enabled()) {
        m_headerSkipped.assign(nodes.size(), 0);
        m_complete.assign(nodes.size(), 0);
        std::vector<std::size_t> all;
        for (const auto &files : candidates)
            for (std::size_t i : files) {
                m_headerSkipped[i] = hashedLength(nodes[i]) != nodes[i].size;
                all.push_back(i);
            }
        m_known.lookUp(nodes, all, m_headerSkipped);
    }

    parallel(symlinks.size(), [&](std::size_t i, Worker &) {
        ContentNode &node = nodes[symlinks[i]];
        if (auto digest = symlinkDigest(m_entries.path(m_entries[node.entry]).c_str()))
            node.setDigest(*digest);
        reportProgress();
    });
    // Each size is one job, the largest first so that no long job starts last.
    auto bytes = [&](const std::vector<std::size_t> &files) { return qint64(files.size()) * nodes[files[0]].size; };
    std::stable_sort(candidates.begin(), candidates.end(),
                     [&](const auto &a, const auto &b) { return bytes(a) > bytes(b); });
    // What a job did not read of its plan is given up when it ends, so the bytes to read only shrink.
    std::vector<qint64> planned(candidates.size());
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        planned[i] = plannedBytes(nodes, candidates[i]);
        m_context.reading.plan(planned[i]);
    }
    parallel(candidates.size(), [&](std::size_t i, Worker &worker) {
        const qint64 readBefore = worker.statistics.bytesRead;
        hashSize(nodes, candidates[i], worker);
        m_context.reading.release(planned[i] - (worker.statistics.bytesRead - readBefore));
        reportProgress();
    });

    std::unordered_map<std::size_t, QStringList> tagsOf(m_tags.begin(), m_tags.end());
    for (const auto &[link, first] : followers) {
        if (auto tags = tagsOf.find(first); tags != tagsOf.end())
            m_tags.emplace_back(link, tags->second); // hard links share their attributes
        if (nodes[first].has(HasDigest))
            nodes[link].setDigest(nodes[first].digest());
        if (nodes[first].has(HasAllocDigest))
            nodes[link].setAllocDigest(nodes[first].allocDigest());
    }
}

void ContentHasher::hashSize(ContentNodes &nodes, const std::vector<std::size_t> &files, Worker &worker)
{
    // Files of one size split by whether their header is left out: they hash other bytes.
    std::vector<std::size_t> whole[2];
    std::vector<std::size_t> sampled;
    for (std::size_t i : files) {
        const qint64 length = hashedLength(nodes[i]);
        if (m_sampleFirst && length > 4 * kSampleSize)
            sampled.push_back(i);
        else
            whole[length == nodes[i].size ? 0 : 1].push_back(i);
    }
    worker.fingerprints.clear();
    worker.placed.clear();
    for (const auto &group : whole)
        hashWhole(nodes, group, worker);
    std::vector<std::pair<std::size_t, quint64>> freshSamples;
    hashSampled(nodes, sampled, worker, freshSamples);
    if (m_known.enabled()) {
        completeKnown(nodes, files, worker);
        recordLearnt(nodes, files, freshSamples, worker);
    }
}

void ContentHasher::hashWhole(ContentNodes &nodes, const std::vector<std::size_t> &files, Worker &worker)
{
    std::vector<std::size_t> unknown, fingerprinted;
    for (std::size_t i : files) {
        const std::optional<CachedDigest> known = m_known.known(i);
        if (known && known->digest) {
            nodes[i].setDigest(*known->digest);
            ++worker.statistics.filesFromCache;
            reportProgress();
        } else if (known && known->fingerprint) {
            fingerprinted.push_back(i);
        } else {
            unknown.push_back(i);
        }
    }
    // A file may equal one known from the cache: it is read to the end, never dropped.
    if (unknown.size() < files.size())
        for (std::size_t i : unknown)
            m_needsDigest[i] = 1;
    if (unknown.size() == 1 && !m_needsDigest[unknown.front()])
        reportProgress(); // alone in its size: cannot have a duplicate
    else if (!unknown.empty())
        hashBucket(nodes, unknown, {}, worker);
    readUnlessUnique(nodes, files, fingerprinted, false, worker);
}

void ContentHasher::hashSampled(ContentNodes &nodes, const std::vector<std::size_t> &files, Worker &worker,
                                std::vector<std::pair<std::size_t, quint64>> &freshSamples)
{
    if (files.empty())
        return;
    // Files stay open from their sample to their digest, unless there are too many of one size.
    const bool keepOpen = files.size() <= kMaxOpenFilesPerReader;
    enum Known { Unknown, ByDigest, ByFingerprint };
    struct Sample {
        quint64 key;
        std::size_t node;
        int fd;
        Known known;
    };
    std::vector<Sample> samples;
    bool knownWithoutSample = false; // then no unknown file can be proved different by its sample
    for (std::size_t i : files) {
        if (m_context.aborted())
            break; // the files sampled so far are still compared; the others have no sample
        ContentNode &node = nodes[i];
        const bool skip = hashedLength(node) != node.size;
        const std::optional<CachedDigest> known = m_known.known(i);
        if (known && known->digest) {
            node.setDigest(*known->digest);
            ++worker.statistics.filesFromCache;
            reportProgress();
            if (known->sample)
                samples.push_back({*known->sample ^ quint64(skip), i, -1, ByDigest});
            else
                knownWithoutSample = true;
            continue;
        }
        if (known && known->sample) {
            samples.push_back({*known->sample ^ quint64(skip), i, -1, known->fingerprint ? ByFingerprint : Unknown});
            continue;
        }
        int fd = m_folders.openFile(m_entries[node.entry]);
        std::optional<quint64> fingerprint;
        qint64 sampled = 0;
        if (fd >= 0)
            fingerprint = sampleFingerprint(fd, node.size, skip, worker.buffer, kSampleSize, &sampled);
        countRead(worker, sampled);
        if (fd >= 0 && (!fingerprint || !keepOpen)) {
            close(fd);
            fd = -1;
        }
        if (fingerprint) {
            samples.push_back({*fingerprint ^ quint64(skip), i, fd, Unknown}); // the header rule is part of the key
            if (m_known.enabled())
                freshSamples.emplace_back(i, *fingerprint);
        } else {
            ++worker.statistics.unreadableFiles;
            reportProgress();
        }
    }
    std::sort(samples.begin(), samples.end(), [](const Sample &a, const Sample &b) {
        return a.key != b.key ? a.key < b.key : a.node < b.node;
    });
    for (std::size_t begin = 0; begin < samples.size();) {
        std::size_t end = begin + 1;
        while (end < samples.size() && samples[end].key == samples[begin].key)
            ++end;
        std::vector<std::size_t> bucket, fingerprinted, group;
        std::vector<int> fds;
        bool someKnown = knownWithoutSample;
        for (std::size_t k = begin; k < end; ++k) {
            group.push_back(samples[k].node);
            if (samples[k].known != Unknown)
                someKnown = true;
            if (samples[k].known == ByFingerprint) {
                fingerprinted.push_back(samples[k].node);
            } else if (samples[k].known == Unknown) {
                bucket.push_back(samples[k].node);
                fds.push_back(samples[k].fd);
            }
        }
        if (someKnown)
            for (std::size_t i : bucket)
                m_needsDigest[i] = 1;
        if (bucket.size() >= 2 || (bucket.size() == 1 && m_needsDigest[bucket.front()])) {
            hashBucket(nodes, bucket, fds, worker);
        } else if (bucket.size() == 1) {
            if (fds.front() >= 0)
                close(fds.front());
            ++worker.statistics.filesSampled;
            reportProgress();
        }
        // Files of other samples differ from these; those without one could equal them.
        readUnlessUnique(nodes, group, fingerprinted, knownWithoutSample, worker);
        begin = end;
    }
}

void ContentHasher::hashAlone(ContentNodes &nodes, std::size_t index, Worker &worker)
{
    ContentNode &node = nodes[index];
    const std::string path = m_entries.path(m_entries[node.entry]);
    const DigestResult result = computeDigest(path.c_str(), node.size,
                                              m_ignoreMp4Header, worker.buffer, worker.allocStorage,
                                              &m_context.searchingState, m_known.enabled());
    countRead(worker, result.bytesRead);
    if (result.stopped)
        return;
    if (result.digest) {
        node.setDigest(*result.digest);
        ++worker.statistics.filesHashed;
        if (m_known.enabled() && result.bytesRead == hashedLength(node)) {
            m_complete[index] = 1;
            worker.fingerprints.emplace_back(index, *result.fingerprint);
        }
    } else {
        ++worker.statistics.unreadableFiles;
    }
    if (result.allocDigest)
        node.setAllocDigest(*result.allocDigest);
    QStringList tags = readUserTags(path.c_str());
    if (m_known.enabled() && result.digest)
        worker.placed.emplace_back(index, tags);
    if (!tags.isEmpty()) {
        std::lock_guard lock(m_tagsMutex);
        m_tags.emplace_back(index, std::move(tags));
    }
    reportProgress();
}

bool ContentHasher::readRest(int fd, qint64 offset, qint64 size, Fingerprinter &fingerprint, Worker &worker)
{
    while (offset < size) {
        if (fd < 0 || m_context.aborted())
            return false;
        const std::size_t want = std::size_t(std::min<qint64>(qint64(worker.buffer.size()), size - offset));
        const ssize_t got = readAt(fd, worker.buffer.data(), want, offset);
        if (got > 0) {
            countRead(worker, got);
            fingerprint.update(worker.buffer.data(), std::size_t(got));
        }
        if (got != ssize_t(want))
            return false; // shorter than enumerated: it changed meanwhile
        offset += got;
    }
    return true;
}

void ContentHasher::hashBucket(ContentNodes &nodes, const std::vector<std::size_t> &bucket,
                               const std::vector<int> &openFiles, Worker &worker)
{
    const qint64 size = nodes[bucket.front()].size;
    const qint64 start = size - hashedLength(nodes[bucket.front()]);
    const std::size_t count = bucket.size();
    // Small files that fit in memory together are read whole; others chunk by chunk, all open at once.
    const bool oneChunk =
        size - start <= qint64(worker.buffer.size()) && qint64(count) * (size - start) <= kMaxBucketBytes;
    if (!oneChunk && count > kMaxOpenFilesPerReader) {
        for (std::size_t node : bucket)
            hashAlone(nodes, node, worker);
        return;
    }
    // Chunks of all files together stay within the cache where possible.
    const std::size_t chunk = oneChunk ? std::size_t(size - start)
                                       : std::clamp<std::size_t>(worker.buffer.size() / count, 16384,
                                                                 worker.buffer.size());

    struct Member {
        std::size_t node;
        int fd = -1;      // -1 once read whole and closed
        qint64 got = 0;   // bytes of the current chunk
        bool done = false;
    };
    std::vector<Member> members;
    char *const space = worker.chunkSpace(count * chunk);
    auto bytesOf = [&](std::size_t m) { return space + m * chunk; };
    // Files too many to keep open are read at once and closed, the descriptors being scarce.
    const bool readAtOnce = oneChunk && count > kMaxOpenFilesPerReader;
    for (std::size_t k = 0; k < count; ++k) {
        const std::size_t node = bucket[k];
        int fd = openFiles.empty() || openFiles[k] < 0 ? m_folders.openFile(m_entries[nodes[node].entry])
                                                     : openFiles[k];
        if (fd < 0) {
            ++worker.statistics.unreadableFiles;
            reportProgress();
            continue;
        }
        Member member{node, fd};
        if (readAtOnce) {
            member.got = std::max<ssize_t>(readAt(fd, bytesOf(members.size()), chunk, start), 0);
            countRead(worker, member.got);
            close(fd);
            member.fd = -1;
        }
        members.push_back(member);
    }

    // Members that have agreed so far share one hashing state; a class splits where they differ.
    struct Class {
        Sha512 hash;
        std::vector<std::size_t> members;
        std::optional<Fingerprinter> fingerprint; // with a cache only
    };
    std::vector<Class> classes;
    classes.push_back({Sha512(), {}, {}});
    if (m_known.enabled())
        classes.back().fingerprint.emplace();
    classes.back().members.resize(members.size());
    std::iota(classes.back().members.begin(), classes.back().members.end(), 0);

    auto finish = [&](Class &c, bool complete) {
        const Digest digest = c.hash.final();
        for (std::size_t m : c.members) {
            ContentNode &node = nodes[members[m].node];
            node.setDigest(digest);
            const int fd = members[m].fd >= 0 ? members[m].fd : m_folders.openFile(m_entries[node.entry]);
            if (complete && c.fingerprint) {
                m_complete[members[m].node] = 1;
                worker.fingerprints.emplace_back(members[m].node, c.fingerprint->final());
            }
            if (fd >= 0) {
                if (auto alloc = computeAllocDigest(fd, worker.allocStorage))
                    node.setAllocDigest(*alloc);
                QStringList tags = readUserTags(fd);
                if (m_known.enabled())
                    worker.placed.emplace_back(members[m].node, tags);
                if (!tags.isEmpty()) {
                    std::lock_guard lock(m_tagsMutex);
                    m_tags.emplace_back(members[m].node, std::move(tags));
                }
                if (fd != members[m].fd)
                    close(fd);
            }
            ++worker.statistics.filesHashed;
            members[m].done = true;
            reportProgress();
        }
    };
    auto drop = [&](std::size_t m) { // a file no other shares: it needs no digest
        members[m].done = true;
        ++worker.statistics.filesSampled;
        reportProgress();
    };

    qint64 offset = start;
    for (; offset < size && !classes.empty(); offset += qint64(chunk)) {
        if (m_context.aborted())
            break;
        const std::size_t want = std::size_t(std::min<qint64>(qint64(chunk), size - offset));
        for (const Class &c : classes)
            for (std::size_t m : c.members) {
                if (readAtOnce)
                    continue;
                const ssize_t n = readAt(members[m].fd, bytesOf(m), want, offset);
                members[m].got = std::max<ssize_t>(n, 0);
                countRead(worker, members[m].got);
            }
        std::vector<Class> next;
        for (Class &c : classes) {
            std::vector<std::size_t> &ms = c.members;
            std::sort(ms.begin(), ms.end(), [&](std::size_t a, std::size_t b) {
                if (members[a].got != members[b].got)
                    return members[a].got < members[b].got;
                return std::memcmp(bytesOf(a), bytesOf(b), std::size_t(members[a].got)) < 0;
            });
            for (std::size_t begin = 0; begin < ms.size();) {
                std::size_t end = begin + 1;
                while (end < ms.size() && members[ms[end]].got == members[ms[begin]].got &&
                       std::memcmp(bytesOf(ms[end]), bytesOf(ms[begin]), std::size_t(members[ms[begin]].got)) == 0)
                    ++end;
                Class part{c.hash, {ms.begin() + qsizetype(begin), ms.begin() + qsizetype(end)}, c.fingerprint};
                const Member &first = members[ms[begin]];
                if (part.fingerprint)
                    part.fingerprint->update(bytesOf(ms[begin]), std::size_t(first.got));
                if (end - begin == 1 && !m_needsDigest[first.node]) {
                    // Read to its end, it is known by its fingerprint at the next search; one told
                    // apart halfway is read on for it, or every later search would read it again.
                    if (part.fingerprint && first.got == qint64(want) &&
                        readRest(members[ms[begin]].fd, offset + qint64(want), size, *part.fingerprint, worker))
                        worker.fingerprints.emplace_back(first.node, part.fingerprint->final());
                    drop(ms[begin]);
                } else {
                    part.hash.update(bytesOf(ms[begin]), std::size_t(first.got));
                    // A short read ends the file here: its digest covers what was read.
                    if (first.got < qint64(want))
                        finish(part, false);
                    else
                        next.push_back(std::move(part));
                }
                begin = end;
            }
        }
        classes = std::move(next);
    }
    // Classes still open were cut short by an abort: a digest of part of the bytes could make
    // files that differ further on look equal, so they get none.
    if (offset >= size)
        for (Class &c : classes)
            finish(c, true);
    for (Member &member : members) {
        if (!member.done)
            reportProgress();
        if (member.fd >= 0)
            close(member.fd);
    }
}

} // namespace selfsame
