#include "results/CloneStatusPass.h"

#include "names/FileNames.h"

#include <sys/stat.h>

namespace selfsame
{

namespace
{

bool exists(const QString &path)
{
    struct stat st;
    return ::stat(pathBytes(path).constData(), &st) == 0;
}

bool linkStat(const QString &path, struct stat *st)
{
    return ::lstat(pathBytes(path).constData(), st) == 0;
}

bool sameAllocation(const ResultItem &a, const ResultItem &b)
{
    return a.has(HasAllocDigest) && b.has(HasAllocDigest) && a.allocDigest == b.allocDigest;
}

} // namespace

void CloneStatusPass::ensureDigests(ResultItem &item)
{
    if (item.has(HasDigest)) return;
    if (!m_buffer) m_buffer = std::make_unique<ReadBuffer>(kBufferSize);
    const DigestResult result = computeDigest(pathBytes(item.path).constData(), item.size, m_ignoreMp4Header,
                                              *m_buffer, m_allocStorage);
    if (result.digest) {
        item.digest = *result.digest;
        item.set(HasDigest);
    }
    if (result.allocDigest) {
        item.allocDigest = allocationKey(*result.allocDigest);
        item.set(HasAllocDigest);
    }
}

CloneStatus CloneStatusPass::statusOf(ResultItem &selected, ResultItem &other)
{
    if (other.path == selected.path) return SelectedItself;
    if (selected.has(Missing) || other.has(Missing) || !exists(selected.path) || !exists(other.path))
        return FileMissing;
    struct stat a, b;
    const bool statted = linkStat(selected.path, &a) && linkStat(other.path, &b);
    if (statted && a.st_dev == b.st_dev && a.st_ino == b.st_ino) return HardLink;
    if (sameAllocation(selected, other)) return AlreadyClone;
    if (m_mode != DetectionMode::Content && selected.size == other.size) {
        ensureDigests(selected);
        ensureDigests(other);
        if (selected.has(HasDigest) && other.has(HasDigest) && selected.digest == other.digest)
            return sameAllocation(selected, other) ? AlreadyClone : ProvenDuplicate;
    }
    return statted && a.st_dev == b.st_dev ? PlainDuplicate : OtherVolume;
}

} // namespace selfsame
