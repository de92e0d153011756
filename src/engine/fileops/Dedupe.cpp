#include "fileops/Dedupe.h"

#include "names/FileNames.h"

#include <QtGlobal>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace selfsame
{

namespace
{

// btrfs takes at most 16 MiB per request; others take more, but not less.
constexpr off_t kDedupeChunk = off_t(16) << 20;

int dedupeOpen(int source, int dest, off_t size)
{
    // The request ends in a flexible array: room for one destination.
    alignas(
        file_dedupe_range) unsigned char buffer[sizeof(file_dedupe_range) + sizeof(file_dedupe_range_info)];
    for (off_t offset = 0; offset < size;) {
        std::memset(buffer, 0, sizeof buffer);
        auto *range = reinterpret_cast<file_dedupe_range *>(buffer);
        range->src_offset = quint64(offset);
        range->src_length = quint64(std::min(kDedupeChunk, size - offset));
        range->dest_count = 1;
        file_dedupe_range_info &info = range->info[0];
        info.dest_fd = dest;
        info.dest_offset = quint64(offset);
        if (ioctl(source, FIDEDUPERANGE, range) != 0) return errno;
        if (info.status == FILE_DEDUPE_RANGE_DIFFERS) return kContentDiffers;
        if (info.status < 0) return -info.status;
        if (info.bytes_deduped == 0) return EINVAL;
        offset += off_t(info.bytes_deduped);
    }
    return 0;
}

} // namespace

int dedupeFile(const QString &reference, const QString &duplicate)
{
    const int source = open(pathBytes(reference).constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    if (source < 0) return errno;
    // Read-only is enough for the owner; the kernel checks the right to share.
    const int dest = open(pathBytes(duplicate).constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    if (dest < 0) {
        const int error = errno;
        close(source);
        return error;
    }
    struct stat from {
    }, to{};
    int error = fstat(source, &from) != 0 || fstat(dest, &to) != 0 ? errno : 0;
    if (!error && (!S_ISREG(from.st_mode) || !S_ISREG(to.st_mode)))
        error = EINVAL;
    else if (!error && from.st_size != to.st_size)
        error = kContentDiffers;
    if (!error) error = dedupeOpen(source, dest, to.st_size);
    // Sharing is no change of content: the dates stay as they were.
    struct stat after {
    };
    if (fstat(dest, &after) == 0 &&
        (after.st_mtim.tv_sec != to.st_mtim.tv_sec || after.st_mtim.tv_nsec != to.st_mtim.tv_nsec ||
         after.st_atim.tv_sec != to.st_atim.tv_sec || after.st_atim.tv_nsec != to.st_atim.tv_nsec)) {
        const timespec times[2] = {to.st_atim, to.st_mtim};
        futimens(dest, times);
    }
    close(source);
    close(dest);
    return error;
}

} // namespace selfsame
