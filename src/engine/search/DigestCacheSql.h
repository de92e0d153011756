#pragma once

// What the digest cache's two tables share of SQLite: a statement that finalizes itself, keys
// that keep their unsigned order, and the day that records are dated by.

#include <QByteArray>
#include <QDateTime>
#include <sqlite3.h>

namespace selfsame::cacheSql
{

struct Statement {
    sqlite3_stmt *handle = nullptr;
    Statement(sqlite3 *db, const char *sql) { sqlite3_prepare_v2(db, sql, -1, &handle, nullptr); }
    ~Statement() { sqlite3_finalize(handle); }
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;
    explicit operator bool() const { return handle != nullptr; }
    QByteArray blobAt(int column) const
    {
        return QByteArray(static_cast<const char *>(sqlite3_column_blob(handle, column)),
                          sqlite3_column_bytes(handle, column));
    }
};

// SQLite integers are signed: flipping the top bit keeps unsigned order.
inline qint64 ordered(quint64 value)
{
    return qint64(value ^ (quint64(1) << 63));
}

inline qint64 today()
{
    return QDateTime::currentSecsSinceEpoch() / 86400;
}

} // namespace selfsame::cacheSql
