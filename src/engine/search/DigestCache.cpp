#include "search/DigestCache.h"
#include "search/DigestCacheSql.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QtDebug>

#include "search/VolumeIds.h"

#include <sqlite3.h>
#include <xxhash.h>

#include <algorithm>
#include <cstring>
#include <numeric>
#include <tuple>

namespace selfsame {

namespace {

using namespace cacheSql;

constexpr int kApplicationId = 0x53454c46; // "SELF"
constexpr int kSchemaVersion = 1;
// Point look-ups for a few files of a device, one ordered walk over its inode range for many.
constexpr std::size_t kRangeWalkFrom = 256;

// Tags are kept as one text; no tag holds this separator.
constexpr QChar kTagSeparator(0x1f);

QByteArray tagsText(const CachedDigest &value)
{
    return value.attributes ? value.attributes->tags.join(kTagSeparator).toUtf8() : QByteArray();
}

quint64 checkValue(const DigestKey &key, quint64 volume, const CachedDigest &value)
{
    const Fingerprint fingerprint = value.fingerprint.value_or(Fingerprint{});
    const bool placed = value.attributes && value.attributes->allocDigest;
    struct {
        qint64 fields[14];
        Digest digest;
        Digest allocDigest;
    } bytes{{qint64(volume), qint64(key.inode), key.size, key.modifiedNs, key.changedNs, key.headerSkipped,
             value.sample.has_value(), qint64(value.sample.value_or(0)), value.digest.has_value(),
             value.fingerprint.has_value(), qint64(fingerprint.low), qint64(fingerprint.high),
             value.attributes.has_value(), placed},
            value.digest.value_or(Digest{}), placed ? *value.attributes->allocDigest : Digest{}};
    const QByteArray tags = tagsText(value);
    return XXH3_64bits_withSeed(tags.constData(), std::size_t(tags.size()), XXH3_64bits(&bytes, sizeof(bytes)));
}

bool isDamage(int code)
{
    const int primary = code & 0xff;
    return primary == SQLITE_CORRUPT || primary == SQLITE_NOTADB;
}

} // namespace

struct DigestCache::Pending {
    std::vector<std::pair<DigestKey, CachedDigest>> records;
    std::vector<DigestKey> touched;
};

QString DigestCache::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QStringLiteral("/selfsame/digests.sqlite");
}

bool DigestCache::clear(const QString &path)
{
    bool cleared = true;
    for (const char *suffix : {"", "-wal", "-shm"}) {
        const QString file = path + QLatin1String(suffix);
        if (QFileInfo::exists(file) && !QFile::remove(file))
            cleared = false;
    }
    return cleared;
}

DigestCache::DigestCache(QString path, Options options) : m_path(std::move(path)), m_options(options)
{
    if (open())
        m_writer = std::thread([this] { writeLoop(); });
}

DigestCache::~DigestCache()
{
    if (m_writer.joinable()) {
        {
            std::lock_guard lock(m_queueMutex);
            m_stopping = true;
        }
        m_queueChanged.notify_all();
        m_writer.join();
    }
    std::lock_guard lock(m_dbMutex);
    if (m_broken)
        moveAside(QStringLiteral("it failed while in use"));
    else
        closeDatabase();
}

bool DigestCache::open()
{
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    QString problem;
    if (openOnce(&problem))
        return true;
    // Anything but a database of ours, in this version, that answers: start afresh.
    moveAside(problem);
    if (openOnce(&problem))
        return true;
    qWarning().noquote() << QStringLiteral("Selfsame: the digest cache %1 cannot be used (%2); searching without it")
                                .arg(m_path, problem);
    closeDatabase();
    return false;
}

