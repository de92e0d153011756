#include "journal/Journal.h"

#include "names/FileNames.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <csignal>
#include <sqlite3.h>
#include <sys/stat.h>

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
    QByteArray bytesAt(int column) const
    {
        const auto *data = static_cast<const char *>(sqlite3_column_blob(handle, column));
        return QByteArray(data, sqlite3_column_bytes(handle, column));
    }
    QString pathAt(int column) const { return pathFromBytes(bytesAt(column)); }
    void bindState(int index, const FileState &state)
    {
        sqlite3_bind_int64(handle, index, state.device);
        sqlite3_bind_int64(handle, index + 1, state.inode);
        sqlite3_bind_int64(handle, index + 2, state.size);
        sqlite3_bind_int64(handle, index + 3, state.modifiedNs);
    }
    FileState stateAt(int column) const
    {
        if (sqlite3_column_type(handle, column + 2) == SQLITE_NULL) return {};
        return {sqlite3_column_int64(handle, column), sqlite3_column_int64(handle, column + 1),
                sqlite3_column_int64(handle, column + 2), sqlite3_column_int64(handle, column + 3)};
    }
};

// The columns a step is read from, in the order of readStep.
constexpr const char *kStepColumns =
    "id, batch, kind, mode, path, kept, staged, away, stage, metadata, acted, undone_by,"
    " result_dev, result_ino, result_size, result_mtime, kept_dev, kept_ino, kept_size, kept_mtime, undoes";

JournalStep readStep(const Statement &select)
{
    JournalStep step;
    sqlite3_stmt *row = select.handle;
    step.id = sqlite3_column_int64(row, 0);
    step.batch = sqlite3_column_int64(row, 1);
    step.kind = sqlite3_column_int(row, 2);
    step.mode = sqlite3_column_int(row, 3);
    step.path = select.pathAt(4);
    step.kept = select.pathAt(5);
    step.staged = select.pathAt(6);
    step.away = select.pathAt(7);
    step.stage = sqlite3_column_int(row, 8);
    step.metadata = select.bytesAt(9);
    step.acted = sqlite3_column_int(row, 10) != 0;
    step.undoneBy = sqlite3_column_int64(row, 11);
    step.result = select.stateAt(12);
    step.keptResult = select.stateAt(16);
    step.undoes = sqlite3_column_int64(row, 20);
    return step;
}

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
            "CREATE INDEX IF NOT EXISTS unfinished ON steps (stage) WHERE stage < 4;"
            "CREATE INDEX IF NOT EXISTS steps_of_batch ON steps (batch);") ||
        !addColumns()) {
        sqlite3_close(m_db);
        m_db = nullptr;
    }
}

// Columns that journals written by earlier versions lack.
bool Journal::addColumns()
{
    QSet<QByteArray> present;
    {
        Statement info(m_db, "SELECT name FROM pragma_table_info('steps')");
        while (sqlite3_step(info.handle) == SQLITE_ROW)
            present.insert(reinterpret_cast<const char *>(sqlite3_column_text(info.handle, 0)));
    }
    const char *const added[][2] = {
        {"metadata", "BLOB"},          {"acted", "INTEGER DEFAULT 0"}, {"undone_by", "INTEGER DEFAULT 0"},
        {"result_dev", "INTEGER"},     {"result_ino", "INTEGER"},      {"result_size", "INTEGER"},
        {"result_mtime", "INTEGER"},   {"kept_dev", "INTEGER"},        {"kept_ino", "INTEGER"},
        {"kept_size", "INTEGER"},      {"kept_mtime", "INTEGER"},      {"undoes", "INTEGER DEFAULT 0"},
    };
    for (const auto &[name, type] : added)
        if (!present.contains(name) &&
            !exec((QByteArray("ALTER TABLE steps ADD COLUMN ") + name + ' ' + type + ';').constData()))
            return false;
    return true;
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

qint64 Journal::beginBatch(const QString &action)
{
    if (!m_db) return 0;
    Statement insert(m_db, "INSERT INTO batches (started, description) VALUES (?, ?)");
    sqlite3_bind_int64(insert.handle, 1, QDateTime::currentSecsSinceEpoch());
    const QByteArray text = action.toUtf8();
    sqlite3_bind_text(insert.handle, 2, text.constData(), int(text.size()), SQLITE_TRANSIENT);
    m_batch = sqlite3_step(insert.handle) == SQLITE_DONE ? sqlite3_last_insert_rowid(m_db) : 0;
    return m_batch;
}

bool Journal::record(JournalStep &step)
{
    if (!m_db) return false;
    if (!step.batch) step.batch = m_batch;
    Statement insert(m_db, "INSERT INTO steps (batch, kind, mode, path, kept, staged, away, stage, metadata, undoes)"
                           " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    sqlite3_bind_int64(insert.handle, 1, step.batch);
    sqlite3_bind_int(insert.handle, 2, step.kind);
    sqlite3_bind_int(insert.handle, 3, step.mode);
    insert.bindPath(4, step.path);
    insert.bindPath(5, step.kept);
    insert.bindPath(6, step.staged);
    insert.bindPath(7, step.away);
    sqlite3_bind_int(insert.handle, 8, step.stage);
    sqlite3_bind_blob(insert.handle, 9, step.metadata.constData(), int(step.metadata.size()), SQLITE_TRANSIENT);
    sqlite3_bind_int64(insert.handle, 10, step.undoes);
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
    Statement update(m_db, "UPDATE steps SET stage = ?, away = ?, acted = ?, result_dev = ?, result_ino = ?,"
                           " result_size = ?, result_mtime = ?, kept_dev = ?, kept_ino = ?, kept_size = ?,"
                           " kept_mtime = ? WHERE id = ?");
    sqlite3_bind_int(update.handle, 1, stage);
    update.bindPath(2, step.away);
    sqlite3_bind_int(update.handle, 3, step.acted ? 1 : 0);
    update.bindState(4, step.result);
    update.bindState(8, step.keptResult);
    sqlite3_bind_int64(update.handle, 12, step.id);
    if (sqlite3_step(update.handle) != SQLITE_DONE) {
        m_error = QString::fromUtf8(sqlite3_errmsg(m_db));
        return false;
    }
    step.stage = stage;
    return true;
}

QList<JournalStep> Journal::selectSteps(const char *where, qint64 value)
{
    QList<JournalStep> steps;
    if (!m_db) return steps;
    const QByteArray sql = QByteArray("SELECT ") + kStepColumns + " FROM steps WHERE " + where + " ORDER BY id";
    Statement select(m_db, sql.constData());
    sqlite3_bind_int64(select.handle, 1, value);
    while (sqlite3_step(select.handle) == SQLITE_ROW)
        steps.append(readStep(select));
    return steps;
}

QList<JournalStep> Journal::unfinished()
{
    return selectSteps("stage < ?", Done);
}

QList<JournalStep> Journal::actedSteps(qint64 batch)
{
    return selectSteps("acted AND batch = ?", batch);
}

namespace
{

constexpr const char *kBatchQuery =
    "SELECT b.id, b.started, b.description, COALESCE(MAX(s.mode), 0), COUNT(s.id),"
    " COALESCE(SUM(s.undone_by > 0), 0), COALESCE(SUM(s.kind = 1 AND s.mode = 0), 0)"
    " FROM batches b JOIN steps s ON s.batch = b.id AND s.acted ";

JournalBatch readBatch(sqlite3_stmt *row)
{
    JournalBatch batch;
    batch.id = sqlite3_column_int64(row, 0);
    batch.started = sqlite3_column_int64(row, 1);
    batch.action = QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(row, 2)));
    batch.mode = sqlite3_column_int(row, 3);
    batch.files = sqlite3_column_int(row, 4);
    batch.undone = sqlite3_column_int(row, 5);
    batch.deletedForGood = sqlite3_column_int(row, 6);
    return batch;
}

} // namespace

