#include "search/Digest.h"

#include "search/SearchState.h"

#include <QtGlobal>

// The digest functions themselves rather than the EVP interface: the same code, without
// loading OpenSSL's algorithm providers, which cost each process megabytes of memory.
#define OPENSSL_SUPPRESS_DEPRECATED
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <linux/fiemap.h>
#include <linux/fs.h>
#include <openssl/sha.h>
#include <strings.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <xxhash.h>

namespace selfsame {

namespace
{

SHA512_CTX *context(unsigned char *state)
{
    return reinterpret_cast<SHA512_CTX *>(state);
}

} // namespace

static_assert(sizeof(SHA512_CTX) <= 216 && alignof(SHA512_CTX) <= 8, "Sha512 holds a SHA512_CTX in place");

Sha512::Sha512()
{
    SHA512_Init(context(m_state));
}

void Sha512::update(const void *data, std::size_t length)
{
    if (length > 0) SHA512_Update(context(m_state), data, length);
}

Digest Sha512::final()
{
    Digest digest{};
    SHA512_Final(digest.data(), context(m_state));
    return digest;
}

Digest sha512(const void *data, std::size_t length)
{
    Sha512 hash; // the one-shot SHA512() goes through EVP
    hash.update(data, length);
    return hash.final();
}

Fingerprinter::Fingerprinter() : m_state(XXH3_createState())
{
    if (!m_state || XXH3_128bits_reset(static_cast<XXH3_state_t *>(m_state)) != XXH_OK)
        qFatal("XXH3 state cannot be made");
}

Fingerprinter::Fingerprinter(const Fingerprinter &other) : m_state(XXH3_createState())
{
    if (!m_state)
        qFatal("XXH3 state cannot be made");
    XXH3_copyState(static_cast<XXH3_state_t *>(m_state), static_cast<const XXH3_state_t *>(other.m_state));
}

Fingerprinter::~Fingerprinter() { XXH3_freeState(static_cast<XXH3_state_t *>(m_state)); }

void Fingerprinter::update(const void *data, std::size_t length)
{
    XXH3_128bits_update(static_cast<XXH3_state_t *>(m_state), data, length);
}

Fingerprint Fingerprinter::final() const
{
    const XXH128_hash_t hash = XXH3_128bits_digest(static_cast<const XXH3_state_t *>(m_state));
    return {hash.low64, hash.high64};
}

int compareDigests(const Digest &a, const Digest &b)
{
    const int order = std::memcmp(a.data(), b.data(), a.size());
    return order < 0 ? -1 : (order > 0 ? 1 : 0);
}

const Digest &emptyDigest()
{
    static const Digest digest = sha512(nullptr, 0);
    return digest;
}

const Digest &emptyFolderDigest()
{
    static const Digest digest = sha512(emptyDigest().data(), emptyDigest().size());
    return digest;
}

std::optional<Digest> symlinkDigest(const char *path)
{
    char target[1024 + 8];
    const ssize_t length = readlink(path, target, 1024);
    if (length < 0)
        return std::nullopt;
    std::memcpy(target + length, "-symlink", 8);
    return sha512(target, std::size_t(length) + 8);
}

bool skipsMp4Header(bool ignoreMp4Header, std::string_view fileName, qint64 size)
{
    if (!ignoreMp4Header || size < kMp4HeaderSize + 1)
        return false;
    const auto dot = fileName.rfind('.');
    return dot != std::string_view::npos && fileName.size() - dot == 4 &&
           strncasecmp(fileName.data() + dot + 1, "mp4", 3) == 0;
}

ReadBuffer::ReadBuffer(std::size_t size) : m_data(new char[size]), m_size(size) {}

std::size_t ReadBuffer::defaultSize()
{
    const long cache = sysconf(_SC_LEVEL2_CACHE_SIZE);
    const std::size_t quarter = cache > 0 ? std::size_t(cache) / 4 : 0;
    return std::clamp<std::size_t>(quarter, 128 * 1024, 1024 * 1024);
}

namespace {

std::string_view baseName(const char *path)
{
    const char *slash = std::strrchr(path, '/');
    return slash ? std::string_view(slash + 1) : std::string_view(path);
}

} // namespace

int openForReading(const char *path) { return openForReadingAt(AT_FDCWD, path); }

int openForReadingAt(int dirfd, const char *name)
{
    int fd = openat(dirfd, name, O_RDONLY | O_CLOEXEC | O_NOATIME | O_NOCTTY);
    if (fd < 0 && errno == EPERM)
        fd = openat(dirfd, name, O_RDONLY | O_CLOEXEC | O_NOCTTY);
    return fd;
}

ssize_t readAt(int fd, char *buffer, std::size_t length, off_t offset)
{
    std::size_t done = 0;
    while (done < length) {
        const ssize_t n = pread(fd, buffer + done, length - done, offset + off_t(done));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return done > 0 ? ssize_t(done) : n;
        done += std::size_t(n);
    }
    return ssize_t(done);
}

DigestResult computeDigest(const char *path, qint64 fileSize, bool ignoreMp4Header, ReadBuffer &buffer,
                           std::vector<qint64> &allocStorage, const std::atomic<int> *searchState,
                           bool withFingerprint)
{
    DigestResult result;
    if (fileSize < 0) {
        struct stat st;
        if (lstat(path, &st) != 0 || st.st_size < 0)
            return result;
        fileSize = st.st_size;
    }
    const int fd = openForReading(path);
    if (fd < 0)
        return result;

    Sha512 hash;
    std::optional<Fingerprinter> fingerprint;
    if (withFingerprint)
        fingerprint.emplace();
    off_t offset = skipsMp4Header(ignoreMp4Header, baseName(path), fileSize) ? kMp4HeaderSize : 0;
    if (fileSize - offset > qint64(buffer.size()))
        posix_fadvise(fd, offset, fileSize - offset, POSIX_FADV_SEQUENTIAL);
    while (offset < fileSize) {
        if (searchState && stopRequested(*searchState)) {
            close(fd);
            result.stopped = true;
            return result;
        }
        const std::size_t wanted = std::size_t(std::min<qint64>(fileSize - offset, qint64(buffer.size())));
        const ssize_t n = readAt(fd, buffer.data(), wanted, offset);
        if (n > 0) {
            hash.update(buffer.data(), std::size_t(n));
            if (fingerprint)
                fingerprint->update(buffer.data(), std::size_t(n));
            offset += n;
            result.bytesRead += n;
        }
        if (n < ssize_t(wanted))
            break; // a file that shrank or failed: the digest covers what was read
    }
    result.digest = hash.final();
    if (fingerprint)
        result.fingerprint = fingerprint->final();
    result.allocDigest = computeAllocDigest(fd, allocStorage);
    close(fd);
    return result;
}

std::optional<Digest> computeAllocDigest(int fd, std::vector<qint64> &allocStorage)
{
    allocStorage.clear();
    struct stat st;
    if (fstat(fd, &st) != 0 || !S_ISREG(st.st_mode) || st.st_size <= 0)
        return std::nullopt;

    constexpr unsigned kExtentsPerCall = 128;
    constexpr quint32 kUnusable = FIEMAP_EXTENT_UNKNOWN | FIEMAP_EXTENT_DELALLOC | FIEMAP_EXTENT_ENCODED |
                                  FIEMAP_EXTENT_DATA_INLINE | FIEMAP_EXTENT_NOT_ALIGNED |
                                  FIEMAP_EXTENT_DATA_TAIL | FIEMAP_EXTENT_UNWRITTEN;
    alignas(struct fiemap) char request[sizeof(struct fiemap) + kExtentsPerCall * sizeof(struct fiemap_extent)];
    auto *map = reinterpret_cast<struct fiemap *>(request);

    allocStorage.push_back(qint64(st.st_dev));
    const qint64 size = st.st_size;
    qint64 mapped = 0; // logical bytes covered so far, without gaps
    bool last = false;
    while (!last && mapped < size) {
        std::memset(request, 0, sizeof(request));
        map->fm_start = quint64(mapped);
        map->fm_length = quint64(size - mapped);
        map->fm_flags = FIEMAP_FLAG_SYNC; // flushes delayed allocation so fresh files map too
        map->fm_extent_count = kExtentsPerCall;
        if (ioctl(fd, FS_IOC_FIEMAP, map) != 0 || map->fm_mapped_extents == 0)
            return std::nullopt;
        for (quint32 i = 0; i < map->fm_mapped_extents; ++i) {
            const struct fiemap_extent &extent = map->fm_extents[i];
            if ((extent.fe_flags & kUnusable) || qint64(extent.fe_logical) > mapped || extent.fe_length == 0)
                return std::nullopt; // unknown placement, or a hole
            // An extent may start before the asked offset when the previous call ended inside it.
            const qint64 skip = mapped - qint64(extent.fe_logical);
            if (skip >= qint64(extent.fe_length))
                continue;
            const qint64 physical = qint64(extent.fe_physical) + skip;
            const qint64 length = std::min<qint64>(qint64(extent.fe_length) - skip, size - mapped);
            const std::size_t n = allocStorage.size();
            if (n >= 3 && allocStorage[n - 2] + allocStorage[n - 1] == physical)
                allocStorage[n - 1] += length; // physically contiguous with the previous extent
            else {
                allocStorage.push_back(physical);
                allocStorage.push_back(length);
            }
            mapped += length;
            last = (extent.fe_flags & FIEMAP_EXTENT_LAST) != 0;
            if (mapped >= size)
                break;
        }
    }
    if (mapped != size)
        return std::nullopt;
    return sha512(allocStorage.data(), allocStorage.size() * sizeof(qint64));
}

std::optional<quint64> sampleFingerprint(int fd, qint64 fileSize, bool skipHeader, ReadBuffer &buffer,
                                         qint64 sampleSize, qint64 *bytesRead)
{
    const qint64 start = skipHeader ? kMp4HeaderSize : 0;
    const std::size_t length = std::size_t(std::min<qint64>(sampleSize, qint64(buffer.size()) / 2));
    const ssize_t head = readAt(fd, buffer.data(), length, start);
    const ssize_t tail = readAt(fd, buffer.data() + length, length, fileSize - qint64(length));
    if (head < 0 || tail < 0)
        return std::nullopt;
    *bytesRead += head + tail;
    // Not a content digest: equal samples only send files on to be compared whole.
    const XXH64_hash_t headHash = XXH3_64bits(buffer.data(), std::size_t(head));
    return XXH3_64bits_withSeed(buffer.data() + length, std::size_t(tail), headHash);
}

} // namespace selfsame
