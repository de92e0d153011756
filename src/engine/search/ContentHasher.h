#pragma once

#include "search/ContentNode.h"
#include "search/EntryTable.h"
#include "search/RunContext.h"

#include <vector>

namespace selfsame {

// A run of nodes of one size, [begin, end) in the node list.
struct SizeRun {
    std::size_t begin;
    std::size_t end;
};

// Gives every member of the same-size runs its content digest, on all cores. With
// `sampleFirst`, a file whose first and last bytes already differ from every other file
// of its size is left without a digest: it cannot have a duplicate, so reading it whole
// would change nothing. Hard links of one file are read once.
class ContentHasher {
public:
    ContentHasher(const EntryTable &entries, RunContext &context, bool ignoreMp4Header, bool sampleFirst);

    void hash(std::vector<ContentNode> &nodes, const std::vector<SizeRun> &runs);

    static constexpr qint64 kSampleSize = 4096;

private:
    struct Task {
        std::size_t node;
        bool sample; // fingerprint first, digest only if another file shares it
    };
    void runTasks(std::vector<ContentNode> &nodes, const std::vector<Task> &tasks, std::vector<quint64> *fingerprints,
                  std::vector<char> *fingerprinted);

    const EntryTable &m_entries;
    RunContext &m_context;
    bool m_ignoreMp4Header;
    bool m_sampleFirst;
    qint64 m_total = 0;
    std::atomic<qint64> m_handled{0};
};

} // namespace selfsame
