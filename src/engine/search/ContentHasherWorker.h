#pragma once

#include "search/ContentHasher.h"
#include "search/Digest.h"

#include <QStringList>

#include <memory>
#include <utility>
#include <vector>

namespace selfsame {

// What one hashing thread owns: its buffers and its counts.
struct ContentHasher::Worker {
    ReadBuffer buffer;
    // Side-by-side chunks of one bucket; never zero-filled, every byte used is read first.
    std::unique_ptr<char[]> chunks;
    std::size_t chunksSize = 0;
    char *chunkSpace(std::size_t bytes)
    {
        if (bytes > chunksSize) {
            chunks.reset(new char[bytes]);
            chunksSize = bytes;
        }
        return chunks.get();
    }
    std::vector<qint64> allocStorage;
    SearchStatistics statistics;
    KnownDigests::Batch learnt;
    std::vector<std::pair<std::size_t, Fingerprint>> fingerprints; // learnt in the current size job
    std::vector<std::pair<std::size_t, QStringList>> placed; // allocation digest and tags read, with the tags
};

} // namespace selfsame
