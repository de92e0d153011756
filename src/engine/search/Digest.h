#pragma once

#include "results/ResultItem.h"

#include <QByteArray>
#include <QByteArrayView>
#include <atomic>
#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace selfsame {

// Incremental SHA-512 (OpenSSL's, the fastest on the machine). A copy continues from the
// same state: files that agree so far share their hashing.
class Sha512 {
public:
    Sha512();
    void update(const void *data, std::size_t length);
    Digest final();

private:
    // OpenSSL's SHA512_CTX, kept in place so that copies cost no allocation.
    alignas(8) unsigned char m_state[216];
};

Digest sha512(const void *data, std::size_t length);

// XXH3-128 of the bytes a content digest covers: far cheaper than SHA-512 and no content
// digest, but files of different fingerprints certainly differ. The digest cache keeps it
// for files that were read whole without needing a digest.
struct Fingerprint {
    quint64 low = 0;
    quint64 high = 0;
    bool operator==(const Fingerprint &) const = default;
    auto operator<=>(const Fingerprint &) const = default;
};

class Fingerprinter {
public:
    Fingerprinter();
    ~Fingerprinter();
    Fingerprinter(const Fingerprinter &other);
    Fingerprinter &operator=(const Fingerprinter &) = delete;
    void update(const void *data, std::size_t length);
    Fingerprint final() const;

private:
    void *m_state; // XXH3_state_t, whose layout the library keeps to itself
};
inline Digest sha512(const QByteArray &bytes) { return sha512(bytes.constData(), std::size_t(bytes.size())); }

// Byte order of digests: memcmp over the shorter length, then the shorter first. Returns -1, 0 or 1.
int compareDigests(const Digest &a, const Digest &b);
// Lower-case hexadecimal of a digest or allocation key, written in place without an allocation.
template <std::size_t N> struct HexText {
    char text[2 * N];
    explicit HexText(const std::array<std::uint8_t, N> &bytes)
    {
        for (std::size_t i = 0; i < N; ++i) {
            text[2 * i] = "0123456789abcdef"[bytes[i] >> 4];
            text[2 * i + 1] = "0123456789abcdef"[bytes[i] & 15];
        }
    }
    QByteArrayView view() const { return {text, qsizetype(2 * N)}; }
};
inline QByteArray digestToHex(const Digest &digest)
{
    return HexText(digest).view().toByteArray();
}

// SHA-512 of zero bytes: the digest of every empty file.
const Digest &emptyDigest();
// SHA-512 of the empty-file digest: the digest of every empty folder.
const Digest &emptyFolderDigest();
// A symbolic link is digested as its target text followed by "-symlink"; nullopt when unreadable.
std::optional<Digest> symlinkDigest(const char *path);

// MP4 files of more than 16 KiB may be compared without their first 16,384 bytes, where
// editors rewrite metadata in place.
inline constexpr qint64 kMp4HeaderSize = 16384;
bool skipsMp4Header(bool ignoreMp4Header, std::string_view fileName, qint64 size);

// A reading buffer owned by one hashing thread and reused for all its files.
class ReadBuffer {
public:
    explicit ReadBuffer(std::size_t size = defaultSize());
    char *data() { return m_data.get(); }
    std::size_t size() const { return m_size; }
    // A fraction of the per-core cache, so that the bytes are still cached when hashed.
    static std::size_t defaultSize();

private:
    std::unique_ptr<char[]> m_data;
    std::size_t m_size;
};

// Opens a file for reading without touching its access time where the kernel allows it:
// a search must not change the "last used" dates it shows.
int openForReading(const char *path);
int openForReadingAt(int dirfd, const char *name);
// pread until `length` bytes or the end of the file; fewer bytes only at the end or on error.
ssize_t readAt(int fd, char *buffer, std::size_t length, off_t offset);

struct DigestResult {
    std::optional<Digest> digest;
    std::optional<Fingerprint> fingerprint; // when asked for
    std::optional<Digest> allocDigest;
    qint64 bytesRead = 0;
    bool stopped = false; // the search was aborted before the end of the file: no digest
};

// Content digest of a file (and its allocation digest when the file system reports a
// physical extent map). fileSize < 0: looked up with lstat. `searchState`: the reading waits
// while it says the search is paused, and stops early, without a digest, on an abort.
DigestResult computeDigest(const char *path, qint64 fileSize, bool ignoreMp4Header, ReadBuffer &buffer,
                           std::vector<qint64> &allocStorage, const std::atomic<int> *searchState = nullptr,
                           bool withFingerprint = false);

// Allocation digest of an open regular file: device id, then physical offset and length of
// every contiguous extent. nullopt where the extents do not cover the file exactly.
std::optional<Digest> computeAllocDigest(int fd, std::vector<qint64> &allocStorage);

// A cheap fingerprint of the first and last bytes that a content digest covers, to prove
// files of equal size different without reading them whole. nullopt when unreadable.
std::optional<quint64> sampleFingerprint(int fd, qint64 fileSize, bool skipHeader, ReadBuffer &buffer,
                                         qint64 sampleSize, qint64 *bytesRead);

} // namespace selfsame
