#include "search/ContentHasher.h"

#include "format/ByteSize.h"
#include "search/Digest.h"

#include <QCoreApplication>

#include <algorithm>
#include <mutex>
#include <thread>
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

unsigned hashingThreads() { return std::clamp(std::thread::hardware_concurrency(), 1u, 16u); }

} // namespace

ContentHasher::ContentHasher(const EntryTable &entries, RunContext &context, bool ignoreMp4Header, bool sampleFirst)
    : m_entries(entries), m_context(context), m_ignoreMp4Header(ignoreMp4Header), m_sampleFirst(sampleFirst)
{
}

void ContentHasher::runTasks(std::vector<ContentNode> &nodes, const std::vector<Task> &tasks,
                             std::vector<quint64> *fingerprints, std::vector<char> *fingerprinted)
{
    std::atomic<std::size_t> next{0};
    std::mutex statisticsMutex;
    auto worker = [&] {
        ReadBuffer buffer;
        std::vector<qint64> allocStorage;
        SearchStatistics local;
        for (std::size_t i = next++; i < tasks.size() && !m_context.aborted(); i = next++) {
            ContentNode &node = nodes[tasks[i].node];
            const FileEntry &entry = m_entries[node.entry];
            const std::string path = m_entries.path(entry);
            m_context.status(
                [&] {
                    return QCoreApplication::translate("DuplicateSearch", "Hashing files of %1:")
                               .arg(formatByteCount(node.size)) +
                           QLatin1Char(' ') + QString::fromStdString(path);
                },
                m_total > 0 ? double(m_handled.load()) / double(m_total) : 0.0);
            if (node.has(IsSymlink)) {
                if (auto digest = symlinkDigest(path.c_str()))
                    node.setDigest(*digest);
            } else if (tasks[i].sample) {
                const bool skip = skipsMp4Header(m_ignoreMp4Header, m_entries.name(entry), node.size);
                if (auto fingerprint = sampleFingerprint(path.c_str(), node.size, skip, buffer, kSampleSize,
                                                         &local.bytesRead)) {
                    (*fingerprints)[i] = *fingerprint;
                    (*fingerprinted)[i] = 1;
                }
                continue; // counted as handled once the fingerprints are compared
            } else {
                const DigestResult result = computeDigest(path.c_str(), node.size, m_ignoreMp4Header, buffer,
                                                          allocStorage, &m_context.searchingState);
                local.bytesRead += result.bytesRead;
                if (result.digest) {
                    node.setDigest(*result.digest);
                    ++local.filesHashed;
                } else {
                    ++local.unreadableFiles;
                }
                if (result.allocDigest)
                    node.setAllocDigest(*result.allocDigest);
            }
            ++m_handled;
        }
        std::lock_guard lock(statisticsMutex);
        m_context.statistics.bytesRead += local.bytesRead;
        m_context.statistics.filesHashed += local.filesHashed;
        m_context.statistics.unreadableFiles += local.unreadableFiles;
    };
    const unsigned threads = std::min<std::size_t>(hashingThreads(), std::max<std::size_t>(tasks.size(), 1));
    std::vector<std::thread> pool;
    for (unsigned t = 1; t < threads; ++t)
        pool.emplace_back(worker);
    worker();
    for (std::thread &thread : pool)
        thread.join();
}

void ContentHasher::hash(std::vector<ContentNode> &nodes, const std::vector<SizeRun> &runs)
{
    m_total = 0;
    for (const SizeRun &run : runs)
        m_total += qint64(run.end - run.begin);

    // Hard links of one inode share their bytes: only the first path of each is read.
    std::vector<std::pair<std::size_t, std::size_t>> followers; // (node, node it copies)
    std::vector<Task> tasks;
    std::vector<std::size_t> taskRun; // run index of each task, for comparing fingerprints
    std::unordered_map<InodeKey, std::size_t, InodeHash> firstOfInode;
    for (std::size_t r = 0; r < runs.size(); ++r) {
        firstOfInode.clear();
        for (std::size_t i = runs[r].begin; i < runs[r].end; ++i) {
            ContentNode &node = nodes[i];
            const FileEntry &entry = m_entries[node.entry];
            if (node.has(IsFolder)) {
                ++m_handled;
                continue;
            }
            if (!node.has(IsSymlink) && node.size == 0) {
                node.setDigest(emptyDigest());
                ++m_handled;
                continue;
            }
            if (!node.has(IsSymlink)) {
                auto [it, inserted] = firstOfInode.try_emplace(InodeKey{entry.device, entry.inode}, i);
                if (!inserted) {
                    followers.emplace_back(i, it->second);
                    continue;
                }
            }
            const qint64 hashed = node.size - (skipsMp4Header(m_ignoreMp4Header, m_entries.name(entry), node.size)
                                                   ? kMp4HeaderSize
                                                   : 0);
            const bool sample = m_sampleFirst && !node.has(IsSymlink) && hashed > 4 * kSampleSize;
            tasks.push_back({i, sample});
            taskRun.push_back(r);
        }
    }

    // Every inode stands for its hard links too; a fingerprint shared within a run means
    // the file may have a duplicate.
    std::unordered_map<std::size_t, int> pathsOfNode;
    for (const auto &[follower, first] : followers)
        ++pathsOfNode[first];

    std::vector<quint64> fingerprints(tasks.size());
    std::vector<char> fingerprinted(tasks.size(), 0);
    runTasks(nodes, tasks, &fingerprints, &fingerprinted);

    std::vector<Task> fullReads;
    std::vector<std::size_t> order;
    for (std::size_t t = 0; t < tasks.size();) {
        std::size_t end = t;
        while (end < tasks.size() && taskRun[end] == taskRun[t])
            ++end;
        order.clear();
        for (std::size_t k = t; k < end; ++k)
            if (tasks[k].sample && fingerprinted[k])
                order.push_back(k);
        std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
            return fingerprints[a] < fingerprints[b];
        });
        for (std::size_t k = 0; k < order.size(); ++k) {
            const bool sharedBefore = k > 0 && fingerprints[order[k - 1]] == fingerprints[order[k]];
            const bool sharedAfter = k + 1 < order.size() && fingerprints[order[k + 1]] == fingerprints[order[k]];
            const bool hardLinked = pathsOfNode.count(tasks[order[k]].node) > 0;
            if (sharedBefore || sharedAfter || hardLinked) {
                fullReads.push_back({tasks[order[k]].node, false});
            } else {
                ++m_handled;
                ++m_context.statistics.filesSampled;
            }
        }
        for (std::size_t k = t; k < end; ++k)
            if (tasks[k].sample && !fingerprinted[k]) {
                ++m_handled;
                ++m_context.statistics.unreadableFiles;
            }
        t = end;
    }
    runTasks(nodes, fullReads, nullptr, nullptr);

    for (const auto &[follower, first] : followers) {
        ContentNode &node = nodes[follower];
        if (nodes[first].has(HasDigest))
            node.setDigest(nodes[first].digest);
        if (nodes[first].has(HasAllocDigest))
            node.setAllocDigest(nodes[first].allocDigest);
        ++m_handled;
    }
}

} // namespace selfsame