bool DigestCache::openOnce(QString *problem)
{
    closeDatabase();
    const QByteArray file = QFile::encodeName(m_path);
    int code = sqlite3_open_v2(file.constData(), &m_db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX,
                               nullptr);
    if (code != SQLITE_OK) {
        *problem = QString::fromUtf8(sqlite3_errstr(code));
        return false;
    }
    sqlite3_busy_timeout(m_db, m_options.busyTimeoutMs);
    auto intPragma = [&](const char *sql, int *value) {
        Statement statement(m_db, sql);
        code = statement ? sqlite3_step(statement.handle) : sqlite3_errcode(m_db);
        if (code != SQLITE_ROW)
            return false;
        *value = sqlite3_column_int(statement.handle, 0);
        return true;
    };
    int applicationId = 0, version = 0, tables = 0;
    if (!intPragma("PRAGMA application_id", &applicationId) || !intPragma("PRAGMA user_version", &version) ||
        !intPragma("SELECT count(*) FROM sqlite_master", &tables)) {
        *problem = QString::fromUtf8(sqlite3_errstr(code));
        return false;
    }
    if (tables == 0 && applicationId == 0) {
        // Incremental vacuum must be chosen before the first table: evicted records then shrink the file.
        const QByteArray schema = QStringLiteral(
            "PRAGMA auto_vacuum = INCREMENTAL;"
            "PRAGMA journal_mode = WAL;"
            "BEGIN IMMEDIATE;"
            "CREATE TABLE digests (device INTEGER NOT NULL, inode INTEGER NOT NULL, skipped INTEGER NOT NULL,"
            " size INTEGER NOT NULL, modified INTEGER NOT NULL, changed INTEGER NOT NULL,"
            " sample INTEGER, digest BLOB, used INTEGER NOT NULL, checkValue INTEGER NOT NULL, fingerprint BLOB,"
            " attributes INTEGER NOT NULL, allocDigest BLOB, tags TEXT,"
            " PRIMARY KEY (device, inode, skipped)) WITHOUT ROWID;"
            "PRAGMA application_id = %1;"
            "PRAGMA user_version = %2;"
            "COMMIT;").arg(kApplicationId).arg(kSchemaVersion).toUtf8();
        code = sqlite3_exec(m_db, schema.constData(), nullptr, nullptr, nullptr);
        if (code != SQLITE_OK) {
            *problem = QString::fromUtf8(sqlite3_errmsg(m_db));
            sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
            // Another process may have created it in the meantime: look again.
            return (code & 0xff) == SQLITE_BUSY ? false : openOnce(problem);
        }
    } else if (applicationId != kApplicationId || version != kSchemaVersion) {
        *problem = applicationId == kApplicationId
                       ? QStringLiteral("made by another version, %1").arg(version)
                       : QStringLiteral("not a digest cache");
        return false;
    }
    // A first search writes a record per file: table pages stay in memory between batches,
    // and the journal is folded into the database (with its sync) every 32 MiB, not every 4.
    // A second search reads its records through a memory map, without a copy of every page;
    // only the first 64 MiB, as mapped pages count towards the process's memory.
    code = sqlite3_exec(m_db,
                        "PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL; PRAGMA cache_size = -32768; "
                        "PRAGMA wal_autocheckpoint = 8192; PRAGMA mmap_size = 67108864;",
                        nullptr, nullptr, nullptr);
    if (code != SQLITE_OK || !createPrintsTable()) {
        *problem = QString::fromUtf8(sqlite3_errmsg(m_db));
        return false;
    }
    return true;
}

void DigestCache::closeDatabase()
{
    if (m_db)
        sqlite3_close_v2(m_db);
    m_db = nullptr;
}

void DigestCache::moveAside(const QString &reason)
{
    closeDatabase();
    if (!QFileInfo::exists(m_path))
        return;
    qWarning().noquote() << QStringLiteral("Selfsame: the digest cache %1 is moved aside to %1.broken and "
                                           "started afresh (%2)")
                                .arg(m_path, reason);
    for (const char *suffix : {"", "-wal", "-shm"}) {
        const QString file = m_path + QLatin1String(suffix);
        const QString aside = m_path + QLatin1String(".broken") + QLatin1String(suffix);
        QFile::remove(aside);
        if (QFileInfo::exists(file) && !QFile::rename(file, aside))
            QFile::remove(file);
    }
}

bool DigestCache::failed(int code, const char *what)
{
    if (code == SQLITE_OK || code == SQLITE_DONE || code == SQLITE_ROW)
        return false;
    m_broken = m_broken || isDamage(code);
    if (!m_complained) {
        m_complained = true;
        qWarning().noquote() << QStringLiteral("Selfsame: digest cache %1: %2 failed: %3")
                                    .arg(m_path, QLatin1String(what), QString::fromUtf8(sqlite3_errstr(code)));
    }
    return true;
}

std::vector<std::optional<CachedDigest>> DigestCache::lookup(const std::vector<DigestKey> &keys)
{
    std::vector<std::optional<CachedDigest>> answers(keys.size());
    lookup(keys, [&](std::size_t k, CachedDigest value) { answers[k] = std::move(value); });
    return answers;
}

