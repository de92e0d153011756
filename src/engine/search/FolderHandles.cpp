#include "search/FolderHandles.h"

#include "search/Digest.h"
#include "search/ReadingThreads.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace selfsame {

namespace {

constexpr int kNotOpened = -1;
constexpr int kUnavailable = -2;

// Raises the soft descriptor limit as far as allowed and returns how many this table may use,
// leaving room for the files being read and everything else the process opens.
long descriptorBudget(std::size_t wanted)
{
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return 0;
    const rlim_t target = std::min<rlim_t>(limit.rlim_max, rlim_t(wanted) + 4096);
    if (target > limit.rlim_cur) {
        rlimit raised = limit;
        raised.rlim_cur = target;
        if (setrlimit(RLIMIT_NOFILE, &raised) == 0)
            limit = raised;
    }
    return std::max<long>(0, long(limit.rlim_cur) - long(descriptorsForReading()));
}

} // namespace

FolderHandles::FolderHandles(const EntryTable &entries)
    : m_entries(entries), m_count(entries.folderCount()), m_handles(new std::atomic<int>[m_count]),
      m_budget(descriptorBudget(m_count))
{
    for (std::size_t i = 0; i < m_count; ++i)
        m_handles[i].store(kNotOpened, std::memory_order_relaxed);
}

FolderHandles::~FolderHandles()
{
    for (std::size_t i = 0; i < m_count; ++i)
        if (const int fd = m_handles[i].load(); fd >= 0)
            close(fd);
}

int FolderHandles::folder(quint32 index)
{
    int fd = m_handles[index].load(std::memory_order_acquire);
    if (fd != kNotOpened)
        return fd;
    if (m_budget.fetch_sub(1) <= 0) {
        m_handles[index].store(kUnavailable, std::memory_order_release);
        return kUnavailable;
    }
    const int opened = open(m_entries.folderPath(index).c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    int expected = kNotOpened;
    const int value = opened >= 0 ? opened : kUnavailable;
    if (!m_handles[index].compare_exchange_strong(expected, value, std::memory_order_acq_rel)) {
        if (opened >= 0)
            close(opened); // another thread opened it first
        return expected;
    }
    return value;
}

int FolderHandles::openFile(const FileEntry &entry)
{
    const int dirfd = folder(entry.folder);
    if (dirfd < 0)
        return openForReading(m_entries.path(entry).c_str());
    return openForReadingAt(dirfd, std::string(m_entries.name(entry)).c_str());
}

} // namespace selfsame
