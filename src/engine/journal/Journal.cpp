#include "journal/Journal.h"

#include "names/FileNames.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <csignal>
#include <sqlite3.h>

namespace selfsame
{

namespace
{

struct Statement {
    sqlite3_stmt *handle = nullptr;
    Statement(sqlite3 *db, const char *sql) { sqlite3_prepare_v2(db, sql, -1, &handle, nullptr); }
    ~Statement() { sqlite3_finalize(handle); }
    void bindPath(int index, const QString &path)
    {
        const QByteArray bytes = pathBytes(path);
        sqlite3_bind_blob(handle, index, bytes.constData(), int(bytes.size()), SQLITE_TRANSIENT);
    }
    QString pathAt(int column) const
    {
        const auto *data = static_cast<const char *>(sqlite3_column_blob(handle, column));
        return pathFromBytes(QByteArray(data, sqlite3_column_bytes(handle, column)));
    }
};

} // namespace

QString Journal::defaultPath()
{
    QString state = qEnvironmentVariable("XDG_STATE_HOME");
    if (state.isEmpty() || !state.startsWith(u'/'))
        state = QDir::homePath() + QStringLiteral("/.local/state");
    return state + QStringLiteral("/selfsame/journal.sqlite");
}

Journal::Journal(const QString &file)
{
    QDir().mkpath(QFileInfo(file).absolutePath());
    if (sqlite3_open_v2(pathBytes(file).constData(), &m_db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE,
                        nullptr) != SQLITE_OK) {
        m_error = m_db ? QString::fromUtf8(sqlite3_errmsg(m_db)) : QStringLiteral("out of memory");
        sqlite3_close(m_db);
        m_db = nullptr;
        return;
    }
    sqlite3_busy_timeout(m_db, 10000);
    // FULL: a record is on disk before the step it announces, whatever happens next.
    if (!exec(
            "PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL;"
            "CREATE TABLE IF NOT EXISTS batches (id INTEGER PRIMARY KEY, started INTEGER, description TEXT);"
            "CREATE TABLE IF NOT EXISTS steps (id INTEGER PRIMARY KEY, batch INTEGER, kind INTEGER, mode "
            "INTEGER,"
            " path BLOB, kept BLOB, staged BLOB, away BLOB, stage INTEGER);"
            "CREATE INDEX IF NOT EXISTS unfinished ON steps (stage) WHERE stage < 4;")) {
        sqlite3_close(m_db);
        m_db = nullptr;
    }
}

Journal::~Journal()
{
    sqlite3_close(m_db);
}

bool Journal::exec(const char *sql)
{
    char *message = nullptr;
    if (sqlite3_exec(m_db, sql, nullptr, nullptr, &message) == SQLITE_OK) return true;
    m_error = QString::fromUtf8(message ? message : sqlite3_errmsg(m_db));
    sqlite3_free(message);
    return false;
}

qint64 Journal::beginBatch(const QString &description)
{
    if (!m_db) return 0;
    Statement insert(m_db, "INSERT INTO batches (started, description) VALUES (?, ?)");
    sqlite3_bind_int64(insert.handle, 1, QDateTime::currentSecsSinceEpoch());
    const QByteArray text = description.toUtf8();
    sqlite3_bind_text(insert.handle, 2, text.constData(), int(text.size()), SQLITE_TRANSIENT);
    return sqlite3_step(insert.handle) == SQLITE_DONE ? sqlite3_last_insert_rowid(m_db) : 0;
}

bool Journal::record(JournalStep &step)
{
    if (!m_db) return false;
    Statement insert(m_db, "INSERT INTO steps (batch, kind, mode, path, kept, staged, away, stage) "
                           "VALUES (?, ?, ?, ?, ?, ?, ?, ?)");
    sqlite3_bind_int64(insert.handle, 1, step.batch);
    sqlite3_bind_int(insert.handle, 2, step.kind);
    sqlite3_bind_int(insert.handle, 3, step.mode);
    insert.bindPath(4, step.path);
    insert.bindPath(5, step.kept);
    insert.bindPath(6, step.staged);
    insert.bindPath(7, step.away);
    sqlite3_bind_int(insert.handle, 8, step.stage);
    if (sqlite3_step(insert.handle) != SQLITE_DONE) {
        m_error = QString::fromUtf8(sqlite3_errmsg(m_db));
        return false;
    }
    step.id = sqlite3_last_insert_rowid(m_db);
    return true;
}

bool Journal::advance(JournalStep &step, JournalStage stage)
{
    if (!m_db) return false;
    Statement update(m_db, "UPDATE steps SET stage = ?, away = ? WHERE id = ?");
    sqlite3_bind_int(update.handle, 1, stage);
    update.bindPath(2, step.away);
    sqlite3_bind_int64(update.handle, 3, step.id);
    if (sqlite3_step(update.handle) != SQLITE_DONE) {
        m_error = QString::fromUtf8(sqlite3_errmsg(m_db));
        return false;
    }
    step.stage = stage;
    return true;
}

QList<JournalStep> Journal::unfinished()
{
    QList<JournalStep> steps;
    if (!m_db) return steps;
    Statement select(m_db, "SELECT id, batch, kind, mode, path, kept, staged, away, stage FROM steps "
                           "WHERE stage < 4 ORDER BY id");
    while (sqlite3_step(select.handle) == SQLITE_ROW) {
        JournalStep step;
        step.id = sqlite3_column_int64(select.handle, 0);
        step.batch = sqlite3_column_int64(select.handle, 1);
        step.kind = sqlite3_column_int(select.handle, 2);
        step.mode = sqlite3_column_int(select.handle, 3);
        step.path = select.pathAt(4);
        step.kept = select.pathAt(5);
        step.staged = select.pathAt(6);
        step.away = select.pathAt(7);
        step.stage = sqlite3_column_int(select.handle, 8);
        steps.append(step);
    }
    return steps;
}

void faultPoint(const char *name)
{
    static const QByteArray wanted = qgetenv("SELFSAME_TEST_FAULT_POINT");
    if (!wanted.isEmpty() && wanted == name) raise(SIGKILL);
}

} // namespace selfsame