void DigestCache::lookup(const std::vector<DigestKey> &keys, const std::function<void(std::size_t, CachedDigest)> &found)
{
    std::lock_guard lock(m_dbMutex);
    if (!m_db || m_broken || keys.empty())
        return;

    std::vector<std::size_t> order(keys.size());
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        const DigestKey &ka = keys[a], &kb = keys[b];
        if (ka.device != kb.device)
            return ka.device < kb.device;
        if (ka.inode != kb.inode)
            return ka.inode < kb.inode;
        return ka.headerSkipped < kb.headerSkipped;
    });

    const qint64 now = today();
    std::vector<DigestKey> touched;
    // A row answers a key when it describes the same state of the file and is intact.
    auto take = [&](sqlite3_stmt *row, std::size_t k, quint64 volume) {
        const DigestKey &key = keys[k];
        if (sqlite3_column_int64(row, 3) != key.size || sqlite3_column_int64(row, 4) != key.modifiedNs ||
            sqlite3_column_int64(row, 5) != key.changedNs)
            return;
        CachedDigest value;
        if (sqlite3_column_type(row, 6) != SQLITE_NULL)
            value.sample = quint64(sqlite3_column_int64(row, 6));
        if (sqlite3_column_type(row, 7) != SQLITE_NULL) {
            if (sqlite3_column_bytes(row, 7) != int(sizeof(Digest)))
                return;
            Digest digest;
            std::memcpy(digest.data(), sqlite3_column_blob(row, 7), digest.size());
            value.digest = digest;
        }
        if (sqlite3_column_type(row, 10) != SQLITE_NULL) {
            if (sqlite3_column_bytes(row, 10) != int(sizeof(Fingerprint)))
                return;
            Fingerprint fingerprint;
            std::memcpy(&fingerprint, sqlite3_column_blob(row, 10), sizeof(fingerprint));
            value.fingerprint = fingerprint;
        }
        if (sqlite3_column_int(row, 11)) {
            CachedDigest::Attributes attributes;
            if (sqlite3_column_type(row, 12) != SQLITE_NULL) {
                if (sqlite3_column_bytes(row, 12) != int(sizeof(Digest)))
                    return;
                Digest alloc;
                std::memcpy(alloc.data(), sqlite3_column_blob(row, 12), alloc.size());
                attributes.allocDigest = alloc;
            }
            if (const int length = sqlite3_column_bytes(row, 13); length > 0)
                attributes.tags =
                    QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(row, 13)), length)
                        .split(kTagSeparator);
            value.attributes = std::move(attributes);
        }
        if (quint64(sqlite3_column_int64(row, 9)) != checkValue(key, volume, value))
            return;
        if (sqlite3_column_int64(row, 8) < now)
            touched.push_back(key);
        found(k, std::move(value));
    };

    constexpr const char *columns = "SELECT inode, skipped, 0, size, modified, changed, sample, digest, used, "
                                    "checkValue, fingerprint, attributes, allocDigest, tags FROM digests ";
    Statement point(m_db, (std::string(columns) + "WHERE device = ? AND inode = ? AND skipped = ?").c_str());
    Statement range(m_db, (std::string(columns) + "WHERE device = ? AND inode BETWEEN ? AND ? "
                                                   "ORDER BY inode, skipped").c_str());
    if (!point || !range) {
        failed(sqlite3_errcode(m_db), "look-up");
        return;
    }
    for (std::size_t begin = 0; begin < order.size();) {
        std::size_t end = begin + 1;
        while (end < order.size() && keys[order[end]].device == keys[order[begin]].device)
            ++end;
        const quint64 volume = volumeOf(keys[order[begin]].device);
        const qint64 device = ordered(volume);
        int code = SQLITE_DONE;
        if (end - begin < kRangeWalkFrom) {
            for (std::size_t i = begin; i < end && !failed(code, "look-up"); ++i) {
                const DigestKey &key = keys[order[i]];
                sqlite3_reset(point.handle);
                sqlite3_bind_int64(point.handle, 1, device);
                sqlite3_bind_int64(point.handle, 2, ordered(key.inode));
                sqlite3_bind_int(point.handle, 3, key.headerSkipped);
                code = sqlite3_step(point.handle);
                if (code == SQLITE_ROW)
                    take(point.handle, order[i], volume);
            }
        } else {
            sqlite3_reset(range.handle);
            sqlite3_bind_int64(range.handle, 1, device);
            sqlite3_bind_int64(range.handle, 2, ordered(keys[order[begin]].inode));
            sqlite3_bind_int64(range.handle, 3, ordered(keys[order[end - 1]].inode));
            std::size_t i = begin;
            while (i < end && (code = sqlite3_step(range.handle)) == SQLITE_ROW) {
                const qint64 inode = sqlite3_column_int64(range.handle, 0);
                const int skipped = sqlite3_column_int(range.handle, 1);
                auto before = [&](std::size_t k) {
                    const qint64 at = ordered(keys[order[k]].inode);
                    return at < inode || (at == inode && int(keys[order[k]].headerSkipped) < skipped);
                };
                while (i < end && before(i))
                    ++i;
                // Several paths of one file (hard links, repeats) share a row.
                for (std::size_t k = i; k < end && ordered(keys[order[k]].inode) == inode &&
                                        int(keys[order[k]].headerSkipped) == skipped;
                     ++k)
                    take(range.handle, order[k], volume);
            }
        }
        // Answers already given stay good: each was checked on its own.
        if (failed(code, "look-up"))
            return;
        begin = end;
    }
    if (!touched.empty()) {
        std::lock_guard queueLock(m_queueMutex);
        m_queue.push_back({{}, std::move(touched)});
        m_queueChanged.notify_all();
    }
}

