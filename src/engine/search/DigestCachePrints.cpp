// The similar modes' prints in the digest cache: a table of their own beside the digests,
// keyed alike, so that a second search decodes nothing that did not change.

#include "search/DigestCache.h"
#include "search/DigestCacheSql.h"

#include <xxhash.h>

namespace selfsame
{

namespace
{

using namespace cacheSql;

quint64 printCheckValue(const DigestKey &key, quint64 volume, PrintKind kind, const CachedPrint &value)
{
    const qint64 fields[] = {qint64(volume), qint64(key.inode), key.size,          key.modifiedNs,
                             key.changedNs,  qint64(kind),      value.print.size()};
    const QByteArray bytes = value.print + value.details;
    return XXH3_64bits_withSeed(bytes.constData(), std::size_t(bytes.size()),
                                XXH3_64bits(fields, sizeof(fields)));
}

} // namespace

bool DigestCache::createPrintsTable()
{
    return sqlite3_exec(m_db,
                        "CREATE TABLE IF NOT EXISTS prints (device INTEGER NOT NULL, inode INTEGER NOT NULL,"
                        " kind INTEGER NOT NULL, size INTEGER NOT NULL, modified INTEGER NOT NULL,"
                        " changed INTEGER NOT NULL, print BLOB NOT NULL, details BLOB NOT NULL,"
                        " used INTEGER NOT NULL, checkValue INTEGER NOT NULL,"
                        " PRIMARY KEY (device, inode, kind)) WITHOUT ROWID",
                        nullptr, nullptr, nullptr) == SQLITE_OK;
}

void DigestCache::lookupPrints(PrintKind kind, const std::vector<DigestKey> &keys,
                               const std::function<void(std::size_t, CachedPrint)> &found)
{
    std::lock_guard lock(m_dbMutex);
    if (!m_db || m_broken) return;
    Statement select(m_db, "SELECT size, modified, changed, print, details, checkValue, used FROM prints "
                           "WHERE device = ? AND inode = ? AND kind = ?");
    Statement touch(m_db, "UPDATE prints SET used = ? WHERE device = ? AND inode = ? AND kind = ?");
    if (!select || !touch) return;
    const qint64 now = today();
    bool touching = false;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const DigestKey &key = keys[i];
        const quint64 volume = volumeOf(key.device);
        sqlite3_reset(select.handle);
        sqlite3_bind_int64(select.handle, 1, ordered(volume));
        sqlite3_bind_int64(select.handle, 2, ordered(key.inode));
        sqlite3_bind_int(select.handle, 3, int(kind));
        if (sqlite3_step(select.handle) != SQLITE_ROW) continue;
        if (sqlite3_column_int64(select.handle, 0) != key.size ||
            sqlite3_column_int64(select.handle, 1) != key.modifiedNs ||
            sqlite3_column_int64(select.handle, 2) != key.changedNs)
            continue;
        CachedPrint value{select.blobAt(3), select.blobAt(4)};
        if (quint64(sqlite3_column_int64(select.handle, 5)) != printCheckValue(key, volume, kind, value))
            continue;
        if (sqlite3_column_int64(select.handle, 6) < now) {
            if (!touching) touching = sqlite3_exec(m_db, "BEGIN", nullptr, nullptr, nullptr) == SQLITE_OK;
            sqlite3_reset(touch.handle);
            sqlite3_bind_int64(touch.handle, 1, now);
            sqlite3_bind_int64(touch.handle, 2, ordered(volume));
            sqlite3_bind_int64(touch.handle, 3, ordered(key.inode));
            sqlite3_bind_int(touch.handle, 4, int(kind));
            sqlite3_step(touch.handle);
        }
        found(i, std::move(value));
    }
    if (touching) sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr);
}

void DigestCache::storePrints(PrintKind kind, const std::vector<std::pair<DigestKey, CachedPrint>> &records)
{
    std::lock_guard lock(m_dbMutex);
    if (!m_db || m_broken || records.empty()) return;
    if (failed(sqlite3_exec(m_db, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), "writing")) return;
    Statement insert(m_db,
                     "INSERT OR REPLACE INTO prints (device, inode, kind, size, modified, changed, print, "
                     "details, used, checkValue) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    int code = insert ? SQLITE_DONE : sqlite3_errcode(m_db);
    const qint64 now = today();
    for (const auto &[key, value] : records) {
        if (code != SQLITE_DONE) break;
        const quint64 volume = volumeOf(key.device);
        sqlite3_stmt *s = insert.handle;
        sqlite3_reset(s);
        sqlite3_bind_int64(s, 1, ordered(volume));
        sqlite3_bind_int64(s, 2, ordered(key.inode));
        sqlite3_bind_int(s, 3, int(kind));
        sqlite3_bind_int64(s, 4, key.size);
        sqlite3_bind_int64(s, 5, key.modifiedNs);
        sqlite3_bind_int64(s, 6, key.changedNs);
        sqlite3_bind_blob(s, 7, value.print.constData(), int(value.print.size()), SQLITE_STATIC);
        sqlite3_bind_blob(s, 8, value.details.constData(), int(value.details.size()), SQLITE_STATIC);
        sqlite3_bind_int64(s, 9, now);
        sqlite3_bind_int64(s, 10, qint64(printCheckValue(key, volume, kind, value)));
        code = sqlite3_step(s);
    }
    if (failed(code == SQLITE_DONE ? SQLITE_OK : code, "writing")) {
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
        return;
    }
    failed(sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr), "writing");
}

} // namespace selfsame