QList<JournalBatch> Journal::batches(int limit)
{
    QList<JournalBatch> batches;
    if (!m_db) return batches;
    const QByteArray sql = QByteArray(kBatchQuery) + "GROUP BY b.id ORDER BY b.id DESC LIMIT ?";
    Statement select(m_db, sql.constData());
    sqlite3_bind_int(select.handle, 1, limit);
    while (sqlite3_step(select.handle) == SQLITE_ROW)
        batches.append(readBatch(select.handle));
    return batches;
}

std::optional<JournalBatch> Journal::batch(qint64 id)
{
    if (!m_db) return std::nullopt;
    const QByteArray sql = QByteArray(kBatchQuery) + "WHERE b.id = ? GROUP BY b.id";
    Statement select(m_db, sql.constData());
    sqlite3_bind_int64(select.handle, 1, id);
    if (sqlite3_step(select.handle) != SQLITE_ROW) return std::nullopt;
    return readBatch(select.handle);
}

bool Journal::markUndone(qint64 step, qint64 undoBatch)
{
    if (!m_db) return false;
    Statement update(m_db, "UPDATE steps SET undone_by = ? WHERE id = ?");
    sqlite3_bind_int64(update.handle, 1, undoBatch);
    sqlite3_bind_int64(update.handle, 2, step);
    return sqlite3_step(update.handle) == SQLITE_DONE;
}

void Journal::prune(int days)
{
    if (!m_db) return;
    Statement remove(m_db, "DELETE FROM steps WHERE stage = 4 AND batch IN (SELECT id FROM batches WHERE started < ?)");
    const qint64 before = QDateTime::currentSecsSinceEpoch() - qint64(days) * 86400;
    sqlite3_bind_int64(remove.handle, 1, before);
    sqlite3_step(remove.handle);
    Statement empty(m_db, "DELETE FROM batches WHERE started < ? AND id NOT IN (SELECT batch FROM steps)");
    sqlite3_bind_int64(empty.handle, 1, before);
    sqlite3_step(empty.handle);
}

FileState fileStateOf(const QString &path, Links links)
{
    struct stat st {
    };
    const QByteArray bytes = pathBytes(path);
    if (path.isEmpty() || (links == Links::AsThemselves ? lstat(bytes.constData(), &st) : stat(bytes.constData(), &st)) != 0)
        return {};
    return {qint64(st.st_dev), qint64(st.st_ino), qint64(st.st_size),
            qint64(st.st_mtim.tv_sec) * 1'000'000'000 + st.st_mtim.tv_nsec};
}

void JournaledStep::finish()
{
    step.acted = true;
    // A plain move to the trash is undone from the trash; everything else at its path.
    const bool inTrash = step.kind == 0 && step.mode == 0;
    step.result = fileStateOf(inTrash ? step.away : step.path, Links::AsThemselves);
    step.keptResult = fileStateOf(step.kept, Links::Follow); // its content, through a link if it is one
    // Marked first: killed in between, recovery finishes this step (it is past its swap) and
    // marks it again.
    if (journal && step.undoes) journal->markUndone(step.undoes, step.batch);
    reach(Done);
}

void faultPoint(const char *name)
{
    static const QByteArray wanted = qgetenv("SELFSAME_TEST_FAULT_POINT");
    if (!wanted.isEmpty() && wanted == name) raise(SIGKILL);
}

} // namespace selfsame