void DigestCache::store(std::vector<std::pair<DigestKey, CachedDigest>> records)
{
    if (!m_writer.joinable() || records.empty())
        return;
    // Hashing may outrun the database: the queue stays bounded so that memory does.
    constexpr std::size_t kMaxQueued = 1 << 16;
    std::unique_lock lock(m_queueMutex);
    m_queueChanged.wait(lock, [&] { return m_queuedRecords < kMaxQueued; });
    m_queuedRecords += records.size();
    m_queue.push_back({std::move(records), {}});
    m_queueChanged.notify_all();
}

void DigestCache::flush()
{
    std::unique_lock lock(m_queueMutex);
    m_queueChanged.wait(lock, [&] { return m_queue.empty() && !m_writing; });
}

void DigestCache::writeLoop()
{
    std::unique_lock lock(m_queueMutex);
    for (;;) {
        m_queueChanged.wait(lock, [&] { return !m_queue.empty() || m_stopping; });
        if (m_queue.empty())
            break;
        std::vector<Pending> batches = std::move(m_queue);
        m_queue.clear();
        m_queuedRecords = 0;
        m_writing = true;
        m_queueChanged.notify_all();
        lock.unlock();
        // All that gathered goes in one transaction, in key order: each page of the table is
        // then written once, not once per batch.
        Pending all;
        for (Pending &batch : batches) {
            all.records.insert(all.records.end(), std::make_move_iterator(batch.records.begin()),
                               std::make_move_iterator(batch.records.end()));
            all.touched.insert(all.touched.end(), batch.touched.begin(), batch.touched.end());
        }
        batches.clear();
        std::stable_sort(all.records.begin(), all.records.end(), [](const auto &a, const auto &b) {
            return std::tie(a.first.device, a.first.inode, a.first.headerSkipped) <
                   std::tie(b.first.device, b.first.inode, b.first.headerSkipped);
        });
        {
            std::lock_guard dbLock(m_dbMutex);
            write(all);
            evictIfOverLimit();
        }
        lock.lock();
        m_writing = false;
        m_queueChanged.notify_all();
    }
}

