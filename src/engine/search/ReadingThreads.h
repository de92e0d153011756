#pragma once

#include <algorithm>
#include <cstddef>
#include <malloc.h>
#include <sys/resource.h>
#include <thread>

namespace selfsame
{

// Threads for work that waits on the disk: the walk's folder listings and file status, and
// the reading of candidates. A cold disk answers one request at a time per thread, so more
// requests in flight than cores let it serve them in its own order; with the page cache warm
// the extra threads only take turns. On two cores, a cold search of 200,000 files took 12 s
// with eight threads where it took 31 s with two.
inline unsigned readingThreads()
{
    return std::clamp(2 * std::thread::hardware_concurrency(), 8u, 16u);
}

// Files one reading thread keeps open at once while it compares them side by side.
inline constexpr std::size_t kMaxOpenFilesPerReader = 128;
// Descriptors left for everything the process opens besides the files being read.
inline constexpr std::size_t kDescriptorsForTheRest = 256;

// Descriptors kept free for the files being read and for everything else the process opens.
inline std::size_t descriptorsForReading()
{
    return readingThreads() * kMaxOpenFilesPerReader + kDescriptorsForTheRest;
}

// The reading threads whose open files fit within the process's descriptor limit.
inline unsigned readingThreadsForFiles()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY) return readingThreads();
    const std::size_t spare =
        limit.rlim_cur > kDescriptorsForTheRest ? std::size_t(limit.rlim_cur) - kDescriptorsForTheRest : 0;
    return unsigned(std::clamp<std::size_t>(spare / kMaxOpenFilesPerReader, 1, readingThreads()));
}

// Every thread that allocates may get a heap of its own, up to eight per core. The digests
// that the many reading threads make, freed later by the main thread, then leave holes in as
// many heaps: one heap per core kept a search of a million files 18 MB smaller, in the same
// time. Called first thing in main, before any thread starts.
inline void limitHeapsToCores()
{
    mallopt(M_ARENA_MAX, int(std::max(2u, std::thread::hardware_concurrency())));
}

} // namespace selfsame
