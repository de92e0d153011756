#pragma once

#include "search/Digest.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <unordered_map>
#include <vector>

struct sqlite3;

namespace selfsame {

// What identifies one state of a file: a write, a rename over it or a metadata change gives
// another key (the change time cannot be set by users), and the header rule is part of it
// because it changes which bytes the digest covers.
struct DigestKey {
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;
    qint64 modifiedNs = 0;
    qint64 changedNs = 0;
    bool headerSkipped = false;
};

// What earlier searches learnt about a file: the check value of its first and last bytes,
// the fingerprint of its whole content when it was read whole, and its content digest when
// one was needed. Any may be missing.
struct CachedDigest {
    std::optional<quint64> sample;
    std::optional<Digest> digest;
    std::optional<Fingerprint> fingerprint;
    // Of a file in a group, on a file system whose files never share storage: its allocation
    // digest (none when its placement was unknown) and user tags, which change its key too.
    struct Attributes {
        std::optional<Digest> allocDigest;
        QStringList tags;
    };
    std::optional<Attributes> attributes;
};

// What the similar modes computed for a file: its perceptual hash or acoustic fingerprint,
// and the few values of its own the search shows (size in pixels, duration, bit rate…).
struct CachedPrint {
    QByteArray print;
    QByteArray details;
};
enum class PrintKind : int { Picture = 1, Recording = 2 };

// Digests of files kept between searches, in an SQLite database that several processes may
// use at once. Results never depend on it: a record is used only when the file's key is
// unchanged and the record's own check value is intact; a database that cannot be used is
// moved aside and started afresh. Records are written by a thread of the cache's own, in
// batches. Least recently used records go once the database outgrows its size limit.
class DigestCache {
public:
    struct Options {
        qint64 sizeLimit = qint64(512) << 20; // bytes of live records
        int busyTimeoutMs = 5000;             // waiting for another process's transaction
        // Files changed less than this long before a search began are neither taken from the
        // cache nor written to it: a second change within the file system's clock step would
        // leave their key as it was.
        qint64 settleNs = 2'000'000'000;
    };

    explicit DigestCache(QString path) : DigestCache(std::move(path), Options()) {}
    DigestCache(QString path, Options options);
    ~DigestCache(); // writes what is still queued
    DigestCache(const DigestCache &) = delete;
    DigestCache &operator=(const DigestCache &) = delete;

    // `$XDG_CACHE_HOME/selfsame/digests.sqlite`
    static QString defaultPath();
    // Removes the database; false when a file stayed.
    static bool clear(const QString &path);

    bool isOpen() const { return m_db != nullptr; }
    const QString &path() const { return m_path; }
    const Options &options() const { return m_options; }

    // One answer per key, in the keys' order.
    std::vector<std::optional<CachedDigest>> lookup(const std::vector<DigestKey> &keys);
    // The same answers, each handed over as found (with the key's index), for look-ups of
    // millions of keys, most of which are answered.
    void lookup(const std::vector<DigestKey> &keys, const std::function<void(std::size_t, CachedDigest)> &found);
    // Queued for the writing thread; a later record of a key replaces the earlier one.
    void store(std::vector<std::pair<DigestKey, CachedDigest>> records);
    // Returns once every queued record is written (or dropped on a database error).
    void flush();

    // Prints of the similar modes, kept by the same keys as digests; written at once.
    void lookupPrints(PrintKind kind, const std::vector<DigestKey> &keys,
                      const std::function<void(std::size_t, CachedPrint)> &found);
    void storePrints(PrintKind kind, const std::vector<std::pair<DigestKey, CachedPrint>> &records);

private:
    struct Pending;
    bool open();
    bool openOnce(QString *problem);
    void closeDatabase();
    void moveAside(const QString &reason);
    void writeLoop();
    void write(const Pending &batch);
    void evictIfOverLimit();
    bool createPrintsTable();
    bool failed(int code, const char *what);

    QString m_path;
    Options m_options;
    sqlite3 *m_db = nullptr;
    // Records are kept by the volume a device holds, so that a drive mounted again under
    // another device number still finds them (search/VolumeIds.h).
    quint64 volumeOf(quint64 device);
    std::mutex m_volumesMutex;
    std::unordered_map<quint64, quint64> m_volumes;

    std::mutex m_dbMutex; // one connection, used by the caller and by the writing thread
    bool m_broken = false; // an error showed the database damaged: moved aside at close
    bool m_complained = false;

    std::mutex m_queueMutex;
    std::condition_variable m_queueChanged;
    std::vector<Pending> m_queue;
    std::size_t m_queuedRecords = 0; // store() waits while too many are queued
    bool m_writing = false;
    bool m_stopping = false;
    std::thread m_writer;
};

} // namespace selfsame