void DigestCache::write(const Pending &batch)
{
    if (!m_db || m_broken)
        return;
    if (failed(sqlite3_exec(m_db, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), "writing"))
        return; // another process kept the database busy too long: these records are only lost
    Statement insert(m_db, "INSERT OR REPLACE INTO digests (device, inode, skipped, size, modified, changed, "
                           "sample, digest, used, checkValue, fingerprint, attributes, allocDigest, tags) "
                           "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    Statement touch(m_db, "UPDATE digests SET used = ? WHERE device = ? AND inode = ? AND skipped = ?");
    int code = insert && touch ? SQLITE_OK : sqlite3_errcode(m_db);
    const qint64 now = today();
    for (const auto &[key, value] : batch.records) {
        if (code != SQLITE_OK && code != SQLITE_DONE)
            break;
        sqlite3_stmt *s = insert.handle;
        sqlite3_reset(s);
        const quint64 volume = volumeOf(key.device);
        sqlite3_bind_int64(s, 1, ordered(volume));
        sqlite3_bind_int64(s, 2, ordered(key.inode));
        sqlite3_bind_int(s, 3, key.headerSkipped);
        sqlite3_bind_int64(s, 4, key.size);
        sqlite3_bind_int64(s, 5, key.modifiedNs);
        sqlite3_bind_int64(s, 6, key.changedNs);
        if (value.sample)
            sqlite3_bind_int64(s, 7, qint64(*value.sample));
        else
            sqlite3_bind_null(s, 7);
        if (value.digest)
            sqlite3_bind_blob(s, 8, value.digest->data(), int(value.digest->size()), SQLITE_STATIC);
        else
            sqlite3_bind_null(s, 8);
        sqlite3_bind_int64(s, 9, now);
        sqlite3_bind_int64(s, 10, qint64(checkValue(key, volume, value)));
        if (value.fingerprint)
            sqlite3_bind_blob(s, 11, &*value.fingerprint, int(sizeof(Fingerprint)), SQLITE_STATIC);
        else
            sqlite3_bind_null(s, 11);
        sqlite3_bind_int(s, 12, value.attributes.has_value());
        if (value.attributes && value.attributes->allocDigest)
            sqlite3_bind_blob(s, 13, value.attributes->allocDigest->data(), int(sizeof(Digest)), SQLITE_STATIC);
        else
            sqlite3_bind_null(s, 13);
        const QByteArray tags = tagsText(value);
        sqlite3_bind_text(s, 14, tags.constData(), int(tags.size()), SQLITE_TRANSIENT);
        code = sqlite3_step(s);
    }
    for (const DigestKey &key : batch.touched) {
        if (code != SQLITE_OK && code != SQLITE_DONE)
            break;
        sqlite3_stmt *s = touch.handle;
        sqlite3_reset(s);
        sqlite3_bind_int64(s, 1, now);
        sqlite3_bind_int64(s, 2, ordered(volumeOf(key.device)));
        sqlite3_bind_int64(s, 3, ordered(key.inode));
        sqlite3_bind_int(s, 4, key.headerSkipped);
        code = sqlite3_step(s);
    }
    const bool ok = code == SQLITE_OK || code == SQLITE_DONE;
    if (failed(ok ? sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr) : code, "writing"))
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
}

quint64 DigestCache::volumeOf(quint64 device)
{
    std::lock_guard lock(m_volumesMutex);
    const auto [at, isNew] = m_volumes.try_emplace(device, 0);
    if (isNew)
        at->second = volumeIdOf(device);
    return at->second;
}

void DigestCache::evictIfOverLimit()
{
    if (!m_db || m_broken)
        return;
    auto integer = [&](const char *sql) {
        Statement statement(m_db, sql);
        return statement && sqlite3_step(statement.handle) == SQLITE_ROW ? sqlite3_column_int64(statement.handle, 0)
                                                                         : qint64(0);
    };
    const qint64 pageSize = integer("PRAGMA page_size");
    const qint64 live = (integer("PRAGMA page_count") - integer("PRAGMA freelist_count")) * pageSize;
    if (live <= m_options.sizeLimit || live <= 0)
        return;
    // Down to three quarters of the limit, so that eviction is rare; the oldest day goes first,
    // and within a day the lowest keys, which is as good as any order there.
    const qint64 rows = integer("SELECT count(*) FROM digests");
    const qint64 keep = rows * (m_options.sizeLimit * 3 / 4) / live;
    Statement evict(m_db, "DELETE FROM digests WHERE (used, device, inode, skipped) IN (SELECT used, device, "
                          "inode, skipped FROM digests ORDER BY used, device, inode, skipped LIMIT ?)");
    if (!evict)
        return;
    sqlite3_bind_int64(evict.handle, 1, rows - keep);
    if (failed(sqlite3_step(evict.handle), "evicting"))
        return;
    // Prints go with the digests of their days.
    sqlite3_exec(m_db, "DELETE FROM prints WHERE used < (SELECT min(used) FROM digests)", nullptr, nullptr, nullptr);
    sqlite3_exec(m_db, "PRAGMA incremental_vacuum", nullptr, nullptr, nullptr);
}

} // namespace selfsame
