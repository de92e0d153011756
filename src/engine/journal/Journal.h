#pragma once

#include "names/FileNames.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

struct sqlite3;

namespace selfsame
{

// How far one file's step of an action got. Before Replaced, recovery rolls the step back
// (the file comes back to its path as it was); from Replaced on, it finishes it.
enum JournalStage : int {
    Intended = 0,  // recorded, nothing done yet; the names below may exist already
    Staged = 1,    // the replacement stands beside the file, at `staged`
    TakenAway = 2, // the original left its path: aside, or into the trash (at `away` when known)
    Replaced = 3,  // the path holds what the action meant it to hold: past the point of no return
    Done = 4,
};

// The kind of a step that replaces a duplicate by a clone: moved aside, cloned over, removed.
inline constexpr int CloneInPlace = 2;
// The kind of a step that moves a file back from the trash (`away`) to its path.
inline constexpr int PutBackFromTrash = 3;
// The kinds of the steps of an undo. Each puts `staged` at the path, the path's present
// occupant (a link or a clone) going to `away` first: an independent copy made at `staged`,
// or the original back from the trash, `staged` being where the trash holds it.
inline constexpr int UndoToCopy = 4;
inline constexpr int UndoFromTrash = 5;

// What identifies a file's content as a step left it: a later change shows in one of these.
struct FileState {
    qint64 device = 0, inode = 0, size = -1, modifiedNs = 0;
    bool known() const { return size >= 0; }
    bool operator==(const FileState &) const = default;
};
// The state of the entry at `path`, or of what a link there leads to; unknown when absent.
FileState fileStateOf(const QString &path, Links links);

// One file's part of an action, as recorded before each step touches the file system.
struct JournalStep {
    qint64 id = 0;
    qint64 batch = 0;
    int kind = 0;   // DeleteKind (0 to the trash, 1 deleted), CloneInPlace or PutBackFromTrash
    int mode = 0;   // ReplaceWithMode
    QString path;   // the file acted on
    QString kept;   // the copy kept in its place; empty without one
    QString staged; // where a replacement is made before it takes the path; empty without one
    QString away;   // where the original goes aside (deletion) or went (trash, once known)
    int stage = Intended;
    QByteArray metadata; // the original's metadata (fileops/FSMetadata.h) when it is not kept
    // Once done: whether the step changed anything, and the states it left: of what stands
    // for the action (the path, or the file in the trash) and of the kept copy.
    bool acted = false;
    FileState result, keptResult;
    qint64 undoneBy = 0; // the batch that undid the step
    qint64 undoes = 0;   // for a step of an undo: the step it undoes
};

// One action as the journal lists it: what the user did to a set of files at once.
struct JournalBatch {
    qint64 id = 0;
    qint64 started = 0;  // seconds since the epoch
    QString action;      // "trash", "delete", "clone", "put back" or "undo"
    int mode = 0;        // the ReplaceWithMode of its replacements
    int files = 0;       // the files it changed
    int undone = 0;      // of which undone since
    int deletedForGood = 0; // of which deleted with nothing in their place
};

// The operations journal: an SQLite file in write-ahead mode whose records are on disk before
// the step they announce begins, so that an action killed at any point can be finished or
// rolled back (journal/Recovery.h). Paths are stored as their exact bytes.
class Journal
{
public:
    // $XDG_STATE_HOME/selfsame/journal.sqlite, or ~/.local/state/selfsame/journal.sqlite.
    static QString defaultPath();

    explicit Journal(const QString &file = defaultPath());
    ~Journal();
    Journal(const Journal &) = delete;
    Journal &operator=(const Journal &) = delete;

    bool isOpen() const { return m_db != nullptr; }
    QString error() const { return m_error; }

    // Opens the batch that the steps recorded from now on belong to; `action` names it.
    qint64 beginBatch(const QString &action);
    void endBatch() { m_batch = 0; }
    qint64 openBatch() const { return m_batch; }
    // Records the step and gives it its id (and the open batch, when it has none); false when
    // the record could not be written, in which case the step must not begin.
    bool record(JournalStep &step);
    // Moves the step on to `stage`, writing where the original went and, once Done, what the
    // step left.
    bool advance(JournalStep &step, JournalStage stage);
    // The steps not Done, oldest first.
    QList<JournalStep> unfinished();

    // The newest batches that changed files, newest first.
    QList<JournalBatch> batches(int limit = 50);
    std::optional<JournalBatch> batch(qint64 id);
    // The steps of a batch that changed files, in the order they were taken.
    QList<JournalStep> actedSteps(qint64 batch);
    bool markUndone(qint64 step, qint64 undoBatch);
    // Forgets finished batches started more than `days` ago.
    void prune(int days);

private:
    bool exec(const char *sql);
    bool addColumns();
    QList<JournalStep> selectSteps(const char *where, qint64 value);
    sqlite3 *m_db = nullptr;
    qint64 m_batch = 0;
    QString m_error;
};

// Keeps a batch open while it lives, unless one was open already: then the steps join it.
class BatchScope
{
public:
    BatchScope(Journal *journal, const QString &action)
        : m_journal(journal && journal->isOpen() && !journal->openBatch() ? journal : nullptr)
    {
        if (m_journal) m_journal->beginBatch(action);
    }
    ~BatchScope()
    {
        if (m_journal) m_journal->endBatch();
    }
    BatchScope(const BatchScope &) = delete;
    BatchScope &operator=(const BatchScope &) = delete;

private:
    Journal *m_journal;
};

// One step as it goes, recorded in the journal when there is one (actions run without one
// in tests of other things).
struct JournaledStep {
    Journal *journal = nullptr;
    JournalStep step;
    // Records the step; false, with the journal's error, when it could not be: then the step
    // must not begin.
    bool begin() { return !journal || journal->record(step); }
    void reach(JournalStage stage)
    {
        if (journal) journal->advance(step, stage);
    }
    // The step did what it meant to: records the states it left, for an undo to check.
    void finish();
};

// Kills the process at the named point when the test-only switch SELFSAME_TEST_FAULT_POINT
// names it: how the tests interrupt an action between two of its steps.
void faultPoint(const char *name);

} // namespace selfsame
