#pragma once

#include <QList>
#include <QString>

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

    qint64 beginBatch(const QString &description);
    // Records the step and gives it its id; false when the record could not be written, in
    // which case the step must not begin.
    bool record(JournalStep &step);
    bool advance(JournalStep &step, JournalStage stage);
    // The steps not Done, oldest first.
    QList<JournalStep> unfinished();

private:
    bool exec(const char *sql);
    sqlite3 *m_db = nullptr;
    QString m_error;
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
};

// Kills the process at the named point when the test-only switch SELFSAME_TEST_FAULT_POINT
// names it: how the tests interrupt an action between two of its steps.
void faultPoint(const char *name);

} // namespace selfsame
